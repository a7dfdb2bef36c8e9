// Real and imaginary parts: apart, together, and the magnitude and power that they make.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct RealPart {
    template <class V> V operator()(Complex<V> z) const { return z.re; }
};
struct ImaginaryPart {
    template <class V> V operator()(Complex<V> z) const { return z.im; }
};
struct BothParts {
    template <class V> Complex<V> operator()(Complex<V> z) const { return z; }
};
struct Together {
    template <class V> Complex<V> operator()(V re, V im) const { return {re, im}; }
};
struct Power {
    template <class V> V operator()(V re, V im) const { return re * re + im * im; }
    template <class V> V operator()(Complex<V> z) const { return (*this)(z.re, z.im); }
};
struct Magnitude {
    template <class V> V operator()(V re, V im) const { return square_root(Power{}(re, im)); }
    template <class V> V operator()(Complex<V> z) const { return (*this)(z.re, z.im); }
};

template <class Op> [[gnu::noinline]] void each(size_t n, const c64f* a, f64* d)
{
    map<Medium>(n, d, Op{}, complex(a));
}
template <class Op> [[gnu::noinline]] void each(size_t n, const f64* re, const f64* im, f64* d)
{
    map(n, d, Op{}, re, im);
}

void real_part(const c64f* a, f64* d, int n) { each<RealPart>(static_cast<size_t>(n), a, d); }
void imaginary_part(const c64f* a, f64* d, int n) { each<ImaginaryPart>(static_cast<size_t>(n), a, d); }
void power(const c64f* a, f64* d, int n) { each<Power>(static_cast<size_t>(n), a, d); }
void power(const f64* re, const f64* im, f64* d, int n) { each<Power>(static_cast<size_t>(n), re, im, d); }
void magnitude(const c64f* a, f64* d, int n) { each<Magnitude>(static_cast<size_t>(n), a, d); }
void magnitude(const f64* re, const f64* im, f64* d, int n) { each<Magnitude>(static_cast<size_t>(n), re, im, d); }

void both_parts(const c64f* a, f64* re, f64* im, int n)
{
    map<Medium>(static_cast<size_t>(n), TwoArrays{re, im}, BothParts{}, complex(a));
}

void together(const f64* re, const f64* im, c64f* d, int n)
{
    const size_t count = static_cast<size_t>(n);
    if (!im)
        map<Medium>(count, complex(d), Together{}, re, Zeros{});
    else if (!re)
        map<Medium>(count, complex(d), Together{}, Zeros{}, im);
    else
        map<Medium>(count, complex(d), Together{}, re, im);
}

} // namespace
#include "entries/signal/elementwise/complex_parts.inc"
} // namespace sig5d::SIG5D_VARIANT

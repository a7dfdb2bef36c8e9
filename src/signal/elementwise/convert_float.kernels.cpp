// Conversions between single and double precision and of 32-bit integers to either, rounded to the nearest where the
// number does not fit.
#include "frame/entry.h"
#include "kernel/convert_loop.h"
#include "kernel/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct ToSingle {
    template <class S> f32 one(S x) const { return static_cast<f32>(x); }
#if SIG5D_LEVEL > 0
    template <int n> auto to(const i32* p) const { return singles(load_lanes<n>(p)); }
    template <int n> Vec<f32, (n < 4 ? 4 : n)> to(const f64* p) const
    {
        if constexpr (n > 4)
#if SIG5D_LEVEL >= 4
            return _mm256_set_m128(_mm256_cvtpd_ps(loadn<4>(p + 4)), _mm256_cvtpd_ps(loadn<4>(p)));
#else
            return Vec<f32, 8>{}; // no such vectors
#endif
        else if constexpr (n == 4) // of short arrays: in 16 bytes, so that the compiler need not leave those of 32
            return _mm_movelh_ps(to<2>(p), to<2>(p + 2));
        else
            return _mm_cvtpd_ps(load_lanes<n>(p));
    }
#endif
};

struct ToDouble {
    template <class S> f64 one(S x) const { return x; }
#if SIG5D_LEVEL > 0
    template <int n, class S> auto to(const S* p) const { return doubles<n>(load_lanes<n>(p)); }
#endif
};

template <class S> void convert(const S* a, f32* d, int n) { convert_all(static_cast<size_t>(n), a, d, ToSingle{}); }
template <class S> void convert(const S* a, f64* d, int n) { convert_all(static_cast<size_t>(n), a, d, ToDouble{}); }

} // namespace
#include "entries/signal/elementwise/convert_float.inc"
} // namespace sig5d::SIG5D_VARIANT

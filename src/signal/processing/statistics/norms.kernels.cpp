// Norms of arrays and of differences of two arrays: the sum of magnitudes, the root of the sum of squares, the largest
// magnitude. An operation takes the elements of one array or of two, and is about their difference then.
#include "frame/entry.h"
#include "signal/processing/statistics/extremes.h"
#include "signal/processing/statistics/terms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> inline V difference(V x) { return x; }
template <class V> inline V difference(V x, V y) { return x - y; }
template <class V> inline Complex<V> difference(Complex<V> x, Complex<V> y) { return {x.re - y.re, x.im - y.im}; }

struct Magnitudes : SumTerms<1> {
    template <class... V> auto operator()(V... x) const { return absolute_value(difference(x...)); }
};
struct Squares : SumTerms<1> {
    template <class... V> auto operator()(V... x) const
    {
        const auto d = difference(x...);
        return d * d;
    }
};
struct ScaledSquares : SumTerms<1> {
    f64 by;
    explicit ScaledSquares(f64 scale) : by(scale) {}
    template <class... V> auto operator()(V... x) const
    {
        auto d = difference(x...);
        d *= all_lanes<decltype(d)>(by);
        return d * d;
    }
};

template <class V> inline V power(Complex<V> z) { return z.re * z.re + z.im * z.im; }
template <class V> inline V power(Complex<V> z, f64 by)
{
    const V factor = all_lanes<V>(by);
    return power(Complex<V>{z.re * factor, z.im * factor});
}
struct Moduli : SumTerms<1> {
    template <class... C> auto operator()(C... z) const { return square_root(power(difference(z...))); }
};
struct ScaledModuli : SumTerms<1> {
    f64 by;
    explicit ScaledModuli(f64 scale) : by(scale) {}
    template <class... C> auto operator()(C... z) const { return square_root(power(difference(z...), by)); }
};

struct LargestPower {
    template <class... C> auto operator()(C... z) const { return power(difference(z...)); }
};
struct LargestScaledPower {
    f64 by;
    template <class... C> auto operator()(C... z) const { return power(difference(z...), by); }
};
// A sum or largest one of squares is good as it is within these bounds, or if it is a NaN.
inline bool has_lost_bits(f64 squares) { return squares < 0x1p-960 || squares == __builtin_inf(); }
struct Scaling {
    f64 by, back;
    explicit Scaling(f64 size) : by(size < 1 ? farUp : farDown), back(size < 1 ? farDown : farUp) {}
};

template <class... A> [[gnu::noinline]] f64 scaled_euclidean(size_t n, f64 squares, A... a)
{
    const Scaling s(squares);
    return square_root(sum_of(n, ScaledSquares{s.by}, a...).of[0][0]) * s.back;
}
template <class... A> [[gnu::noinline]] f64 scaled_moduli(size_t n, f64 sum, A... a)
{
    const Scaling s(sum);
    return sum_of(n, ScaledModuli{s.by}, complex(a)...).of[0][0] * s.back;
}
template <class... A> [[gnu::noinline]] f64 scaled_largest(size_t n, f64 power, A... a)
{
    const Scaling s(power);
    return square_root(largest_of(n, LargestScaledPower{s.by}, folded(a)...)) * s.back;
}

// pSrc, len, pNorm or pSrc1, pSrc2, len, pNorm; complex numbers count as their two parts where only parts matter.
template <class... A> [[gnu::noinline]] f64 euclidean(size_t n, A... a)
{
    const f64 squares = sum_of(n, Squares{}, a...).of[0][0];
    return has_lost_bits(squares) ? scaled_euclidean(n, squares, a...) : square_root(squares);
}
void norm_l2(const f64* a, int n, f64* d) { *d = euclidean(count(a, n), a); }
void norm_l2(const c64f* a, int n, f64* d) { *d = euclidean(count(a, n), parts(a)); }
void norm_l2(const f64* a, const f64* b, int n, f64* d) { *d = euclidean(count(a, n), a, b); }
void norm_l2(const c64f* a, const c64f* b, int n, f64* d) { *d = euclidean(count(a, n), parts(a), parts(b)); }

template <class... A> [[gnu::noinline]] f64 sum_of_magnitudes(size_t n, A... a)
{
    return sum_of(n, Magnitudes{}, a...).of[0][0];
}
template <class... A> [[gnu::noinline]] f64 sum_of_moduli(size_t n, A... a)
{
    const f64 sum = sum_of(n, Moduli{}, complex(a)...).of[0][0];
    return sum < 0x1p-400 || sum == __builtin_inf() ? scaled_moduli(n, sum, a...) : sum;
}
void norm_l1(const f64* a, int n, f64* d) { *d = sum_of_magnitudes(static_cast<size_t>(n), a); }
void norm_l1(const c64f* a, int n, f64* d) { *d = sum_of_moduli(static_cast<size_t>(n), a); }
void norm_l1(const f64* a, const f64* b, int n, f64* d) { *d = sum_of_magnitudes(static_cast<size_t>(n), a, b); }
void norm_l1(const c64f* a, const c64f* b, int n, f64* d) { *d = sum_of_moduli(static_cast<size_t>(n), a, b); }

template <class... A> [[gnu::noinline]] f64 largest_magnitude(size_t n, A... a)
{
    return largest_of(n, Magnitudes{}, a...);
}
template <class... A> [[gnu::noinline]] f64 largest_modulus(size_t n, A... a)
{
    const f64 power = largest_of(n, LargestPower{}, folded(a)...);
    return has_lost_bits(power) ? scaled_largest(n, power, a...) : square_root(power);
}
void norm_inf(const f64* a, int n, f64* d) { *d = largest_magnitude(static_cast<size_t>(n), a); }
void norm_inf(const c64f* a, int n, f64* d) { *d = largest_modulus(static_cast<size_t>(n), a); }
void norm_inf(const f64* a, const f64* b, int n, f64* d) { *d = largest_magnitude(static_cast<size_t>(n), a, b); }
void norm_inf(const c64f* a, const c64f* b, int n, f64* d) { *d = largest_modulus(static_cast<size_t>(n), a, b); }

} // namespace
#include "entries/signal/processing/statistics/norms.inc"
} // namespace sig5d::SIG5D_VARIANT

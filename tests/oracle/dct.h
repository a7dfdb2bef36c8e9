// Cosine transforms in extended precision: by the definition, and for long signals by way of a Fourier transform of any
// length (Bluestein's), which the tests compare with the definition.
#pragma once
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

namespace oracle {

using Extended = long double;
using Values = std::vector<Extended>;
using Spectrum = std::vector<std::complex<Extended>>;

constexpr Extended pi = 3.14159265358979323846264338327950288L;

// exp(2 pi i k / n), from an angle in the first octant.
inline std::complex<Extended> turn(int64_t k, int64_t n)
{
    k = (k % n + n) % n;
    const int64_t octant = 8 * k / n, rest = 8 * k % n;
    const Extended a = pi / 4 * static_cast<Extended>(octant & 1 ? n - rest : rest) / static_cast<Extended>(n);
    Extended c = std::cos(a), s = std::sin(a);
    if ((octant + 1) & 2) std::swap(c, s);
    if ((octant + 2) & 4) c = -c;
    if (octant & 4) s = -s;
    return {c, s};
}

inline Extended scaleOf(int64_t k, int64_t n) { return std::sqrt((k ? 2.0L : 1.0L) / static_cast<Extended>(n)); }

inline Values cosinesByDefinition(const Values& x)
{
    const auto n = static_cast<int64_t>(x.size());
    Values y(x.size());
    for (int64_t k = 0; k < n; ++k)
        for (int64_t i = 0; i < n; ++i)
            y[size_t(k)] += x[size_t(i)] * scaleOf(k, n) * turn((2 * i + 1) * k, 4 * n).real();
    return y;
}
inline Values inverseByDefinition(const Values& y)
{
    const auto n = static_cast<int64_t>(y.size());
    Values x(y.size());
    for (int64_t i = 0; i < n; ++i)
        for (int64_t k = 0; k < n; ++k)
            x[size_t(i)] += y[size_t(k)] * scaleOf(k, n) * turn((2 * i + 1) * k, 4 * n).real();
    return x;
}

// Products without the library's care for infinities.
inline std::complex<Extended> product(std::complex<Extended> a, std::complex<Extended> b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// Of a power of two values, in place, with exp(-2 pi i n k / N).
inline void fourier(Spectrum& x)
{
    static Spectrum turns; // of the largest number so far
    const size_t n = x.size();
    if (turns.size() < n / 2) {
        turns.resize(n / 2);
        for (size_t k = 0; k < n / 2; ++k) turns[k] = turn(-int64_t(k), int64_t(n));
    }
    for (size_t i = 1, j = 0; i < n; ++i) {
        size_t bit = n / 2;
        for (; j & bit; bit /= 2) j ^= bit;
        j ^= bit;
        if (i < j) std::swap(x[i], x[j]);
    }
    for (size_t half = 1; half < n; half *= 2)
        for (size_t i = 0; i < n; i += 2 * half)
            for (size_t k = 0; k < half; ++k) {
                const auto t = product(x[i + k + half], turns[k * (turns.size() / half)]);
                x[i + k + half] = x[i + k] - t;
                x[i + k] += t;
            }
}

// The sums of x[n] exp(-2 pi i n k / N) for any N.
class AnyLength
{
public:
    explicit AnyLength(size_t n) : chirp_(n)
    {
        size_t points = 1;
        while (points < 2 * n) points *= 2;
        kernel_.resize(points);
        for (size_t i = 0; i < n; ++i) {
            chirp_[i] = turn(-int64_t(uint64_t{i} * i % (2 * n)), int64_t(2 * n));
            kernel_[i] = kernel_[(points - i) % points] = std::conj(chirp_[i]) / static_cast<Extended>(points);
        }
        fourier(kernel_);
    }
    Spectrum operator()(const Spectrum& x) const
    {
        Spectrum a(kernel_.size());
        for (size_t i = 0; i < x.size(); ++i) a[i] = product(x[i], chirp_[i]);
        fourier(a);
        for (size_t i = 0; i < a.size(); ++i) a[i] = std::conj(product(a[i], kernel_[i]));
        fourier(a);
        Spectrum y(x.size());
        for (size_t i = 0; i < x.size(); ++i) y[i] = product(std::conj(a[i]), chirp_[i]);
        return y;
    }

private:
    Spectrum chirp_, kernel_;
};

// With the even elements forwards and the odd ones backwards behind them: the real part of exp(-i pi k / 2N) times
// their spectrum.
inline Values cosines(const Values& x, const AnyLength& transform)
{
    const size_t n = x.size();
    Spectrum v(n);
    for (size_t i = 0; i < n; ++i) v[i % 2 ? n - 1 - i / 2 : i / 2] = x[i];
    const Spectrum s = transform(v);
    Values y(n);
    for (size_t k = 0; k < n; ++k)
        y[k] = scaleOf(int64_t(k), int64_t(n)) * product(s[k], turn(-int64_t(k), 4 * int64_t(n))).real();
    return y;
}
// The transposed of that: the real part of the sums of exp(-i pi k / 2N) y[k] in the same order.
inline Values inverse(const Values& y, const AnyLength& transform)
{
    const size_t n = y.size();
    Spectrum turned(n);
    for (size_t k = 0; k < n; ++k)
        turned[k] = scaleOf(int64_t(k), int64_t(n)) * y[k] * turn(-int64_t(k), 4 * int64_t(n));
    const Spectrum v = transform(turned);
    Values x(n);
    for (size_t i = 0; i < n; ++i) x[i] = v[i % 2 ? n - 1 - i / 2 : i / 2].real();
    return x;
}

} // namespace oracle

// Correlation and convolution: by definition, by transform, and as the library chooses.
#include "case.h"
#include <cmath>
#include <cstring>
#include <memory>
#ifdef SIG5D_FFTW
#include <fftw3.h>
#endif

namespace {

using bench::Setup;

// Additions and multiplications of one block's convolution by real transforms of 2^order values, at 2.5 N log2 N each
// way, and of what FFTW's overlap-add takes with the best of its block lengths.
double overlapFlops(double row, double results)
{
    double best = 1e300;
    for (int order = 2; order < 28; ++order) {
        const double n = std::exp2(order);
        if (n < row + 1) continue;
        const double blocks = std::ceil(results / (n - row + 1));
        best = std::fmin(best, (2 * blocks + 1) * 2.5 * n * order + 3 * n * blocks);
    }
    return best;
}

#ifdef SIG5D_FFTW
// Convolution with blocks of `size` values by FFTW's measured plans, made before: overlap-add, or in one block.
class OverlapAdd
{
public:
    OverlapAdd(int n, int m, int size) : n_(n), m_(m), size_(size)
    {
        for (double** p : {&block_, &spectrum_, &row_}) *p = fftw_alloc_real(static_cast<size_t>(size + 2));
        forward_ = fftw_plan_dft_r2c_1d(size, block_, reinterpret_cast<fftw_complex*>(spectrum_), FFTW_MEASURE);
        inverse_ = fftw_plan_dft_c2r_1d(size, reinterpret_cast<fftw_complex*>(spectrum_), block_, FFTW_MEASURE);
    }
    ~OverlapAdd()
    {
        fftw_destroy_plan(forward_);
        fftw_destroy_plan(inverse_);
        for (double* p : {block_, spectrum_, row_}) fftw_free(p);
    }
    OverlapAdd(const OverlapAdd&) = delete;
    OverlapAdd& operator=(const OverlapAdd&) = delete;

    // n values of x with m of h.
    void run(const double* x, const double* h, double* y)
    {
        transform(h, m_);
        for (int k = 0; k < size_ + 2; ++k) row_[k] = spectrum_[k] / size_;
        const int advance = size_ - m_ + 1, results = n_ + m_ - 1;
        std::memset(y, 0, static_cast<size_t>(results) * sizeof *y);
        for (int i = 0; i < n_; i += advance) {
            transform(x + i, std::min(advance, n_ - i));
            multiply();
            fftw_execute(inverse_);
            add(y + i, std::min(size_, results - i));
        }
    }

private:
    void transform(const double* x, int n)
    {
        std::memcpy(block_, x, static_cast<size_t>(n) * sizeof *x);
        std::memset(block_ + n, 0, static_cast<size_t>(size_ - n) * sizeof *x);
        fftw_execute(forward_);
    }
    [[gnu::target("avx2"), gnu::optimize("O3")]] void multiply()
    {
#pragma GCC ivdep
        for (int k = 0; k <= size_; k += 2) {
            const double re = spectrum_[k] * row_[k] - spectrum_[k + 1] * row_[k + 1];
            spectrum_[k + 1] = spectrum_[k] * row_[k + 1] + spectrum_[k + 1] * row_[k];
            spectrum_[k] = re;
        }
    }
    [[gnu::target("avx2"), gnu::optimize("O3")]] void add(double* y, int n)
    {
#pragma GCC ivdep
        for (int k = 0; k < n; ++k) y[k] += block_[k];
    }

    int n_, m_, size_;
    double *block_, *spectrum_, *row_;
    fftw_plan forward_, inverse_;
};

// The least even length from n on whose transform has no factors but 2, 3 and 5.
int goodSize(int n)
{
    for (n += n & 1;; n += 2) {
        int rest = n;
        for (const int factor : {2, 3, 5})
            while (rest % factor == 0) rest /= factor;
        if (rest == 1) return n;
    }
}

void addFftw(Setup& s, const double* x, int n, const double* h, int m, double* y)
{
    auto one = [&](const std::string& name, int size) {
        auto peer = std::make_shared<OverlapAdd>(n, m, size);
        s.peer(name, [=] { peer->run(x, h, y); });
    };
    for (const int times : {2, 4, 8})
        if (m > 32 && times * m < n + m) one("FFTW " + std::to_string(times) + "T", goodSize(times * m));
    one("FFTW whole", goodSize(n + m - 1));
}
#else
void addFftw(Setup&, const double*, int, const double*, int, double*) {}
#endif

std::string nameOf(const char* function, int algType, const std::string& lengths)
{
    const char* const method[] = {"", " by definition", " by FFT"};
    return std::string(function) + " " + lengths + method[algType];
}

void convolve(int n, int m, int algType)
{
    bench::addCase(
        nameOf("ippsConvolve_64f", algType, std::to_string(n) + " by " + std::to_string(m)), {n}, [=](Setup& s) {
            const double *a = s.input<double>(static_cast<size_t>(n)), *b = s.input<double>(static_cast<size_t>(m));
            double* y = s.output<double>(static_cast<size_t>(n + m - 1));
            int bytes = 0;
            ippsConvolveGetBufferSize(n, m, 19, algType, &bytes);
            Ipp8u* work = s.scratch(static_cast<size_t>(bytes));
            s.elements = n + m - 1;
            const double direct = 2.0 * n * m;
            s.flops = algType == 1 ? direct : std::fmin(direct, overlapFlops(m, n + m - 1));
            s.run([=] { ippsConvolve_64f(a, n, b, m, y, algType, work); });
            if (algType != 1) addFftw(s, a, n, b, m, y);
        });
}

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    static constexpr int type = 19, parts = 1;
    static constexpr const char *cross = "ippsCrossCorrNorm_64f", *same = "ippsAutoCorrNorm_64f";
    static constexpr auto crossRun = ippsCrossCorrNorm_64f;
    static constexpr auto autoRun = ippsAutoCorrNorm_64f;
};
template <> struct Calls<Ipp64fc> {
    static constexpr int type = 20, parts = 2;
    static constexpr const char *cross = "ippsCrossCorrNorm_64fc", *same = "ippsAutoCorrNorm_64fc";
    static constexpr auto crossRun = ippsCrossCorrNorm_64fc;
    static constexpr auto autoRun = ippsAutoCorrNorm_64fc;
};

// All lags of a long and a short signal.
template <class T> void crossCorrelate(int n, int m, int algType)
{
    using C = Calls<T>;
    bench::addCase(nameOf(C::cross, algType, std::to_string(n) + " by " + std::to_string(m)), {n}, [=](Setup& s) {
        const T *a = s.input<T>(static_cast<size_t>(m)), *b = s.input<T>(static_cast<size_t>(n));
        T* y = s.output<T>(static_cast<size_t>(n + m - 1));
        int bytes = 0;
        ippsCrossCorrNormGetBufferSize(m, n, n + m - 1, 1 - m, C::type, algType, &bytes);
        Ipp8u* work = s.scratch(static_cast<size_t>(bytes));
        s.elements = n + m - 1;
        const double direct = 2.0 * C::parts * C::parts * n * m;
        s.flops = algType == 1 ? direct : std::fmin(direct, C::parts * overlapFlops(m, n + m - 1));
        s.run([=] { C::crossRun(a, m, b, n, y, n + m - 1, 1 - m, algType, work); });
    });
}

template <class T> void autoCorrelate(int n, int lags, int algType)
{
    using C = Calls<T>;
    bench::addCase(nameOf(C::same, algType, std::to_string(n) + ", " + std::to_string(lags) + " lags"), {n},
                   [=](Setup& s) {
                       const T* x = s.input<T>(static_cast<size_t>(n));
                       T* y = s.output<T>(static_cast<size_t>(lags));
                       int bytes = 0;
                       ippsAutoCorrNormGetBufferSize(n, lags, C::type, algType, &bytes);
                       Ipp8u* work = s.scratch(static_cast<size_t>(bytes));
                       s.elements = n;
                       const double points = std::exp2(std::ceil(std::log2(2.0 * n)));
                       s.flops = algType == 1 ? 2.0 * C::parts * C::parts * (double(n) * lags - lags * (lags - 1.0) / 2)
                                              : C::parts * (5 * points * std::log2(points) + 3 * points);
                       s.run([=] { C::autoRun(x, n, y, lags, algType, work); });
                   });
}

const bench::Cases correlation([] {
    convolve(1000, 20, 1);
    convolve(1000, 100, 1);
    convolve(1000, 1000, 1);
    convolve(10000, 1000, 0);
    convolve(10000, 10000, 0);
    convolve(100000, 100, 0);
    convolve(1000, 1000, 0);
    crossCorrelate<Ipp64f>(1000, 100, 1);
    crossCorrelate<Ipp64f>(10000, 1000, 0);
    crossCorrelate<Ipp64fc>(1000, 100, 1);
    crossCorrelate<Ipp64fc>(10000, 1000, 0);
    autoCorrelate<Ipp64f>(1000, 100, 1);
    autoCorrelate<Ipp64f>(1000, 1000, 1);
    autoCorrelate<Ipp64f>(10000, 10000, 2);
    autoCorrelate<Ipp64fc>(1000, 1000, 1);
    autoCorrelate<Ipp64fc>(10000, 10000, 2);
});

} // namespace

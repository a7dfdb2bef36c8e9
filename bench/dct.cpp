// Cosine transforms, and what they are measured against: FFTW's real transform of the same length in even-odd order
// with one rotation for each pair of outputs, three times as fast as its own cosine transform; of a prime length, by
// two such transforms of one point less (Rader); of 8 points, straight-line code.
#include "case.h"
#include <cmath>
#include <cstring>
#include <memory>
#ifdef SIG5D_FFTW
#include <fftw3.h>
#endif

namespace {

using bench::Setup;

#ifdef SIG5D_FFTW
class Rotated
{
public:
    explicit Rotated(int n) : n_(n), turns_(static_cast<size_t>(n + 2))
    {
        v_ = fftw_alloc_real(static_cast<size_t>(n));
        spectrum_ = fftw_alloc_real(static_cast<size_t>(n + 4));
        plan_ =
            fftw_plan_dft_r2c_1d(n, v_, reinterpret_cast<fftw_complex*>(spectrum_), FFTW_MEASURE | FFTW_DESTROY_INPUT);
        for (int k = 0; 2 * k <= n; ++k) {
            turns_[static_cast<size_t>(2 * k)] = std::sqrt(2.0 / n) * std::cos(M_PI * k / (2.0 * n));
            turns_[static_cast<size_t>(2 * k + 1)] = std::sqrt(2.0 / n) * std::sin(M_PI * k / (2.0 * n));
        }
    }
    ~Rotated()
    {
        fftw_destroy_plan(plan_);
        fftw_free(v_);
        fftw_free(spectrum_);
    }
    Rotated(const Rotated&) = delete;
    Rotated& operator=(const Rotated&) = delete;

    [[gnu::target("avx2"), gnu::optimize("O3")]] void run(const double* x, double* y)
    {
        const int half = (n_ + 1) / 2;
        for (int i = 0; i < n_ / 2; ++i) {
            v_[i] = x[2 * i];
            v_[n_ - 1 - i] = x[2 * i + 1];
        }
        if (n_ & 1) v_[half - 1] = x[n_ - 1];
        fftw_execute(plan_);
        const double *s = spectrum_, *t = turns_.data();
        y[0] = s[0] * std::sqrt(1.0 / n_);
#pragma GCC ivdep
        for (int k = 1; k < half; ++k) {
            y[k] = s[2 * k] * t[2 * k] + s[2 * k + 1] * t[2 * k + 1];
            y[n_ - k] = s[2 * k] * t[2 * k + 1] - s[2 * k + 1] * t[2 * k];
        }
        if (n_ % 2 == 0) y[n_ / 2] = s[n_] * t[n_];
    }

private:
    int n_;
    std::vector<double> turns_;
    double *v_, *spectrum_;
    fftw_plan plan_;
};
#endif

// Eight points as an engineer writes them: even and odd halves, the even one halved again.
void straightLine(const double* x, double* y)
{
    constexpr double a = 0.35355339059327376, b = 0.46193976625564337, c = 0.1913417161825449;
    constexpr double d = 0.49039264020161522, e = 0.41573480615127262, f = 0.27778511650980114,
                     g = 0.097545161008064124;
    const double s0 = x[0] + x[7], s1 = x[1] + x[6], s2 = x[2] + x[5], s3 = x[3] + x[4];
    const double d0 = x[0] - x[7], d1 = x[1] - x[6], d2 = x[2] - x[5], d3 = x[3] - x[4];
    const double t0 = s0 + s3, t1 = s1 + s2, t2 = s0 - s3, t3 = s1 - s2;
    y[0] = a * (t0 + t1);
    y[4] = a * (t0 - t1);
    y[2] = b * t2 + c * t3;
    y[6] = c * t2 - b * t3;
    y[1] = (d * d0 + e * d1) + (f * d2 + g * d3);
    y[3] = (e * d0 - g * d1) - (d * d2 + f * d3);
    y[5] = (f * d0 - d * d1) + (g * d2 + e * d3);
    y[7] = (g * d0 - f * d1) + (e * d2 - d * d3);
}

template <class Spec> struct Functions;
template <> struct Functions<IppsDCTFwdSpec_64f> {
    static constexpr const char* name = "ippsDCTFwd_64f";
    static constexpr auto sizes = ippsDCTFwdGetSize_64f;
    static constexpr auto init = ippsDCTFwdInit_64f;
    static constexpr auto run = ippsDCTFwd_64f;
};
template <> struct Functions<IppsDCTInvSpec_64f> {
    static constexpr const char* name = "ippsDCTInv_64f";
    static constexpr auto sizes = ippsDCTInvGetSize_64f;
    static constexpr auto init = ippsDCTInvInit_64f;
    static constexpr auto run = ippsDCTInv_64f;
};

template <class Spec> void transforms()
{
    using F = Functions<Spec>;
    // Short; of powers of two; of mixed radices, even and odd; primes; with a large prime.
    std::vector<bench::Size> sizes = {{2, bench::Level::tiny}, {4, bench::Level::tiny}, {8, bench::Level::tiny}};
    for (long long n : {8,    16,   30,   60,   64,   85,   100,  128,   256,   243,    500,
                        1000, 1001, 1024, 1009, 1019, 1006, 4096, 10000, 65536, 100000, 1 << 20})
        sizes.push_back(n == 8 ? bench::Size(8, bench::Level::L1) : bench::Size(n));
    bench::addCase(F::name, sizes, [](Setup& s) {
        const int n = static_cast<int>(s.size);
        const double* x = s.input<double>(static_cast<size_t>(n));
        double* y = s.output<double>(static_cast<size_t>(n));
        int specSize, initSize, workSize;
        F::sizes(n, 0, &specSize, &initSize, &workSize);
        Ipp8u *block = s.scratch(static_cast<size_t>(specSize)), *setUp = s.scratch(static_cast<size_t>(initSize + 1));
        Ipp8u* work = s.scratch(static_cast<size_t>(workSize + 1));
        Spec* spec;
        F::init(&spec, n, 0, block, setUp);
        s.elements = n;
        s.flops = 2.5 * n * std::log2(n);
        s.run([=] { F::run(x, y, spec, work); });
        if (n == 8) s.peer("straight line", [=] { straightLine(x, y); });
#ifdef SIG5D_FFTW
        if (n > 8) s.peer("FFTW r2c + rotation", [peer = std::make_shared<Rotated>(n), x, y] { peer->run(x, y); });
#endif
    });
}

const bench::Cases dct([] {
    transforms<IppsDCTFwdSpec_64f>();
    transforms<IppsDCTInvSpec_64f>();
});

} // namespace

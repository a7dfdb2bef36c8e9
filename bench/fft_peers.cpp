// The library's Fourier transforms against FFTW (plans made with FFTW_MEASURE), interleaved in one run:
//     fft_peers [smallest order] [largest order] [rounds]
// Columns: nanoseconds of FFTW; of each body nanoseconds, cycles per point, nominal GFLOP/s (2.5 N log2 N per real
// transform, twice that for complex ones) and the share of FFTW's time.
#include "signal/processing/fft/body.h"
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fftw3.h>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace sig5d;

namespace {

double seconds() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

// The core clock in Hz, from a chain of multiplications of three cycles each.
double coreClock()
{
    double best = 0;
    for (int round = 0; round < 5; ++round) {
        unsigned long x = 3;
        const unsigned long y = 5;
        const double start = seconds();
        for (int i = 0; i < 5000000; ++i) asm volatile("imul %1, %0\n\timul %1, %0" : "+r"(x) : "r"(y));
        best = std::max(best, 3e7 / (seconds() - start));
    }
    return best;
}

struct Deleter {
    void operator()(void* p) const { std::free(p); }
};
template <class T> struct Array {
    std::unique_ptr<T, Deleter> memory;
    explicit Array(long long bytes)
        : memory(static_cast<T*>(std::aligned_alloc(4096, static_cast<size_t>(bytes + 8191) / 4096 * 4096)))
    {
    }
    operator T*() const { return memory.get(); }
};

struct Case {
    const char* what;
    double flops;
    std::function<void()> peer;
    std::vector<std::function<void()>> ours;
};

double median(std::vector<double>& v)
{
    std::nth_element(v.begin(), v.begin() + long(v.size() / 2), v.end());
    return v[v.size() / 2];
}

void measure(int order, Case& c, const std::vector<const support::FftBody*>& bodies, int rounds, double clock)
{
    std::vector<std::function<void()>> runs = {c.peer};
    runs.insert(runs.end(), c.ours.begin(), c.ours.end());
    std::vector<std::vector<double>> times(runs.size());
    const double points = double(1 << order);
    const int repeats = std::max(1, int(131072 / points));
    for (int round = 0; round < rounds; ++round)
        for (size_t i = 0; i < runs.size(); ++i) {
            runs[i]();
            const double start = seconds();
            for (int k = 0; k < repeats; ++k) runs[i]();
            times[i].push_back((seconds() - start) / repeats);
        }
    const double peer = median(times[0]);
    std::printf("%8d %-18s %10.1f", 1 << order, c.what, peer * 1e9);
    for (size_t i = 0; i < bodies.size(); ++i) {
        const double t = median(times[i + 1]);
        std::printf(" | %s %9.1f %5.2f %5.1f %5.2f", bodies[i]->name, t * 1e9, t * clock / points, c.flops / t / 1e9,
                    t / peer);
    }
    std::puts("");
    std::fflush(stdout);
}

template <class T> struct Plans {
    Array<char> ordered, unordered, work;
    Plans(FftKind kind, int order)
        : ordered(fftPlanBytes(kind, FftSpectrum::ordered, order)),
          unordered(fftPlanBytes(kind, FftSpectrum::unordered, order)), work(fftWorkBytes(kind, order))
    {
        fftInit(ordered, kind, FftSpectrum::ordered, order);
        fftInit(unordered, kind, FftSpectrum::unordered, order);
    }
};

void realCases(int order, const std::vector<const support::FftBody*>& bodies, int rounds, double clock)
{
    const long n = 1L << order, bytes = 8 * n;
    Array<double> x(bytes), h(bytes), y(bytes), hOwn(bytes), signal(bytes), spectrum(bytes);
    Array<fftw_complex> X(16 * (n / 2 + 1)), H(16 * (n / 2 + 1));
    const fftw_plan there = fftw_plan_dft_r2c_1d(int(n), x, X, FFTW_MEASURE);
    const fftw_plan back = fftw_plan_dft_c2r_1d(int(n), X, y, FFTW_MEASURE);
    std::mt19937_64 random(1);
    std::normal_distribution<double> normal;
    for (long i = 0; i < n; ++i) {
        signal[i] = x[i] = normal(random);
        h[i] = normal(random) / double(n);
    }
    fftw_execute_dft_r2c(there, h, H);
    const Plans<double> plans(FftKind::real, order);
    bodies[0]->real.forward(plans.unordered, h, hOwn, plans.work);

    const double flops = 2.5 * double(n) * order;
    Case forward = {"real forward", flops, [&] { fftw_execute(there); }, {}};
    Case inverse = {"real inverse", flops, [&] { fftw_execute(back); }, {}};
    Case convolve = {"real convolution",
                     2 * flops,
                     [&] {
                         fftw_execute(there);
                         const double scale = 1.0 / double(n);
                         for (long k = 0; k <= n / 2; ++k) {
                             const double a = X[k][0] * scale, b = X[k][1] * scale;
                             X[k][0] = a * H[k][0] - b * H[k][1];
                             X[k][1] = a * H[k][1] + b * H[k][0];
                         }
                         fftw_execute(back);
                     },
                     {}};
    for (const support::FftBody* b : bodies) {
        forward.ours.push_back([&, b] { b->real.forward(plans.ordered, signal, spectrum, plans.work); });
        inverse.ours.push_back([&, b] { b->real.inverse(plans.ordered, spectrum, y, plans.work); });
        convolve.ours.push_back([&, b] { b->real.convolve(plans.unordered, signal, hOwn, y, plans.work); });
    }
    for (Case* c : {&forward, &inverse, &convolve}) measure(order, *c, bodies, rounds, clock);
    fftw_destroy_plan(there);
    fftw_destroy_plan(back);
}

void complexCases(int order, const std::vector<const support::FftBody*>& bodies, int rounds, double clock)
{
    const long n = 1L << order, bytes = 16 * n;
    Array<c64f> x(bytes), h(bytes), y(bytes), H(bytes), hOwn(bytes), X(bytes), spectrum(bytes);
    auto plan = [&](c64f* from, c64f* to, int sign) {
        return fftw_plan_dft_1d(int(n), reinterpret_cast<fftw_complex*>(from), reinterpret_cast<fftw_complex*>(to),
                                sign, FFTW_MEASURE);
    };
    const fftw_plan there = plan(x, X, FFTW_FORWARD), back = plan(X, y, FFTW_BACKWARD), taps = plan(h, H, FFTW_FORWARD);
    std::mt19937_64 random(1);
    std::normal_distribution<double> normal;
    for (long i = 0; i < n; ++i) {
        x[i] = {normal(random), normal(random)};
        h[i] = {normal(random) / double(n), normal(random) / double(n)};
    }
    fftw_execute(taps);
    const Plans<c64f> plans(FftKind::complex, order);
    bodies[0]->complex.forward(plans.unordered, h, hOwn, plans.work);

    const double flops = 5.0 * double(n) * order;
    Case forward = {"complex forward", flops, [&] { fftw_execute(there); }, {}};
    Case convolve = {"complex convolution",
                     2 * flops,
                     [&] {
                         fftw_execute(there);
                         const double scale = 1.0 / double(n);
                         for (long k = 0; k < n; ++k) {
                             const double a = X[k].re * scale, b = X[k].im * scale;
                             X[k] = {a * H[k].re - b * H[k].im, a * H[k].im + b * H[k].re};
                         }
                         fftw_execute(back);
                     },
                     {}};
    for (const support::FftBody* b : bodies) {
        forward.ours.push_back([&, b] { b->complex.forward(plans.ordered, x, spectrum, plans.work); });
        convolve.ours.push_back([&, b] { b->complex.convolve(plans.unordered, x, hOwn, y, plans.work); });
    }
    for (Case* c : {&forward, &convolve}) measure(order, *c, bodies, rounds, clock);
    for (fftw_plan p : {there, back, taps}) fftw_destroy_plan(p);
}

} // namespace

int main(int argc, char** argv)
{
    const int from = argc > 1 ? std::atoi(argv[1]) : 4, to = argc > 2 ? std::atoi(argv[2]) : 17;
    const int rounds = argc > 3 ? std::atoi(argv[3]) : 41;
    const std::vector<const support::FftBody*> bodies = support::fftBodies();
    const double clock = coreClock();
    std::printf("core clock %.2f GHz; per body: ns, cycles per point, nominal GFLOP/s, share of FFTW's time\n",
                clock / 1e9);
    for (int order = from; order <= to; ++order) {
        realCases(order, bodies, rounds, clock);
        complexCases(order, bodies, rounds, clock);
    }
}

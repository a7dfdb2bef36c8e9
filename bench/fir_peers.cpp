// FIR filters against the machine's limit and, with SIG5D_FFTW, against overlap-save by FFTW's measured plans.
// Every case is measured in interleaved rounds; medians are printed as flops per cycle of the multiply and add peak of
// the variant's vector width (independent chains in registers, unfused), and as cycles per output.
//
//     c++ -O2 -std=c++20 -I include bench/fir_peers.cpp -o fir_peers -L build/linux -lNumlab.Sig5d
//         [-D SIG5D_FFTW -lfftw3]
#include "sig5d.h"
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>
#ifdef SIG5D_FFTW
#include <fftw3.h>
#endif

namespace {

constexpr int rounds = 15;

double seconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Independent chains of products and sums, as many as the registers hold: what a kernel without fused operations can
// reach. `bytes` is the width of a vector.
template <int bytes>
struct Chains {
    typedef double V __attribute__((vector_size(bytes)));
    template <int products, int sums>
    [[gnu::always_inline]] static double run(long n)
    {
        V m[products], a[sums], c = V{} + 0.9999999;
#pragma GCC unroll 16
        for (int j = 0; j < products; ++j) m[j] = V{} + (1.0 + j);
#pragma GCC unroll 16
        for (int j = 0; j < sums; ++j) a[j] = V{} + (1.0 + j);
        for (long i = 0; i < n; ++i) {
#pragma GCC unroll 16
            for (int j = 0; j < (products > sums ? products : sums); ++j) {
                if (j < products) m[j] = m[j] * c;
                if (j < sums) a[j] = a[j] + c;
            }
            asm volatile("");
        }
        double sum = 0;
#pragma GCC unroll 16
        for (int j = 0; j < products; ++j) sum += m[j][0];
#pragma GCC unroll 16
        for (int j = 0; j < sums; ++j) sum += a[j][0];
        return sum;
    }
};
constexpr long chainSteps = 100000;
#ifdef __x86_64__
constexpr int chainProducts = 8, chainSums = 6;
#else
constexpr int chainProducts = 3, chainSums = 4;
#endif
volatile double sink;
[[gnu::target("avx"), gnu::noinline]] void chains32()
{
    sink = Chains<32>::run<chainProducts, chainSums>(chainSteps);
}
[[gnu::noinline]] void chains16() { sink = Chains<16>::run<chainProducts, chainSums>(chainSteps); }
[[gnu::noinline]] void chains8()
{
    double m[4] = {1, 2, 3, 4}, a[3] = {1, 2, 3};
    for (long i = 0; i < chainSteps; ++i) {
#pragma GCC unroll 4
        for (int j = 0; j < 4; ++j) {
            m[j] *= 0.9999999;
            if (j < 3) a[j] += 0.9999999;
            asm("" : "+x"(m[j]));
        }
    }
    sink = m[0] + m[1] + m[2] + m[3] + a[0] + a[1] + a[2];
}

// A chain of dependent integer products of three cycles each: the core clock.
[[gnu::noinline]] void clockChain()
{
    int x = 3;
    for (int i = 0; i < 50000; ++i) asm volatile("imul %0,%0\n\timul %0,%0\n\timul %0,%0\n\timul %0,%0" : "+r"(x));
}

double time(const std::function<void()>& work, int repeats)
{
    work();
    const double start = seconds();
    for (int i = 0; i < repeats; ++i) work();
    return (seconds() - start) / repeats;
}

struct Variant {
    const char* code;
    Ipp64u features;
    void (*chains)();
    int chainFlops;
};
const int chainOps = (chainProducts + chainSums) * static_cast<int>(chainSteps);
const Variant variants[] = {{"px", 0x3, chains8, 7 * static_cast<int>(chainSteps)},
                            {"w7", 0x7, chains16, 2 * chainOps},
                            {"p8", 0xDF, chains16, 2 * chainOps},
                            {"g9", 0x1DF, chains32, 4 * chainOps},
                            {"h9", 0x81DF, chains32, 4 * chainOps}};

double median(std::vector<double> v)
{
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
}

struct Competitor {
    const char* name;
    std::function<void()> work;
};

// A line: for each variant the share of its peak and the cycles per output; then the peers' cycles per output.
void report(const char* title, const std::function<void()>& work, double outputs, double flops,
            const std::vector<Competitor>& peers = {})
{
    const int repeats = std::max(2, static_cast<int>(2e6 / flops));
    const size_t own = std::size(variants), all = own + peers.size();
    std::vector<std::vector<double>> share(all), cycles(all);
    for (int round = 0; round < rounds; ++round) {
        for (size_t i = 0; i < all; ++i) {
            const Variant& v = variants[std::min(i, own - 1)];
            ippSetCpuFeatures(v.features | Ipp64u(1) << 63);
            const double t = time(i < own ? work : peers[i - own].work, repeats);
            const double peak = v.chainFlops / time(v.chains, 3);
            share[i].push_back(flops / t / peak);
            cycles[i].push_back(t / outputs * (600000.0 / time(clockChain, 3)));
        }
    }
    std::printf("%-34s", title);
    for (size_t i = 0; i < all; ++i) {
        std::printf("  %s %3.0f%% %6.2f", i < own ? variants[i].code : peers[i - own].name, 100 * median(share[i]),
                    median(cycles[i]));
    }
    std::printf("\n");
    std::fflush(stdout);
}

std::vector<double> noise(size_t n)
{
    std::vector<double> v(n);
    for (double& x : v) x = std::rand() / double(RAND_MAX) - 0.5;
    return v;
}

template <class T>
struct Calls;
template <>
struct Calls<Ipp64f> {
    using Spec = IppsFIRSpec_64f;
    static constexpr int type = 19, flops = 2;
    static constexpr auto init = ippsFIRSRInit_64f;
    static constexpr auto run = ippsFIRSR_64f;
    static constexpr auto multiInit = ippsFIRMRInit_64f;
    static constexpr auto multiRun = ippsFIRMR_64f;
};
template <>
struct Calls<Ipp64fc> {
    using Spec = IppsFIRSpec_64fc;
    static constexpr int type = 20, flops = 8;
    static constexpr auto init = ippsFIRSRInit_64fc;
    static constexpr auto run = ippsFIRSR_64fc;
    static constexpr auto multiInit = ippsFIRMRInit_64fc;
    static constexpr auto multiRun = ippsFIRMR_64fc;
};

template <class T>
T* as(std::vector<double>& v)
{
    return reinterpret_cast<T*>(v.data());
}

template <class T>
void singleRate(int taps, int n, int algType, double flops, const std::vector<Competitor>& peers = {})
{
    using C = Calls<T>;
    int specSize, bufSize;
    ippsFIRSRGetSize(taps, C::type, &specSize, &bufSize);
    std::vector<char> block(specSize);
    std::vector<Ipp8u> work(bufSize);
    std::vector<double> h = noise(2 * taps), x = noise(2 * n), y(2 * n), d = noise(2 * taps);
    auto* spec = reinterpret_cast<typename C::Spec*>(block.data());
    C::init(as<T>(h), taps, algType, spec);
    char title[80];
    std::snprintf(title, sizeof title, "%s %s %d taps, %d", algType == 1 ? "direct" : "by FFT",
                  sizeof(T) == 8 ? "real" : "complex", taps, n);
    report(
        title, [&] { C::run(as<T>(x), as<T>(y), n, spec, as<T>(d), as<T>(d), work.data()); }, n, flops, peers);
}

template <class T>
void multiRate(int up, int down, int taps, int iterations)
{
    using C = Calls<T>;
    int specSize, bufSize;
    ippsFIRMRGetSize(taps, up, down, C::type, &specSize, &bufSize);
    std::vector<char> block(specSize);
    std::vector<Ipp8u> work(bufSize);
    const int n = iterations * up;
    std::vector<double> h = noise(2 * taps), x = noise(2 * iterations * down), y(2 * n), d = noise(2 * taps + 2);
    auto* spec = reinterpret_cast<typename C::Spec*>(block.data());
    C::multiInit(as<T>(h), taps, up, 0, down, 0, spec);
    char title[80];
    std::snprintf(title, sizeof title, "%d/%d %s %d taps, %d", up, down, sizeof(T) == 8 ? "real" : "complex", taps, n);
    report(
        title, [&] { C::multiRun(as<T>(x), as<T>(y), iterations, spec, as<T>(d), as<T>(d), work.data()); }, n,
        double(C::flops) * taps / up * n);
}

#ifdef SIG5D_FFTW
// Overlap-save with blocks of N: transform, product, inverse transform.
struct FftwOverlapSave {
    int taps, n, size;
    double *block, *spectrum, *h;
    fftw_plan forward, inverse;
    std::vector<double> x, y;

    FftwOverlapSave(int taps, int n, int size) : taps(taps), n(n), size(size), x(noise(n + taps + 2 * size)), y(n)
    {
        block = fftw_alloc_real(size);
        spectrum = fftw_alloc_real(size + 2);
        h = fftw_alloc_real(size + 2);
        forward = fftw_plan_dft_r2c_1d(size, block, reinterpret_cast<fftw_complex*>(spectrum), FFTW_PATIENT);
        inverse = fftw_plan_dft_c2r_1d(size, reinterpret_cast<fftw_complex*>(spectrum), block, FFTW_PATIENT);
        std::memset(block, 0, size * sizeof(double));
        for (int i = 0; i < taps; ++i) block[i] = 1.0 / (i + 1) / size;
        fftw_execute(forward);
        std::memcpy(h, spectrum, (size + 2) * sizeof(double));
    }
    void run()
    {
        const int advance = size - taps + 1;
        for (int i = 0; i < n; i += advance) {
            std::memcpy(block, x.data() + i, size * sizeof(double));
            fftw_execute(forward);
#pragma GCC ivdep
            for (int k = 0; k <= size; k += 2) {
                const double re = spectrum[k] * h[k] - spectrum[k + 1] * h[k + 1];
                spectrum[k + 1] = spectrum[k] * h[k + 1] + spectrum[k + 1] * h[k];
                spectrum[k] = re;
            }
            fftw_execute(inverse);
            std::memcpy(y.data() + i, block + taps - 1, std::min(advance, n - i) * sizeof(double));
        }
    }
};
#endif

// The operations of overlap-save by real transforms of N values, at 2.5 N log2 N each way.
double fftFlops(int taps, int n)
{
    const double size = std::exp2(std::floor(std::log2(taps)) + 2);
    return n / (size - taps + 1) * (5 * size * std::log2(size) + 3 * size);
}

void byFft(int taps, int n)
{
    std::vector<Competitor> peers;
#ifdef SIG5D_FFTW
    static std::vector<FftwOverlapSave*> kept;
    static const char* names[] = {"FFTW 2T", "FFTW 4T", "FFTW 8T"};
    for (int i = 0; i < 3; ++i) {
        auto* peer = new FftwOverlapSave(taps, n, taps << (i + 1));
        kept.push_back(peer);
        peers.push_back({names[i], [peer] { peer->run(); }});
    }
#endif
    singleRate<Ipp64f>(taps, n, 2, fftFlops(taps, n), peers);
}

} // namespace

int main(int argc, char** argv)
{
    const auto wanted = [&](const char* part) { return argc < 2 || std::strstr(argv[1], part); };
    if (wanted("direct")) {
        for (int taps : {16, 64, 256}) singleRate<Ipp64f>(taps, 4096, 1, 2.0 * taps * 4096);
        for (int taps : {16, 64, 256}) singleRate<Ipp64fc>(taps, 2048, 1, 8.0 * taps * 2048);
    }
    if (wanted("short")) {
        for (int n : {1, 4, 16, 64}) singleRate<Ipp64f>(32, n, 1, 2.0 * 32 * n);
    }
    if (wanted("multi")) {
        multiRate<Ipp64f>(3, 2, 48, 1365);
        multiRate<Ipp64f>(1, 4, 64, 1024);
        multiRate<Ipp64f>(4, 1, 64, 1024);
        multiRate<Ipp64f>(160, 147, 3840, 25);
        multiRate<Ipp64f>(147, 160, 3840, 27);
        multiRate<Ipp64f>(1, 2, 32, 2048);
        multiRate<Ipp64f>(2, 1, 32, 2048);
        multiRate<Ipp64fc>(3, 2, 48, 1365);
        multiRate<Ipp64fc>(1, 4, 64, 1024);
        multiRate<Ipp64fc>(4, 1, 64, 1024);
    }
    if (wanted("fft")) {
        byFft(1024, 4096);
        byFft(1024, 65536);
    }
}

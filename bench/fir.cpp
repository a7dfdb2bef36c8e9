// FIR filters: direct, by Fourier transform, multi-rate.
#include "case.h"
#include "fir_peers.h"
#include <cmath>
#include <memory>

namespace {

using bench::Setup;

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    using Spec = IppsFIRSpec_64f;
    static constexpr int type = 19, flops = 2;
    static constexpr const char *single = "ippsFIRSR_64f", *multi = "ippsFIRMR_64f";
    static constexpr auto init = ippsFIRSRInit_64f;
    static constexpr auto run = ippsFIRSR_64f;
    static constexpr auto multiInit = ippsFIRMRInit_64f;
    static constexpr auto multiRun = ippsFIRMR_64f;
};
template <> struct Calls<Ipp64fc> {
    using Spec = IppsFIRSpec_64fc;
    static constexpr int type = 20, flops = 8;
    static constexpr const char *single = "ippsFIRSR_64fc", *multi = "ippsFIRMR_64fc";
    static constexpr auto init = ippsFIRSRInit_64fc;
    static constexpr auto run = ippsFIRSR_64fc;
    static constexpr auto multiInit = ippsFIRMRInit_64fc;
    static constexpr auto multiRun = ippsFIRMR_64fc;
};

// Taps as the cases and their peers use them.
template <class T> std::shared_ptr<std::vector<double>> tapsOf(int n)
{
    auto taps = std::make_shared<std::vector<double>>(bench::firTaps(n * static_cast<int>(sizeof(T) / sizeof(double))));
    return taps;
}

// The operations of overlap-save by real transforms of N values, at 2.5 N log2 N each way; complex ones take twice
// that.
double transformFlops(int taps, int n)
{
    const double size = std::exp2(std::floor(std::log2(taps)) + 2);
    return n / (size - taps + 1) * (5 * size * std::log2(size) + 3 * size);
}

template <class T> void single(int taps, int algType, std::vector<bench::Size> sizes)
{
    using C = Calls<T>;
    const std::string name =
        std::string(C::single) + " " + std::to_string(taps) + " taps" + (algType == 2 ? " by FFT" : "");
    bench::addCase(name, std::move(sizes), [=](Setup& s) {
        const int n = static_cast<int>(s.size);
        const T* x = s.input<T>(static_cast<size_t>(n));
        T* y = s.output<T>(static_cast<size_t>(n));
        int specSize, bufSize;
        ippsFIRSRGetSize(taps, C::type, &specSize, &bufSize);
        auto* spec = reinterpret_cast<typename C::Spec*>(s.scratch(static_cast<size_t>(specSize)));
        Ipp8u* work = s.scratch(static_cast<size_t>(bufSize));
        T* delay = reinterpret_cast<T*>(s.scratch(sizeof(T) * static_cast<size_t>(taps)));
        for (int i = 0; i < taps; ++i) delay[i] = {};
        C::init(reinterpret_cast<const T*>(tapsOf<T>(taps)->data()), taps, algType, spec);
        s.elements = n;
        s.flops = algType == 2 ? sizeof(T) / sizeof(double) * transformFlops(taps, n) : double(C::flops) * taps * n;
        s.run([=] { C::run(x, y, n, spec, delay, delay, work); });
    });
}

// Elements are outputs; of the taps a share of 1/up meets an input.
template <class T> void multi(int up, int down, int taps, long long outputs)
{
    using C = Calls<T>;
    const std::string name = std::string(C::multi) + " " + std::to_string(up) + "/" + std::to_string(down) + " " +
                             std::to_string(taps) + " taps";
    bench::addCase(name, {outputs}, [=](Setup& s) {
        const int iterations = static_cast<int>(s.size) / up, n = iterations * up;
        const T* x = s.input<T>(static_cast<size_t>(iterations * down));
        T* y = s.output<T>(static_cast<size_t>(n));
        int specSize, bufSize;
        ippsFIRMRGetSize(taps, up, down, C::type, &specSize, &bufSize);
        auto* spec = reinterpret_cast<typename C::Spec*>(s.scratch(static_cast<size_t>(specSize)));
        Ipp8u* work = s.scratch(static_cast<size_t>(bufSize));
        T* delay = reinterpret_cast<T*>(s.scratch(sizeof(T) * static_cast<size_t>(taps + 1)));
        for (int i = 0; i <= taps; ++i) delay[i] = {};
        C::multiInit(reinterpret_cast<const T*>(tapsOf<T>(taps)->data()), taps, up, 0, down, 0, spec);
        s.elements = n;
        s.flops = double(C::flops) * taps / up * n;
        s.run([=] { C::multiRun(x, y, iterations, spec, delay, delay, work); });
        if constexpr (sizeof(T) == sizeof(double))
            s.peer("polyphase",
                   [peer = bench::Polyphase(up, down, taps, iterations), x, y]() mutable { peer.run(x, y); });
    });
}

const bench::Cases fir([] {
    for (int taps : {16, 64, 256}) single<Ipp64f>(taps, 1, {{1, bench::Level::tiny}, 1024, 4096});
    for (int taps : {16, 64, 256}) single<Ipp64fc>(taps, 1, {512});
    single<Ipp64f>(1024, 2, {4096, 65536});
    single<Ipp64fc>(1024, 2, {4096});
    multi<Ipp64f>(3, 2, 48, 1365);
    multi<Ipp64f>(1, 4, 64, 512);
    multi<Ipp64f>(4, 1, 64, 2048);
    multi<Ipp64f>(1, 2, 32, 1024);
    multi<Ipp64f>(2, 1, 32, 2048);
    multi<Ipp64f>(160, 147, 3840, 1600);
    multi<Ipp64f>(147, 160, 3840, 1470);
    multi<Ipp64fc>(3, 2, 48, 681);
    multi<Ipp64fc>(4, 1, 64, 1024);
});

} // namespace

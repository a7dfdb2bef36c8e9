// IIR filters: of any order, and cascades of sections. What binds is the recurrence: the operations from one output to
// the next.
#include "case.h"

namespace {

using bench::Setup;

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    using State = IppsIIRState_64f;
    static constexpr int flops = 2;
    static constexpr const char* name = "ippsIIR_64f";
    static constexpr auto size = ippsIIRGetStateSize_64f, cascadeSize = ippsIIRGetStateSize_BiQuad_64f;
    static constexpr auto init = ippsIIRInit_64f, cascadeInit = ippsIIRInit_BiQuad_64f;
    static constexpr auto run = ippsIIR_64f;
};
template <> struct Calls<Ipp64fc> {
    using State = IppsIIRState_64fc;
    static constexpr int flops = 8;
    static constexpr const char* name = "ippsIIR_64fc";
    static constexpr auto size = ippsIIRGetStateSize_64fc, cascadeSize = ippsIIRGetStateSize_BiQuad_64fc;
    static constexpr auto init = ippsIIRInit_64fc, cascadeInit = ippsIIRInit_BiQuad_64fc;
    static constexpr auto run = ippsIIR_64fc;
};

void set(double& x, double re) { x = re; }
void set(Ipp64fc& x, double re) { x = {re, 0.1 * re}; }

template <class T> void addFilter(Setup& s, typename Calls<T>::State* state, int products)
{
    const int n = static_cast<int>(s.size);
    const T* x = s.input<T>(static_cast<size_t>(n));
    T* y = s.output<T>(static_cast<size_t>(n));
    s.elements = n;
    s.flops = double(Calls<T>::flops) * products * n;
    s.chain.times = n;
    s.run([=] { Calls<T>::run(x, y, n, state); });
}

// A product, a difference, a sum; from order 2 on one sum more; complex products are sums of two.
template <class T> void filter(int order, std::vector<bench::Size> sizes)
{
    using C = Calls<T>;
    bench::addCase(std::string(C::name) + " order " + std::to_string(order), std::move(sizes), [=](Setup& s) {
        int bytes = 0;
        C::size(order, &bytes);
        std::vector<T> taps(2 * static_cast<size_t>(order) + 2);
        for (size_t i = 0; i < taps.size(); ++i) set(taps[i], 0.25 - 0.01 * static_cast<double>(i % 13));
        set(taps[static_cast<size_t>(order) + 1], order + 1);
        typename C::State* state = nullptr;
        C::init(&state, taps.data(), order, nullptr, s.scratch(static_cast<size_t>(bytes)));
        s.chain.multiplications = 1;
        s.chain.additions = (order == 1 ? 2 : 3) + (sizeof(T) > sizeof(double));
        addFilter<T>(s, state, 2 * order + 1);
    });
}

// Sections by definition, one sample after the other: what a compiler makes of it.
struct Plain {
    std::vector<double> taps, d;
    void run(const double* x, double* y, int n)
    {
        for (int i = 0; i < n; ++i) {
            double v = x[i];
            for (size_t s = 0; s < d.size() / 2; ++s) {
                const double *t = &taps[5 * s], in = v;
                v = t[0] * in + d[2 * s];
                d[2 * s] = t[1] * in + d[2 * s + 1] - t[3] * v;
                d[2 * s + 1] = t[2] * in - t[4] * v;
            }
            y[i] = v;
        }
    }
};

template <class T> void cascade(int sections, std::vector<bench::Size> sizes)
{
    using C = Calls<T>;
    const std::string name = std::string(C::name) + " " + std::to_string(sections) + " sections";
    bench::addCase(name, std::move(sizes), [=](Setup& s) {
        int bytes = 0;
        C::cascadeSize(sections, &bytes);
        std::vector<T> taps;
        Plain plain;
        for (int i = 0; i < sections; ++i)
            for (const double tap : {0.9, 0.4, 0.2, 1.0, -0.3 + 0.01 * i, 0.2}) {
                set(taps.emplace_back(), tap);
                if (taps.size() % 6 != 4) plain.taps.push_back(tap);
            }
        plain.d.resize(2 * static_cast<size_t>(sections));
        typename C::State* state = nullptr;
        C::cascadeInit(&state, taps.data(), sections, nullptr, s.scratch(static_cast<size_t>(bytes)));
        s.chain.multiplications = 1;
        s.chain.additions = 2 + (sizeof(T) > sizeof(double));
        addFilter<T>(s, state, 5 * sections);
        if constexpr (sizeof(T) == sizeof(double)) {
            const auto& arrays = s.memory().arrays();
            const auto* x = reinterpret_cast<const double*>(arrays[0].data);
            auto* y = reinterpret_cast<double*>(arrays[1].data);
            s.peer("loop", [=, n = static_cast<int>(s.size)]() mutable { plain.run(x, y, n); });
        }
    });
}

const bench::Cases iir([] {
    for (int order : {1, 2, 3, 4, 6, 8, 12, 16, 32, 64, 256}) filter<Ipp64f>(order, {1024});
    for (int order : {1, 2, 4, 8, 16}) filter<Ipp64fc>(order, {512});
    cascade<Ipp64f>(1, {{1, bench::Level::tiny}, 1024});
    for (int sections : {2, 3, 4, 6, 12, 16, 32}) cascade<Ipp64f>(sections, {1024});
    cascade<Ipp64f>(8, {{1, bench::Level::tiny}, {64, bench::Level::tiny}, 1024, 16384});
    for (int sections : {1, 2, 4, 8, 16}) cascade<Ipp64fc>(sections, {512});
});

} // namespace

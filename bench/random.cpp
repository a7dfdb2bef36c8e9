// Random numbers, against the same generator written as it is defined, with the platform's logarithm.
#include "case.h"
#include <cmath>
#include <cstring>

namespace {

using bench::Setup;

struct Draws {
    uint32_t lcg = 0x436CBAE9, s1 = 1, s2 = 69069 + 1013904243u, s3 = 69069 * s2 + 1013904243, borrow = ~0u;
    int32_t next()
    {
        lcg = 69069 * lcg + 1013904243;
        uint32_t t = s2 - s3 + borrow;
        borrow = t >> 31 ? ~0u : 0;
        t -= borrow & 18;
        s3 = s2;
        s2 = s1;
        s1 = t;
        return static_cast<int32_t>(t + lcg);
    }
};

void uniformPeer(Draws& draws, double* d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = draws.next() * 0x1p-32 + 0.5;
}
void normalPeer(Draws& draws, double* d, int n)
{
    for (int i = 0; i + 1 < n; i += 2) {
        double u1, u2, s;
        do {
            u1 = draws.next() * 0x1p-31;
            u2 = draws.next() * 0x1p-31;
            s = u1 * u1 + u2 * u2;
        } while (s >= 1 || s == 0);
        const double f = std::sqrt(-2 * std::log(s) / s);
        d[i] = u2 * f;
        d[i + 1] = u1 * f;
    }
}

// The state of the 64f normal numbers, which no export makes.
void normalState(uint8_t* state)
{
    const Draws draws;
    const uint32_t head[] = {0x2A, draws.s1}, core[] = {draws.lcg, draws.s1, draws.s2, draws.s3, draws.borrow, 1};
    const double parameters[] = {0, 1};
    std::memset(state, 0, 80);
    std::memcpy(state, head, sizeof head);
    std::memcpy(state + 8, parameters, sizeof parameters);
    std::memcpy(state + 24, core, sizeof core);
}

const std::vector<bench::Size> sizes = {{1, bench::Level::tiny}, {16, bench::Level::tiny}, 1024, 32768};

template <class T, class State>
void uniformCase(const char* name, IppStatus(SIG5D_STDCALL* init)(State*, T, T, unsigned),
                 IppStatus(SIG5D_STDCALL* run)(T*, int, State*), T low, T high)
{
    bench::addCase(name, sizes, [=](Setup& s) {
        const int n = static_cast<int>(s.size);
        T* const d = s.output<T>(static_cast<size_t>(n));
        auto* const state = reinterpret_cast<State*>(s.scratch(64));
        init(state, low, high, 1);
        s.elements = n;
        s.run([=] { run(d, n, state); });
        if constexpr (sizeof(T) == sizeof(double))
            s.peer("as defined", [=, draws = Draws{}]() mutable { uniformPeer(draws, d, n); });
    });
}
template <class T, class State>
void normalCase(const char* name, IppStatus(SIG5D_STDCALL* run)(T*, int, State*), void (*init)(uint8_t*))
{
    bench::addCase(name, sizes, [=](Setup& s) {
        const int n = static_cast<int>(s.size);
        T* const d = s.output<T>(static_cast<size_t>(n));
        auto* const state = s.scratch(80);
        init(state);
        s.elements = n;
        s.run([=] { run(d, n, reinterpret_cast<State*>(state)); });
        if constexpr (sizeof(T) == sizeof(double))
            s.peer("as defined", [=, draws = Draws{}]() mutable { normalPeer(draws, d, n); });
    });
}

const bench::Cases random([] {
    uniformCase<double>("ippsRandUniform_64f", ippsRandUniformInit_64f, ippsRandUniform_64f, 0, 1);
    uniformCase<Ipp16s>("ippsRandUniform_16s", ippsRandUniformInit_16s, ippsRandUniform_16s, -100, 100);
    uniformCase<Ipp8u>("ippsRandUniform_8u", ippsRandUniformInit_8u, ippsRandUniform_8u, 0, 200);
    normalCase("ippsRandGauss_64f", ippsRandGauss_64f, normalState);
    normalCase("ippsRandGauss_16s", ippsRandGauss_16s, [](uint8_t* state) {
        ippsRandGaussInit_16s(reinterpret_cast<IppsRandGaussState_16s*>(state), 0, 100, 1);
    });
    normalCase("ippsRandGauss_8u", ippsRandGauss_8u, [](uint8_t* state) {
        ippsRandGaussInit_8u(reinterpret_cast<IppsRandGaussState_8u*>(state), 100, 20, 1);
    });
});

} // namespace

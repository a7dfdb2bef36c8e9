// Integer divisions, whose divisors must not be zero, against the processor's division.
#include "case.h"

namespace {

using bench::addCase;
using bench::Setup;

const std::vector<bench::Size> sizes = {16, 1000, 32768};

template <class T> void fill(T* x, size_t n, unsigned seed)
{
    for (size_t i = 0; i < n; ++i) {
        seed = seed * 1664525 + 1013904223;
        x[i] = static_cast<T>(static_cast<int32_t>(seed) >> seed % 8);
        if (x[i] == 0) x[i] = 3;
    }
}

template <class T> using OfValue = void(SIG5D_CDECL*)(const T*, T, T*, unsigned);
template <class T> using Both = void(SIG5D_CDECL*)(const T*, int, T*, int, T*, int, T, unsigned);
template <class T> using ByArray = void(SIG5D_CDECL*)(const T*, int, T*, int, T*, int, const T*, int, unsigned);

template <class T> void remainders(Setup& s, OfValue<T> f)
{
    const unsigned n = static_cast<unsigned>(s.size);
    T *a = s.input<T>(n), *d = s.output<T>(n);
    fill(a, n, 1);
    volatile T known = 97; // for the compiler it is any value
    const T value = known;
    s.elements = n;
    s.run([=] { f(a, value, d, n); });
    s.peer("divide", [=] {
        for (unsigned i = 0; i < n; ++i) d[i] = static_cast<T>(a[i] % value);
    });
}
template <class T> void ofValue(Setup& s, OfValue<T> f)
{
    const unsigned n = static_cast<unsigned>(s.size);
    T *a = s.input<T>(n), *d = s.output<T>(n);
    fill(a, n, 1);
    s.elements = n;
    s.run([=] { f(a, 101, d, n); });
    s.peer("divide", [=] {
        for (unsigned i = 0; i < n; ++i) d[i] = static_cast<T>(101 / a[i]);
    });
}
template <class T> void both(Setup& s, Both<T> f)
{
    const unsigned n = static_cast<unsigned>(s.size);
    T *a = s.input<T>(n), *q = s.output<T>(n), *r = s.output<T>(n);
    fill(a, n, 1);
    volatile T known = 97;
    const T value = known;
    s.elements = n;
    s.run([=] { f(a, 0, q, 0, r, 0, value, n); });
    s.peer("divide", [=] {
        for (unsigned i = 0; i < n; ++i) {
            const T x = a[i];
            q[i] = static_cast<T>(x / value);
            r[i] = static_cast<T>(x % value);
        }
    });
}
template <class T> void byArray(Setup& s, ByArray<T> f)
{
    const unsigned n = static_cast<unsigned>(s.size);
    T *a = s.input<T>(n), *b = s.input<T>(n), *q = s.output<T>(n), *r = s.output<T>(n);
    fill(a, n, 1);
    fill(b, n, 2);
    s.elements = n;
    s.run([=] { f(a, 0, q, 0, r, 0, b, 0, n); });
    s.peer("divide", [=] {
        for (unsigned i = 0; i < n; ++i) {
            const T x = a[i], y = b[i];
            q[i] = static_cast<T>(x / y);
            r[i] = static_cast<T>(x % y);
        }
    });
}

const bench::Cases division([] {
    addCase("DivC_32s_SFS", sizes, [](Setup& s) { remainders<Ipp32s>(s, DivC_32s_SFS); });
    addCase("ModC_32s_SFS", sizes, [](Setup& s) { remainders<Ipp32s>(s, ModC_32s_SFS); });
    addCase("ModC_16s_SFS", sizes, [](Setup& s) { remainders<Ipp16s>(s, ModC_16s_SFS); });
    addCase("ModC_8u_SFS", sizes, [](Setup& s) { remainders<Ipp8u>(s, ModC_8u_SFS); });
    addCase("RemDivC_32s_SFS_Idx", sizes, [](Setup& s) { both<Ipp32s>(s, RemDivC_32s_SFS_Idx); });
    addCase("RemDivC_16s_SFS_Idx", sizes, [](Setup& s) { both<Ipp16s>(s, RemDivC_16s_SFS_Idx); });
    addCase("RemDivC_8u_SFS_Idx", sizes, [](Setup& s) { both<Ipp8u>(s, RemDivC_8u_SFS_Idx); });
    addCase("DivCREV_32s_SFS", sizes, [](Setup& s) { ofValue<Ipp32s>(s, DivCREV_32s_SFS); });
    addCase("DivCREV_16s_SFS", sizes, [](Setup& s) { ofValue<Ipp16s>(s, DivCREV_16s_SFS); });
    addCase("DivCREV_8u_SFS", sizes, [](Setup& s) { ofValue<Ipp8u>(s, DivCREV_8u_SFS); });
    addCase("RemDiv_32s_SFS_Idx", sizes, [](Setup& s) { byArray<Ipp32s>(s, RemDiv_32s_SFS_Idx); });
    addCase("RemDiv_16s_SFS_Idx", sizes, [](Setup& s) { byArray<Ipp16s>(s, RemDiv_16s_SFS_Idx); });
    addCase("RemDiv_8u_SFS_Idx", sizes, [](Setup& s) { byArray<Ipp8u>(s, RemDiv_8u_SFS_Idx); });
});

} // namespace

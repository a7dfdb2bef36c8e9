// Quotients and remainders, two results of one pass, with streaming stores: where both can be aligned at once, and
// where only one can.
#include "kernel/streaming.h"
#include "sig5d.h"
#include "support/bytes.h"

namespace {

using DivisionStream = support::Streaming;

constexpr size_t most = 300, margin = 80;

// run(a, b, quotients, remainders, n) divides what the arrays hold.
template <class T, class Run, class Expected> void expectBoth(Run run, Expected divided)
{
    std::vector<T> a, b;
    for (unsigned char x : support::noise(most)) a.push_back(static_cast<T>(x * 1103515245u + 12345u));
    for (unsigned char x : support::noise(most, 2)) b.push_back(static_cast<T>(x % 23 + 2));
    for (size_t n = 1; n <= most; n += n < 70 ? 1 : 23)
        for (size_t q = 0; q < 40; q += 3)
            for (size_t r : {q, q + 1, q + 32 / sizeof(T)}) {
                std::vector<T> quotients(most + margin, T(77)), remainders = quotients, before = quotients;
                std::vector<T> expectedQ = before, expectedR = before;
                for (size_t i = 0; i < n; ++i) {
                    const auto [x, y] = divided(a[i], b[i]);
                    expectedQ[q + i] = static_cast<T>(x / y);
                    expectedR[r + i] = static_cast<T>(x % y);
                }
                run(a.data(), b.data(), &quotients[q], &remainders[r], static_cast<unsigned>(n));
                ASSERT_EQ(quotients, expectedQ) << n << ' ' << q << ' ' << r;
                ASSERT_EQ(remainders, expectedR) << n << ' ' << q << ' ' << r;
            }
}

template <class T> using ByArray = void(SIG5D_CDECL*)(const T*, int, T*, int, T*, int, const T*, int, unsigned);
template <class T, class V> using ByValue = void(SIG5D_CDECL*)(const T*, int, T*, int, T*, int, V, unsigned);

template <class T, class V> void allKinds(ByArray<T> arrays, ByValue<T, V> byValue, ByValue<T, V> ofValue)
{
    using Pair = std::pair<long long, long long>;
    expectBoth<T>([&](const T* a, const T* b, T* q, T* r, unsigned n) { arrays(a, 0, q, 0, r, 0, b, 0, n); },
                  [](T x, T y) { return Pair(x, y); });
    expectBoth<T>([&](const T* a, const T*, T* q, T* r, unsigned n) { byValue(a, 0, q, 0, r, 0, 7, n); },
                  [](T x, T) { return Pair(x, 7); });
    expectBoth<T>([&](const T*, const T* b, T* q, T* r, unsigned n) { ofValue(b, 0, q, 0, r, 0, 119, n); },
                  [](T, T y) { return Pair(119, y); });
}

} // namespace

TEST_P(DivisionStream, QuotientsAndRemainders)
{
    allKinds<Ipp32s>(RemDiv_32s_SFS_Idx, RemDivC_32s_SFS_Idx, RemDivCREV_32s_SFS_Idx);
    allKinds<Ipp16s>(RemDiv_16s_SFS_Idx, RemDivC_16s_SFS_Idx, RemDivCREV_16s_SFS_Idx);
    allKinds<Ipp8u>(RemDiv_8u_SFS_Idx, RemDivC_8u_SFS_Idx, RemDivCREV_8u_SFS_Idx);
}

INSTANTIATE_TEST_SUITE_P(Variants, DivisionStream, support::streamingVariants(), testing::PrintToStringParamName());

// Masks of several densities, lists of positions, bins: arguments that have to fit together.
#include "case.h"
#include <cstdio>
#include <immintrin.h>

namespace {

using bench::addCase;
using bench::Setup;
using bench::Size;

const std::vector<Size> sizes = {1000, 32768}; // not so many that the processor learns the branches of 32768

// Steele's scrambled counter: the same numbers in every run.
struct Numbers {
    uint64_t state = 1;
    uint32_t operator()()
    {
        uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        return static_cast<uint32_t>((z ^ z >> 27) * 0x94D049BB133111EB >> 33);
    }
    bool of100(int share) { return (*this)() % 10000 < static_cast<uint32_t>(share) * 100; }
};

template <class T> void fill(T* x, size_t n, int below)
{
    Numbers next;
    for (size_t i = 0; i < n; ++i) x[i] = static_cast<T>(next() % static_cast<uint32_t>(below));
}
size_t fillMask(int* mask, size_t n, int share)
{
    Numbers next;
    size_t count = 0;
    for (size_t i = 0; i < n; ++i) count += static_cast<size_t>(mask[i] = next.of100(share));
    return count;
}

// Four doubles at a time by a table of permutations, each store overlapping the last: what a good engineer writes in an
// hour. May write three elements too many.
alignas(32) int permutations[16][8];
[[gnu::target("avx2,popcnt")]] unsigned packByTable(unsigned n, const double* a, double* d, const int* mask)
{
    double* const first = d;
    const __m128i zero = _mm_setzero_si128();
    for (unsigned k = 0; k + 4 <= n; k += 4) {
        const __m128i m = _mm_cmpgt_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(mask + k)), zero);
        const int bits = _mm_movemask_ps(_mm_castsi128_ps(m));
        const __m256i order = _mm256_load_si256(reinterpret_cast<const __m256i*>(permutations[bits]));
        const __m256i x = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + k));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d), _mm256_permutevar8x32_epi32(x, order));
        d += __builtin_popcount(static_cast<unsigned>(bits));
    }
    return static_cast<unsigned>(d - first);
}
[[gnu::target("avx2,popcnt")]] unsigned listByTable(unsigned n, const double* a, double value, int* d)
{
    int* const first = d;
    const __m256d limit = _mm256_set1_pd(value);
    __m128i base = _mm_setzero_si128();
    for (unsigned k = 0; k + 4 <= n; k += 4) {
        const int bits = _mm256_movemask_pd(_mm256_cmp_pd(_mm256_loadu_pd(a + k), limit, _CMP_LT_OQ));
        const __m256i pairs = _mm256_load_si256(reinterpret_cast<const __m256i*>(permutations[bits]));
        const __m128i low = _mm256_castsi256_si128(pairs), high = _mm256_extracti128_si256(pairs, 1);
        const __m128 even = _mm_shuffle_ps(_mm_castsi128_ps(low), _mm_castsi128_ps(high), 0x88);
        const __m128i numbers = _mm_srli_epi32(_mm_castps_si128(even), 1);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_add_epi32(numbers, base));
        base = _mm_add_epi32(base, _mm_set1_epi32(4));
        d += __builtin_popcount(static_cast<unsigned>(bits));
    }
    return static_cast<unsigned>(d - first);
}
bool prepareTables()
{
    for (int bits = 0; bits < 16; ++bits)
        for (int lane = 0, j = 0; lane < 4; ++lane)
            if (bits >> lane & 1) {
                permutations[bits][2 * j] = 2 * lane;
                permutations[bits][2 * j++ + 1] = 2 * lane + 1;
            }
    return __builtin_cpu_supports("avx2");
}

std::string named(const char* function, const char* what, int number)
{
    char name[80];
    std::snprintf(name, sizeof name, "%s %s%d", function, what, number);
    return name;
}

template <class T> void packs(const char* name, void (*pack)(unsigned, const T*, const int*, T*), int share)
{
    addCase(named(name, "", share) + "%", sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        const T* const x = s.input<T>(n);
        int* const mask = s.input<int>(n);
        T* const d = s.output<T>(fillMask(mask, n, share));
        s.elements = n;
        s.run([=] { pack(n, x, mask, d); });
    });
}
template <class T> void unpacks(const char* name, void (*unpack)(unsigned, const T*, T*, const int*), int share)
{
    addCase(named(name, "", share) + "%", sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        int* const mask = s.input<int>(n);
        const T* const x = s.input<T>(fillMask(mask, n, share));
        T* const d = s.inout<T>(n);
        s.elements = n;
        s.run([=] { unpack(n, x, d, mask); });
    });
}
template <class T, class F> void finds(const char* name, F find, int share)
{
    addCase(named(name, "", share) + "%", sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        T* const x = s.input<T>(n);
        fill(x, n, 200);
        const T value = static_cast<T>(2 * share);
        size_t count = 0;
        for (unsigned i = 0; i < n; ++i) count += x[i] < value;
        int* const list = s.output<int>(count + 4);
        s.elements = n;
        s.run([=] {
            unsigned found;
            find(0, x, 0, value, reinterpret_cast<unsigned*>(list), 0, n, &found);
        });
        if constexpr (sizeof(T) == sizeof(double))
            if (prepareTables()) s.peer("by table", [=] { (void)listByTable(n, x, value, list); });
    });
}
template <class T, class F, class F2> void masks(const char* nameC, const char* name, F findC, F2 find, unsigned code)
{
    addCase(named(nameC, "code ", static_cast<int>(code)), sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        T* const x = s.input<T>(n);
        fill(x, n, 200);
        int* const d = s.output<int>(n);
        s.elements = n;
        s.run([=] { findC(code, x, 0, 100, d, 0, n); });
    });
    addCase(named(name, "code ", static_cast<int>(code)), sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        T *const x = s.input<T>(n), *const y = s.input<T>(n);
        fill(x, n, 200);
        fill(y, n, 100);
        int* const d = s.output<int>(n);
        s.elements = n;
        s.run([=] { find(code, x, 0, y, 0, d, 0, n); });
    });
}

// Bins at random, or one of them half of the time.
void histograms(int bins, bool half)
{
    const std::string what = std::string(half ? "half of " : "") + std::to_string(bins);
    const auto number = [=](Numbers& next) {
        const auto b = static_cast<int>(next() % static_cast<uint32_t>(bins));
        return half && next.of100(50) ? bins / 2 : b;
    };
    addCase("HistoCount " + what, sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        int* const b = s.input<int>(n);
        int* const counts = s.inout<int>(static_cast<size_t>(bins));
        Numbers next;
        for (unsigned i = 0; i < n; ++i) b[i] = number(next);
        s.elements = n;
        s.run([=] { HistoCount(reinterpret_cast<unsigned*>(b), counts, n); });
    });
    for (const bool indexed : {false, true})
        addCase((indexed ? "HistoSum_Idx " : "HistoSum ") + what, sizes, [=](Setup& s) {
            const auto n = static_cast<unsigned>(s.size);
            int* const b = s.input<int>(n);
            const double* const x = s.input<double>(n);
            double* const sums = s.inout<double>(static_cast<size_t>(bins));
            Numbers next;
            for (unsigned i = 0; i < n; ++i) b[i] = number(next);
            s.elements = n;
            s.run([=] {
                const auto* const numbers = reinterpret_cast<unsigned*>(b);
                if (indexed)
                    HistoSum_Idx(numbers, 0, x, 0, sums, 0, n);
                else
                    HistoSum(numbers, x, sums, n);
            });
        });
    addCase("HistogramCount " + what, sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        double* const x = s.input<double>(n);
        int* const counts = s.inout<int>(static_cast<size_t>(bins));
        Numbers next;
        for (unsigned i = 0; i < n; ++i) x[i] = number(next) + 0.5;
        s.elements = n;
        s.run([=] { HistogramCount(x, 1, 0, counts, bins, n); });
    });
}

template <class T> void gathers(const char* name, void (*pack)(unsigned, const T*, const unsigned*, T*))
{
    addCase(std::string(name) + " random", sizes, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        const T* const x = s.input<T>(n);
        int* const index = s.input<int>(n);
        fill(index, n, static_cast<int>(n));
        T* const d = s.output<T>(n);
        s.elements = n;
        s.run([=] { pack(n, x, reinterpret_cast<unsigned*>(index), d); });
    });
}

// Bytes of which none is the least or the greatest there is, so that the search cannot end early.
template <class F> void searches(const char* name, F find)
{
    addCase(std::string(name) + " 1 to 254", {8192, 262144}, [=](Setup& s) {
        const auto n = static_cast<unsigned>(s.size);
        Ipp8u* const x = s.input<Ipp8u>(n);
        Numbers next;
        for (unsigned i = 0; i < n; ++i) x[i] = static_cast<Ipp8u>(1 + next() % 254);
        s.elements = n;
        s.run([=] { find(x, n); });
    });
}

const bench::Cases selections([] {
    searches("MaxMin_8u", [](const Ipp8u* x, unsigned n) {
        Ipp8u min, max;
        MaxMin_8u(x, n, &min, &max);
    });
    searches("MaxMinIndx_8u", [](const Ipp8u* x, unsigned n) {
        Ipp8u min, max;
        int minIndex, maxIndex;
        MaxMinIndx_8u(x, n, &min, &minIndex, &max, &maxIndex);
    });
    for (const int share : {0, 2, 10, 50, 90}) {
        addCase(named("PackByMask", "", share) + "%", sizes, [=](Setup& s) {
            const auto n = static_cast<unsigned>(s.size);
            const double* const x = s.input<double>(n);
            int* const mask = s.input<int>(n);
            double* const d = s.output<double>(fillMask(mask, n, share) + 4);
            s.elements = n;
            s.run([=] { PackByMask(n, x, d, mask); });
            if (prepareTables()) s.peer("by table", [=] { (void)packByTable(n, x, d, mask); });
        });
        packs("vdpackmc", vdpackmc, share);
        packs("vipackm", vipackm, share);
        packs("vspackm", vspackm, share);
        packs("vbpackm", vbpackm, share);
        unpacks("vdunpackmc", vdunpackmc, share);
        unpacks("viunpackm", viunpackm, share);
        unpacks("vsunpackm", vsunpackm, share);
        unpacks("vbunpackm", vbunpackm, share);
        finds<double>("FindIndexesC_64f_Idx", FindIndexesC_64f_Idx, share);
        finds<Ipp32s>("FindIndexesC_32s_Idx", FindIndexesC_32s_Idx, share);
        finds<Ipp16s>("FindIndexesC_16s_Idx", FindIndexesC_16s_Idx, share);
        finds<Ipp8u>("FindIndexesC_8u_Idx", FindIndexesC_8u_Idx, share);
    }
    for (const unsigned code : {0u, 4u}) {
        masks<double>("FindMaskC_64f_Idx", "FindMask_64f_Idx", FindMaskC_64f_Idx, FindMask_64f_Idx, code);
        masks<Ipp32s>("FindMaskC_32s_Idx", "FindMask_32s_Idx", FindMaskC_32s_Idx, FindMask_32s_Idx, code);
        masks<Ipp16s>("FindMaskC_16s_Idx", "FindMask_16s_Idx", FindMaskC_16s_Idx, FindMask_16s_Idx, code);
        masks<Ipp8u>("FindMaskC_8u_Idx", "FindMask_8u_Idx", FindMaskC_8u_Idx, FindMask_8u_Idx, code);
    }
    for (const int bins : {1, 10, 64, 1000}) histograms(bins, false);
    histograms(1000, true);
    gathers("vdpackvc", vdpackvc);
    gathers("vipackv", vipackv);
    gathers("vspackv", vspackv);
    gathers("vbpackv", vbpackv);
});

} // namespace

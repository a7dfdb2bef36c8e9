// Pack and unpack: the order in which shared elements move, what is never touched, and the counts.
#include "matrix/guarded.h"
#include <random>

using matrix_tests::Guarded;
using matrix_tests::inEveryVariant;

namespace {

std::mt19937 engine(3);
unsigned below(size_t n) { return static_cast<unsigned>(engine() % n); }

// The functions of one element type.
template <class T> struct Functions {
    using Element = T;
    void (*packi)(unsigned, const T*, unsigned, T*);
    void (*packv)(unsigned, const T*, const Ipp32u*, T*);
    void (*packm)(unsigned, const T*, const Ipp32s*, T*);
    void (*unpacki)(unsigned, const T*, T*, unsigned);
    void (*unpackv)(unsigned, const T*, T*, const Ipp32u*);
    void (*unpackm)(unsigned, const T*, T*, const Ipp32s*);
};

template <class Test> void forEveryType(Test test)
{
    test(Functions<Ipp8u>{vbpacki, vbpackv, vbpackm, vbunpacki, vbunpackv, vbunpackm});
    test(Functions<Ipp16s>{vspacki, vspackv, vspackm, vsunpacki, vsunpackv, vsunpackm});
    test(Functions<Ipp32s>{vipacki, vipackv, vipackm, viunpacki, viunpackv, viunpackm});
    test(Functions<Ipp64fc>{vdpackic, vdpackvc, vdpackmc, vdunpackic, vdunpackvc, vdunpackmc});
}

template <class T> std::vector<T> randomElements(size_t n)
{
    std::vector<T> x(n);
    for (size_t i = 0; i < n * sizeof(T); ++i) reinterpret_cast<uint8_t*>(x.data())[i] = static_cast<uint8_t>(engine());
    return x;
}
template <class T> bool same(const std::vector<T>& a, const std::vector<T>& b)
{
    return a.size() == b.size() && (a.empty() || !std::memcmp(a.data(), b.data(), a.size() * sizeof(T)));
}

std::vector<Ipp32s> randomMask(size_t n, unsigned percent)
{
    std::vector<Ipp32s> mask(n);
    for (auto& m : mask)
        m = below(100) < percent ? 1 + static_cast<Ipp32s>(below(1000)) : -static_cast<Ipp32s>(below(2));
    return mask;
}

// Runs call and oracle on two copies of the pool, with pointers to elements "from" and "to" of it.
template <class T, class Call, class Oracle>
void compareInPool(const std::vector<T>& pool, size_t from, size_t to, Call call, Oracle oracle, const char* what)
{
    auto found = pool, expected = pool;
    call(found.data() + from, found.data() + to);
    oracle(expected.data() + from, expected.data() + to);
    ASSERT_TRUE(same(found, expected)) << what << ": destination " << int(to) - int(from) << " elements of "
                                       << sizeof(T) << " bytes behind the source";
}

} // namespace

TEST(Pack, SharedElementsMoveOneAfterTheOther)
{
    inEveryVariant([] {
        forEveryType([](auto f) {
            using T = typename decltype(f)::Element;
            for (int round = 0; round < 300; ++round) {
                const unsigned n = below(200), inc = below(5);
                const size_t room = 1000, last = room - 4 * n;
                const auto pool = randomElements<T>(room + 1);
                const size_t from = below(last),
                             to = std::min<size_t>(round % 3 ? from + below(20) : below(last), last);
                const auto mask = randomMask(n, round % 2 ? 90 : 40);
                std::vector<Ipp32u> index(n);
                for (auto& i : index) i = below(4 * n);

                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.packi(n, s, inc, d); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k) d[k] = s[k * inc];
                    },
                    "pack, increment");
                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.unpacki(n, s, d, inc); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k) d[k * inc] = s[k];
                    },
                    "unpack, increment");
                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.packv(n, s, index.data(), d); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k) d[k] = s[index[k]];
                    },
                    "pack, index");
                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.unpackv(n, s, d, index.data()); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k) d[index[k]] = s[k];
                    },
                    "unpack, index");
                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.packm(n, s, mask.data(), d); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k)
                            if (mask[k] > 0) *d++ = s[k];
                    },
                    "pack, mask");
                compareInPool(
                    pool, from, to, [&](T* s, T* d) { f.unpackm(n, s, d, mask.data()); },
                    [&](T* s, T* d) {
                        for (unsigned k = 0; k < n; ++k)
                            if (mask[k] > 0) d[k] = *s++;
                    },
                    "unpack, mask");
            }
        });
    });
}

// A destination that overwrites masks before their turn decides about later elements.
TEST(Pack, MasksMayLieInTheDestination)
{
    inEveryVariant([] {
        forEveryType([](auto f) {
            using T = typename decltype(f)::Element;
            for (int round = 0; round < 200; ++round) {
                const unsigned n = below(200);
                const auto source = randomElements<T>(n);
                auto pool = randomElements<Ipp32s>(5 * n + 50);
                const size_t masks = n + below(50), d = below(50) + (round % 2 ? masks / 2 : 0);
                if (d * 4 + n * sizeof(T) > pool.size() * 4) continue;
                compareInPool(
                    pool, masks, d,
                    [&](Ipp32s* m, Ipp32s* p) { f.packm(n, source.data(), m, reinterpret_cast<T*>(p)); },
                    [&](Ipp32s* m, Ipp32s* p) {
                        for (unsigned k = 0, j = 0; k < n; ++k)
                            if (m[k] > 0) std::memcpy(reinterpret_cast<T*>(p) + j++, &source[k], sizeof(T));
                    },
                    "pack");
                compareInPool(
                    pool, masks, d,
                    [&](Ipp32s* m, Ipp32s* p) { f.unpackm(n, source.data(), reinterpret_cast<T*>(p), m); },
                    [&](Ipp32s* m, Ipp32s* p) {
                        for (unsigned k = 0, j = 0; k < n; ++k)
                            if (m[k] > 0) std::memcpy(reinterpret_cast<T*>(p) + k, &source[j++], sizeof(T));
                    },
                    "unpack");
            }
        });
    });
}

// Source elements that no index names, and destination elements that no mask selects, need not even exist.
TEST(Pack, TouchesOnlyWhatIsSelected)
{
    inEveryVariant([] {
        forEveryType([](auto f) {
            using T = typename decltype(f)::Element;
            for (unsigned n : {1u, 8u, 33u, 100u, 500u}) {
                const unsigned there = n / 2 + 1; // the array ends here, at an inaccessible page
                const Guarded<T> present(randomElements<T>(there));
                auto mask = randomMask(n, 60);
                for (unsigned k = there; k < n; ++k) mask[k] = 0;
                std::vector<T> dense(n);
                f.unpackm(n, dense.data(), present.data(), mask.data());

                std::vector<Ipp32u> index(n, there - 1);
                f.packv(n, present.data(), index.data(), dense.data());
                EXPECT_FALSE(std::memcmp(&dense[n - 1], present.data() + there - 1, sizeof(T)));
                f.unpackv(n, dense.data(), present.data(), index.data());
            }
        });
    });
}

TEST(Pack, CountsWhatItKeeps)
{
    inEveryVariant([] {
        for (unsigned n : {0u, 1u, 2u, 31u, 32u, 33u, 64u, 71u, 257u, 1000u, 5000u})
            for (unsigned percent : {0u, 1u, 10u, 50u, 95u, 100u}) {
                const auto mask = randomMask(n, percent);
                const auto x = randomElements<Ipp64f>(n);
                const auto z = randomElements<Ipp64fc>(n);
                std::vector<Ipp64f> kept;
                std::vector<Ipp64fc> keptComplex;
                for (unsigned k = 0; k < n; ++k)
                    if (mask[k] > 0) kept.push_back(x[k]), keptComplex.push_back(z[k]);
                const Guarded<Ipp64f> d(std::vector<Ipp64f>(kept.size()));
                const Guarded<Ipp64fc> dz(std::vector<Ipp64fc>(kept.size()));
                EXPECT_EQ(PackByMask(n, x.data(), d.data(), mask.data()), kept.size());
                EXPECT_TRUE(same(d.now(), kept)) << n << ", " << percent << " %";
                EXPECT_EQ(PackByMaskc_Idx(n, z.data() + 4, -4, dz.data() - 3, 3, mask.data() + 1, -1), kept.size());
                EXPECT_TRUE(same(dz.now(), keptComplex)) << n << ", " << percent << " %";
            }
    });
}

TEST(Pack, OnlyPositiveMasksSelect)
{
    inEveryVariant([] {
        const Ipp32s mask[] = {-1, 5, 0, 1, INT32_MIN, INT32_MAX, 0, -2};
        const Ipp32s x[] = {10, 11, 12, 13, 14, 15, 16, 17};
        Ipp32s d[8] = {1, 2, 3, 4, 5, 6, 7, 8};
        vipackm(8, x, mask, d);
        EXPECT_EQ(std::vector<Ipp32s>(d, d + 8), (std::vector<Ipp32s>{11, 13, 15, 4, 5, 6, 7, 8}));
        viunpackm(8, x, d, mask);
        EXPECT_EQ(std::vector<Ipp32s>(d, d + 8), (std::vector<Ipp32s>{11, 10, 15, 11, 5, 12, 7, 8}));
    });
}

TEST(Pack, RepeatsAndIncrementZero)
{
    inEveryVariant([] {
        const Ipp32s x[] = {7, 8, 9};
        Ipp32s d[4] = {0, 0, 0, 0};
        vipacki(4, x, 0, d);
        EXPECT_EQ(std::vector<Ipp32s>(d, d + 4), (std::vector<Ipp32s>{7, 7, 7, 7}));
        viunpacki(3, x, d, 0);
        EXPECT_EQ(d[0], 9);
        const Ipp32u index[] = {2, 1, 2};
        viunpackv(3, x, d, index);
        EXPECT_EQ(std::vector<Ipp32s>(d, d + 4), (std::vector<Ipp32s>{9, 8, 9, 7}));
    });
}

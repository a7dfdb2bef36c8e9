#include "signal/processing/fir/memory.h"
#include "signal/processing/iir/filters.h"
#include <cmath>
#include <gtest/gtest.h>

using namespace iir;
namespace {

template <class T> class States : public testing::Test
{
protected:
    std::mt19937 g{815};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(States, Types);

// The first words of a state.
struct Head {
    unsigned tag;
    double* taps;
    double* delays;
    int count, reserved[2], sections, reservedToo;
};

// A state at every address, between known bytes, at whose end the buffer ends.
TYPED_TEST(States, LieInTheirBufferAtAnyAddress)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto x = noise<T>(this->g, 70);
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count : {1, 2, 3, 4, 9}) {
            const auto f = draw<T>(this->g, kind, count);
            auto d = f.delays;
            const auto expected = f.expected(d, x);
            int bytes = 0;
            ASSERT_EQ((kind == ofOrder ? F::size : F::cascadeSize)(count, &bytes), 0);
            for (int offset = 0; offset < 64; ++offset) {
                fir::Fenced place(bytes, offset);
                typename F::State* state = nullptr;
                ASSERT_EQ((kind == ofOrder ? F::init : F::cascadeInit)(&state, f.taps.data(), count, f.delays.data(),
                                                                       place.data()),
                          0);
                const auto* head = reinterpret_cast<const Head*>(state);
                const auto distance = reinterpret_cast<unsigned char*>(state) - place.data();
                EXPECT_EQ(distance, (32 - offset % 32) % 32);
                EXPECT_EQ(head->tag, kind == ofOrder ? F::tag : F::cascadeTag);
                EXPECT_EQ(head->count, kind == ofOrder ? count : 2 * count);
                EXPECT_EQ(head->sections, kind == ofOrder ? 0 : count);
                EXPECT_EQ(head->reserved[0] | head->reserved[1] | head->reservedToo, 0);
                const auto taps =
                    reinterpret_cast<unsigned char*>(head->taps) - reinterpret_cast<unsigned char*>(state);
                // The size of a real cascade has room for alignment only in 64-bit builds, but for a number beside an
                // odd number of sections.
                const auto latest = 64 - distance + (count % 2 ? 8 : 0);
                const bool crowded = sizeof(void*) == 4 && kind == ofSections && sizeof(T) == sizeof(double);
                EXPECT_EQ(taps, crowded && latest < 64 ? latest : 64);
                std::vector<T> y(70);
                ASSERT_EQ(F::filter(x.data(), y.data(), 70, state), 0);
                ASSERT_EQ(difference(y, expected), -1) << kind << " " << count << " " << offset;
                ASSERT_TRUE(place.intact()) << kind << " " << count << " " << offset;
            }
        }
    }
}

// A missing delay line is one of zeros, whatever stood in the buffer.
TYPED_TEST(States, WithoutADelayLineStartFromRest)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 20);
    for (const Kind kind : {ofOrder, ofSections}) {
        auto f = draw<T>(this->g, kind, 5);
        std::vector<T> d(f.delays.size());
        const auto expected = f.expected(d, x);
        f.delays.clear();
        std::vector<T> y(20);
        Filter<T> filter(f);
        filter(x.data(), y.data(), 20);
        EXPECT_EQ(difference(y, expected), -1);
    }
}

// Divisors as small as they get: their reciprocal is infinite, and the recurrence goes on with that.
TYPED_TEST(States, TakeAnyDivisorButZero)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 40);
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count : {1, 4, 9}) {
            for (const double a0 : {5e-324, 1e-310, -1e-308, 1e308, HUGE_VAL, std::nan("")}) {
                auto f = draw<T>(this->g, kind, count);
                set(f.taps[kind == ofOrder ? count + 1 : 6 * count - 3], a0, 0);
                auto d = f.delays;
                const auto expected = f.expected(d, x);
                for (const auto& v : support::supported()) {
                    support::force(v);
                    Filter<T> filter(f);
                    ASSERT_EQ(filter.status, 0);
                    std::vector<T> y(40);
                    filter(x.data(), y.data(), 40);
                    ASSERT_EQ(difference(y, expected), -1) << v.code << " " << kind << " " << count << " " << a0;
                }
            }
        }
    }
}

// The one failure that writes: the state's head and delay line stand when the taps are looked at.
TYPED_TEST(States, AreBegunWhenAZeroIsFound)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto check = [](const Design<T>& f, bool refused) {
        const Filter<T> filter(f);
        EXPECT_EQ(filter.status, refused ? ippStsDivByZeroErr : ippStsNoErr);
        ASSERT_NE(filter.state, nullptr);
        const auto* head = reinterpret_cast<const Head*>(filter.state);
        EXPECT_EQ(head->tag, f.kind == ofOrder ? F::tag : F::cascadeTag);
        EXPECT_EQ(head->count, static_cast<int>(f.delays.size()));
        for (size_t i = 0; i < f.delays.size(); ++i)
            EXPECT_EQ(head->delays[i], reinterpret_cast<const double*>(&f.delays[i])[0]);
    };
    auto direct = draw<T>(this->g, ofOrder, 3);
    for (const int i : {0, 3, 5}) set(direct.taps[i], 0, 0); // no divisor
    check(direct, false);
    set(direct.taps[4], -0.0, 0);
    check(direct, true);
    set(direct.taps[4], -0.0, 5e-324);
    check(direct, sizeof(T) == 8);
    for (const int section : {0, 1, 2})
        for (const int tap : {0, 1, 2, 3, 4, 5}) {
            auto f = draw<T>(this->g, ofSections, 3);
            set(f.taps[6 * section + tap], 0, -0.0);
            check(f, tap == 0 || tap == 3);
            set(f.taps[6 * section + tap], 0, 1);
            check(f, sizeof(T) == 8 && (tap == 0 || tap == 3));
        }
}

TYPED_TEST(States, StatusesInTheirOrder)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto f = draw<T>(this->g, ofOrder, 2);
    const T* taps = f.taps.data();
    for (const Kind kind : {ofOrder, ofSections}) {
        const auto size = kind == ofOrder ? F::size : F::cascadeSize;
        const auto init = kind == ofOrder ? F::init : F::cascadeInit;
        int bytes = -7;
        EXPECT_EQ(size(0, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(size(0, &bytes), ippStsIIROrderErr);
        EXPECT_EQ(size(0x7fffffff, &bytes), ippStsIIROrderErr);
        EXPECT_EQ(bytes, -7);
        Ipp8u buffer[64] = {};
        typename F::State* state = nullptr;
        EXPECT_EQ(init(nullptr, taps, 0, nullptr, buffer), ippStsNullPtrErr);
        EXPECT_EQ(init(&state, nullptr, 0, nullptr, buffer), ippStsNullPtrErr);
        EXPECT_EQ(init(&state, taps, 0, nullptr, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(init(&state, taps, 0, nullptr, buffer), ippStsIIROrderErr);
        EXPECT_EQ(init(&state, taps, 0x7fffffff, nullptr, buffer), ippStsIIROrderErr);
        EXPECT_EQ(state, nullptr);
        for (const Ipp8u byte : buffer) EXPECT_EQ(byte, 0);
    }
    T x{}, y{};
    set(y, 5, 5);
    const T before = y;
    Filter<T> filter(f);
    for (const auto& v : support::supported()) {
        support::force(v);
        EXPECT_EQ(F::filter(&x, &y, 0, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(F::filter(nullptr, &y, 0, filter.state), ippStsNullPtrErr);
        EXPECT_EQ(F::filter(&x, nullptr, 0, filter.state), ippStsNullPtrErr);
        EXPECT_EQ(F::one(x, nullptr, filter.state), ippStsNullPtrErr);
        EXPECT_EQ(F::one(x, &y, nullptr), ippStsNullPtrErr);
        // A block of another kind, of the other type, of nothing, and with half a tag.
        const unsigned other = sizeof(T) == 8 ? 0x49493135 : 0x49493134;
        for (const unsigned tag :
             {0x46495213u, other, 0u, F::tag & 0xffff, F::tag ^ 1u << 31, F::tag - 3, F::tag + 4}) {
            const Head foreign = {tag, nullptr, nullptr, 2, {}, 1, 0};
            auto* const state = reinterpret_cast<typename F::State*>(const_cast<Head*>(&foreign));
            EXPECT_EQ(F::filter(&x, &y, 0, state), ippStsSizeErr);
            EXPECT_EQ(F::filter(&x, &y, 1, state), ippStsContextMatchErr) << std::hex << tag;
            EXPECT_EQ(F::one(x, &y, state), ippStsContextMatchErr);
        }
        EXPECT_TRUE(support::sameBits(y, before));
    }
}

// Sizes as they are told, in arithmetic that is wide enough for all of them.
TYPED_TEST(States, SizesNeverWrap)
{
    using T = TypeParam;
    using F = Functions<T>;
    std::vector<int> counts = {1, 2, 3, 4, 5, 0x7fffffff, 0x7ffffffe};
    for (int k = 3; k < 31; ++k)
        for (int d : {-1, 0, 1}) counts.push_back((1 << k) + d);
    for (int i = 0; i < 50000; ++i)
        counts.push_back(1 + static_cast<int>((this->g() & 0x3fffffff) >> (this->g() % 30)));
    for (const int n :
         {89478478, 89478479, 89478480, 38347920, 38347921, 38347922, 44739240, 44739241, 19173959, 19173960})
        counts.push_back(n);
    for (const long long n : counts) {
        const long long more = sizeof(void*) == 8 ? 32 : 0;
        const long long sizes[2] = {sizeof(T) == 8 ? 16 * n + 144 + ((8 * n + 23) & ~15ll) + more
                                                   : 96 + 16 * (3 * n + 2),
                                    sizeof(T) == 8 ? ((40 * n + 15) & ~15ll) + 64 + 16 * n + more : 96 + 112 * n};
        for (const Kind kind : {ofOrder, ofSections}) {
            int bytes = -1;
            const int status = (kind == ofOrder ? F::size : F::cascadeSize)(static_cast<int>(n), &bytes);
            ASSERT_EQ(status, sizes[kind] > 0x7fffffff ? ippStsIIROrderErr : ippStsNoErr) << kind << " " << n;
            ASSERT_EQ(bytes, status ? -1 : sizes[kind]) << kind << " " << n;
        }
    }
}

} // namespace

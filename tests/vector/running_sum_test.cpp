// Running sums against the definition, one element after the other: all types and lags, arrays that overlap in any way,
// sums that wrap around.
#include "vector/own_call.h"
#include <algorithm>
#include <cstring>

using namespace support;

namespace {

struct Type {
    const char* suffix;
    size_t bytes;
    int kind; // bytes of an integer; 0: doubles
};
const Type types[] = {{"", 8, 0}, {"c", 16, 0}, {"_32s", 4, 4}, {"_16s", 2, 2}, {"_8u", 1, 1}};

template <class T> void plus(unsigned char* d, const unsigned char* a, const unsigned char* b)
{
    T x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    x = static_cast<T>(x + y);
    std::memcpy(d, &x, sizeof x);
}
void add(const Type& t, unsigned char* d, const unsigned char* a, const unsigned char* b)
{
    if (t.kind == 4) return plus<uint32_t>(d, a, b);
    if (t.kind == 2) return plus<uint16_t>(d, a, b);
    if (t.kind == 1) return plus<uint8_t>(d, a, b);
    for (size_t k = 0; k < t.bytes; k += 8) plus<double>(d + k, a + k, b + k);
}

// The definition, in memory that both arrays may share.
void sum(const Type& t, Bytes& memory, size_t from, size_t to, size_t n, size_t lag)
{
    const auto at = [&](size_t base, size_t i) { return &memory[base + i * t.bytes]; };
    if (from != to)
        for (size_t i = 0; i < lag; ++i) std::memmove(at(to, i), at(from, i), t.bytes);
    for (size_t i = lag; i < n; ++i) add(t, at(to, i), at(from, i), at(to, i - lag));
}

// Any bytes for integers; numbers whose sums depend on their order for doubles.
Bytes content(const Type& t, size_t bytes)
{
    Bytes b = noise(bytes);
    if (t.kind) return b;
    std::mt19937_64 random(1);
    for (size_t i = 0; i + 8 <= bytes; i += 8) {
        const double x = double(random() >> 11) * 0x1p-53 - 0.5;
        std::memcpy(&b[i], &x, 8);
    }
    return b;
}

void expectSums(const Type& t, size_t from, size_t to, size_t n, size_t lag)
{
    const size_t extent = (n > lag ? n : lag) * t.bytes + 64;
    Bytes memory = content(t, std::max(from, to) + extent), expected = memory;
    sum(t, expected, from, to, n, lag);
    Bytes once = memory;
    run((std::string("CumSumDelta") + t.suffix).c_str(), (const void*)&memory[from], (void*)&memory[to], unsigned(n),
        unsigned(lag));
    ASSERT_EQ(memory, expected) << t.suffix << ' ' << from << ' ' << to << ' ' << n << ' ' << lag;
    if (lag != 1 || n == 0) return;
    run((std::string("CumSum") + t.suffix).c_str(), (const void*)&once[from], (void*)&once[to], unsigned(n));
    ASSERT_EQ(once, expected) << t.suffix << ' ' << from << ' ' << to << ' ' << n;
}

} // namespace

TEST(RunningSum, EveryLag)
{
    inEveryVariant([] {
        for (const Type& t : types)
            for (size_t lag = 0; lag <= 70; lag += lag < 40 ? 1 : 7)
                for (size_t n : {0, 1, 2, 3, 5, 8, 15, 16, 17, 33, 63, 64, 65, 66, 97, 130, 217}) {
                    expectSums(t, 0, (std::max(n, lag) + 4) * t.bytes, n, lag); // apart
                    expectSums(t, 64, 64, n, lag);
                    if (HasFatalFailure()) return;
                }
    });
}

TEST(RunningSum, OverlapsElementByElement)
{
    inEveryVariant([] {
        for (const Type& t : types)
            for (size_t distance = 1; distance <= 40; ++distance)
                for (size_t lag : {0u, 1u, 2u, 3u, 4u, 7u, 8u, 16u, 20u, 40u, 130u})
                    for (size_t n : {1u, 5u, 39u, 100u}) {
                        expectSums(t, 64, 64 + distance * t.bytes, n, lag);
                        expectSums(t, 64 + distance * t.bytes, 64, n, lag);
                        if (HasFatalFailure()) return;
                    }
    });
}

TEST(RunningSum, WrapsAround)
{
    inEveryVariant([] {
        const unsigned char bytes[] = {200, 100};
        unsigned char sums[2];
        run("CumSum_8u", bytes, sums, 2u);
        EXPECT_EQ(sums[1], 44);
        const short words[] = {30000, 30000};
        short wordSums[2];
        run("CumSum_16s", words, wordSums, 2u);
        EXPECT_EQ(wordSums[1], -5536);
    });
}

// The copy in front depends on the lag alone.
TEST(RunningSum, LagBeyondTheLength)
{
    inEveryVariant([] {
        const double x[] = {1, 2, 3};
        double d[] = {7, 7, 7};
        run("CumSumDelta", x, d, 0u, 2u);
        EXPECT_TRUE(d[0] == 1 && d[1] == 2 && d[2] == 7);
        run("CumSum", x, d, 0u);
        EXPECT_EQ(d[0], 1);
    });
}

// Copy, move, set, zero and flip against copies made byte by byte.
#include "support/bytes.h"
#include <algorithm>
#include <cstring>

using namespace support;

namespace {

struct Type {
    const char* suffix;
    int bytes;
};
const Type copied[] = {{"8u", 1},   {"16s", 2}, {"16sc", 4},  {"32s", 4}, {"32sc", 8}, {"32f", 4},
                       {"32fc", 8}, {"64s", 8}, {"64sc", 16}, {"64f", 8}, {"64fc", 16}};
const Type flipped[] = {{"8u", 1}, {"16u", 2}, {"32f", 4}, {"64f", 8}, {"64fc", 16}};
const int lengths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 127, 128, 129, 255, 257, 1023, 4097};

const void* null() { return nullptr; }

// Memory after bytes have been moved within it, element order or not: what memmove is specified to do.
Bytes moved(Bytes memory, size_t from, size_t to, size_t count)
{
    const Bytes source(memory.begin() + static_cast<long>(from), memory.begin() + static_cast<long>(from + count));
    std::copy(source.begin(), source.end(), memory.begin() + static_cast<long>(to));
    return memory;
}

Bytes reversed(const Bytes& memory, size_t from, size_t count, size_t element)
{
    Bytes result(count * element);
    for (size_t i = 0; i < count; ++i)
        std::memcpy(&result[i * element], &memory[from + (count - 1 - i) * element], element);
    return result;
}

} // namespace

// Noise holds NaN of every kind among the floating-point elements: all bits must arrive.
TEST(Copy, EveryTypeCopiesAllBitsAndNothingElse)
{
    inEveryVariant([] {
        for (const Type& t : copied)
            for (const char* family : {"ippsCopy_", "ippsMove_"})
                for (int n : lengths)
                    for (size_t offset : {0u, 1u, 4u, 24u}) {
                        if (!mayStandAt(offset, t.bytes)) continue;
                        const size_t count = static_cast<size_t>(n * t.bytes);
                        const Bytes source = noise(count + 64);
                        Bytes result = noise(count + 96, 2), expected = result;
                        std::copy_n(&source[offset], count, &expected[offset]);
                        const void* const from = &source[offset];
                        void* const to = &result[offset];
                        EXPECT_EQ(call(family + std::string(t.suffix), from, to, n), 0);
                        ASSERT_EQ(result, expected) << family << t.suffix << ' ' << n;
                    }
    });
}

TEST(Copy, FrontToBackWhenTheDestinationBeginsInFront)
{
    inEveryVariant([] {
        for (size_t distance = 1; distance <= 70; ++distance)
            for (size_t n = 1; n <= 600; n += n < 80 ? 1 : 37) {
                Bytes memory = noise(700);
                const Bytes expected = moved(memory, 8 + distance, 8, n);
                call("ippsCopy_8u", (const void*)&memory[8 + distance], (void*)&memory[8], static_cast<int>(n));
                ASSERT_EQ(memory, expected) << distance << ' ' << n;
            }
    });
}

TEST(Move, AnyOverlap)
{
    inEveryVariant([] {
        Bytes memory(512);
        for (int distance = -70; distance <= 70; ++distance)
            for (int n = 1; n <= 300; ++n) {
                memory = noise(512, 3);
                const size_t to = static_cast<size_t>(80 + distance);
                const Bytes expected = moved(memory, 80, to, static_cast<size_t>(n));
                call("ippsMove_8u", (const void*)&memory[80], (void*)&memory[to], n);
                ASSERT_EQ(memory, expected) << distance << ' ' << n;
            }
    });
}

TEST(Move, LongOverlapsOfWideElements)
{
    inEveryVariant([] {
        for (const Type& t : copied)
            for (int distance : {-33, -4, -1, 0, 1, 2, 3, 5, 16, 17, 1000})
                for (int n : {1, 37, 1001}) {
                    Bytes memory = noise(2100 * 16);
                    const size_t size = static_cast<size_t>(t.bytes), from = 40 * size,
                                 to = static_cast<size_t>(40 + distance) * size;
                    const Bytes expected = moved(memory, from, to, static_cast<size_t>(n) * size);
                    call(std::string("ippsMove_") + t.suffix, (const void*)&memory[from], (void*)&memory[to], n);
                    ASSERT_EQ(memory, expected) << t.suffix << ' ' << distance << ' ' << n;
                }
    });
}

namespace {

// Set and Zero of one type: every length, destinations at any multiple of the element's natural alignment.
template <class T> void setAndZero(const char* suffix, T value, size_t alignment)
{
    for (int n : lengths)
        for (size_t offset = 0; offset < 48; offset += alignment) {
            if (!mayStandAt(offset, sizeof(T))) continue;
            const size_t count = static_cast<size_t>(n) * sizeof(T);
            Bytes result = noise(count + 64), expected = result;
            for (int i = 0; i < n; ++i)
                std::memcpy(&expected[offset + static_cast<size_t>(i) * sizeof(T)], &value, sizeof(T));
            EXPECT_EQ(call(std::string("ippsSet_") + suffix, value, (void*)&result[offset], n), 0);
            ASSERT_EQ(result, expected) << suffix << ' ' << n << ' ' << offset;
            std::fill_n(expected.begin() + static_cast<long>(offset), count, static_cast<unsigned char>(0));
            EXPECT_EQ(call(std::string("ippsZero_") + suffix, (void*)&result[offset], n), 0);
            ASSERT_EQ(result, expected) << suffix << ' ' << n << ' ' << offset;
        }
}

} // namespace

TEST(SetAndZero, EveryType)
{
    inEveryVariant([] {
        setAndZero<Ipp8u>("8u", 0xA5, 1);
        setAndZero<Ipp16s>("16s", -12345, 1);
        setAndZero<Ipp32s>("32s", -2147483647 - 1, 2);
        setAndZero<Ipp32sc>("32sc", {-7, 0x12345678}, 4);
        setAndZero<Ipp64f>("64f", -0.0, 4);
        setAndZero<Ipp64fc>("64fc", {1.25, -0.0}, 4);
    });
}

TEST(Set, OfDoublesByIndexChecksNothing)
{
    inEveryVariant([] {
        double d[6] = {9, 9, 9, 9, 9, 9};
        EXPECT_EQ(callIndexed("ippsSet_64f_Idx", 1.5, d, 2, 3), 0);
        EXPECT_EQ(callIndexed("ippsSet_64f_Idx", 2.5, d + 5, -5, 1), 0);
        EXPECT_EQ(callIndexed("ippsSet_64f_Idx", 3.5, d, 0, 0), 0);
        EXPECT_EQ(callIndexed("ippsSet_64f_Idx", 3.5, d, 0, -5), 0);
        EXPECT_EQ(callIndexed("ippsSet_64f_Idx", 3.5, (double*)nullptr, 0, 0), 0);
        const double expected[6] = {2.5, 9, 1.5, 1.5, 1.5, 9};
        EXPECT_TRUE(std::equal(d, d + 6, expected));
    });
}

TEST(Flip, PlainInPlaceAndPlainOnOneArray)
{
    inEveryVariant([] {
        for (const Type& t : flipped)
            for (int n = 1; n <= 1100; n += n < 280 ? 1 : 119)
                for (size_t offset : {0u, 1u, 8u}) {
                    if (!mayStandAt(offset, t.bytes)) continue;
                    const size_t size = static_cast<size_t>(t.bytes), count = static_cast<size_t>(n) * size;
                    const Bytes source = noise(count + 32);
                    const Bytes reverse = reversed(source, offset, static_cast<size_t>(n), size);
                    Bytes expected = noise(count + 32, 2), plain = expected, inPlace = source, same = source;
                    std::copy(reverse.begin(), reverse.end(), expected.begin() + 8);
                    const std::string name = std::string("ippsFlip_") + t.suffix;
                    EXPECT_EQ(call(name, (const void*)&source[offset], (void*)&plain[8], n), 0);
                    ASSERT_EQ(plain, expected) << name << ' ' << n;
                    EXPECT_EQ(call(name + "_I", (void*)&inPlace[offset], n), 0);
                    EXPECT_EQ(call(name, (const void*)&same[offset], (void*)&same[offset], n), 0);
                    expected = source;
                    std::copy(reverse.begin(), reverse.end(), expected.begin() + static_cast<long>(offset));
                    ASSERT_EQ(inPlace, expected) << name << "_I " << n;
                    ASSERT_EQ(same, expected) << name << " on one array, " << n;
                }
    });
}

TEST(Copy, StatusesNullFirstThenLength)
{
    inEveryVariant([] {
        double a[2] = {1, 2}, d[2] = {3, 4};
        for (const char* name : {"ippsCopy_64f", "ippsMove_64f", "ippsFlip_64f"}) {
            EXPECT_EQ(call(name, null(), (void*)d, 0), ippStsNullPtrErr);
            EXPECT_EQ(call(name, (const void*)a, (void*)nullptr, -1), ippStsNullPtrErr);
            EXPECT_EQ(call(name, (const void*)a, (void*)d, 0), ippStsSizeErr);
            EXPECT_EQ(call(name, (const void*)a, (void*)d, -2147483647 - 1), ippStsSizeErr);
        }
        EXPECT_EQ(call("ippsSet_64f", 1.0, (void*)nullptr, 0), ippStsNullPtrErr);
        EXPECT_EQ(call("ippsSet_64f", 1.0, (void*)d, 0), ippStsSizeErr);
        EXPECT_EQ(call("ippsZero_64f", (void*)nullptr, 0), ippStsNullPtrErr);
        EXPECT_EQ(call("ippsZero_64f", (void*)d, -1), ippStsSizeErr);
        EXPECT_EQ(d[0], 3);
        EXPECT_EQ(d[1], 4);
    });
}

// Bit strings against copies made bit by bit.
#include "support/bytes.h"

using namespace support;

namespace {

// Masks of bit i of a string that begins at a byte: "most" numbers from the most significant.
unsigned char mask(size_t i, bool most) { return static_cast<unsigned char>(most ? 0x80 >> i % 8 : 1 << i % 8); }

void copyBits(const Bytes& from, size_t at, Bytes& to, size_t toAt, int n, bool most)
{
    for (int i = 0; i < n; ++i, ++at, ++toAt) {
        const bool bit = from[at / 8] & mask(at, most);
        unsigned char& byte = to[toAt / 8];
        byte = static_cast<unsigned char>(bit ? byte | mask(toAt, most) : byte & ~mask(toAt, most));
    }
}

const struct {
    const char* name;
    bool most;
} functions[] = {{"ippsCopyLE_1u", true}, {"ippsCopyBE_1u", false}};

} // namespace

// Offsets of 8 and more act as their low three bits. The bits around the string stay.
TEST(BitString, EveryPairOfOffsetsAndLength)
{
    inEveryVariant([] {
        const Bytes source = noise(64);
        for (const auto& f : functions)
            for (int from = 0; from < 16; ++from)
                for (int to = 0; to < 16; ++to)
                    for (int n = 1; n <= 300; n += n < 80 ? 1 : 7) {
                        Bytes result = noise(64, 2), expected = result;
                        copyBits(source, static_cast<size_t>(from % 8), expected, static_cast<size_t>(to % 8), n,
                                 f.most);
                        call(f.name, source.data(), from, result.data(), to, n);
                        ASSERT_EQ(result, expected) << f.name << ' ' << from << ' ' << to << ' ' << n;
                    }
    });
}

TEST(BitString, LongStrings)
{
    inEveryVariant([] {
        const Bytes source = noise(4000);
        for (const auto& f : functions)
            for (int from = 0; from < 8; ++from)
                for (int to : {0, 3, 5})
                    for (int n : {8 * 1000, 8 * 1031 + 3, 31001}) {
                        Bytes result = noise(4000, 2), expected = result;
                        copyBits(source, static_cast<size_t>(from), expected, static_cast<size_t>(to), n, f.most);
                        call(f.name, source.data(), from, result.data(), to, n);
                        ASSERT_EQ(result, expected) << f.name << ' ' << from << ' ' << to << ' ' << n;
                    }
    });
}

TEST(BitString, MovesTowardsItsBeginningWithinOneArray)
{
    inEveryVariant([] {
        for (const auto& f : functions)
            for (size_t from = 1; from < 40; ++from)
                for (size_t to = 0; to < from; ++to)
                    for (int n : {1, 5, 8, 13, 64, 100, 999, 5000}) {
                        Bytes memory = noise(700);
                        Bytes expected = memory;
                        copyBits(memory, from, expected, to, n, f.most);
                        call(f.name, (const unsigned char*)&memory[from / 8], static_cast<int>(from % 8),
                             &memory[to / 8], static_cast<int>(to % 8), n);
                        ASSERT_EQ(memory, expected) << f.name << ' ' << from << ' ' << to << ' ' << n;
                    }
    });
}

TEST(BitString, OrderOfBitsByHand)
{
    inEveryVariant([] {
        const unsigned char source = 0x80;
        unsigned char d = 0;
        EXPECT_EQ(call("ippsCopyLE_1u", &source, 0, &d, 7, 1), 0); // first bit of a byte to the last
        EXPECT_EQ(d, 0x01);
        EXPECT_EQ(call("ippsCopyBE_1u", &source, 7, &d, 1, 1), 0); // there the highest bit is the last
        EXPECT_EQ(d, 0x03);
    });
}

TEST(BitString, IndexFormsCountBytes)
{
    inEveryVariant([] {
        const Bytes source = noise(16);
        for (const char* name : {"ippsCopy_1u_Idx", "ippsCopyLE_1u_Idx", "ippsCopyBE_1u_Idx"}) {
            Bytes result = noise(16, 2), expected = result;
            copyBits(source, 8 * 3 + 5, expected, 8 * 2 + 1, 50, std::string(name) != "ippsCopyBE_1u_Idx");
            EXPECT_EQ(callIndexed(name, source.data(), 3, 5, result.data(), 2, 1, 50), 0);
            EXPECT_EQ(result, expected) << name;
        }
        EXPECT_EQ(find("ippsCopy_1u"), nullptr);
    });
}

TEST(BitString, StatusesNullFirstThenLengthAndOffsets)
{
    inEveryVariant([] {
        const unsigned char a = 1;
        unsigned char d = 2;
        for (const auto& f : functions) {
            EXPECT_EQ(call(f.name, (const unsigned char*)nullptr, -1, &d, 0, 0), ippStsNullPtrErr);
            EXPECT_EQ(call(f.name, &a, -1, (unsigned char*)nullptr, -1, 1), ippStsNullPtrErr);
            EXPECT_EQ(call(f.name, &a, 0, &d, 0, 0), ippStsSizeErr);
            EXPECT_EQ(call(f.name, &a, -1, &d, 0, 1), ippStsSizeErr);
            EXPECT_EQ(call(f.name, &a, 0, &d, -1, 1), ippStsSizeErr);
        }
        EXPECT_EQ(d, 2);
    });
}

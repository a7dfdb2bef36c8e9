// SHA-256 (FIPS 180-4), for the committed digests.
#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace support {

class Sha256
{
public:
    void add(const void* data, size_t bytes)
    {
        const auto* p = static_cast<const uint8_t*>(data);
        for (; bytes; --bytes) {
            block_[total_++ % 64] = *p++;
            if (total_ % 64 == 0) transform();
        }
    }

    std::string hex()
    {
        const uint64_t bits = total_ * 8;
        const uint8_t one = 0x80, none = 0;
        add(&one, 1);
        while (total_ % 64 != 56) add(&none, 1);
        for (int i = 7; i >= 0; --i) {
            const auto b = static_cast<uint8_t>(bits >> 8 * i);
            add(&b, 1);
        }
        std::string text;
        for (uint32_t h : state_)
            for (int i = 28; i >= 0; i -= 4) text += "0123456789abcdef"[h >> i & 15];
        return text;
    }

private:
    static uint32_t rotate(uint32_t x, int n) { return x >> n | x << (32 - n); }

    void transform()
    {
        static constexpr uint32_t k[64] = {
            0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
            0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
            0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
            0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
            0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
            0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
            0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
            0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};
        uint32_t w[64];
        for (int i = 0; i < 16; ++i)
            w[i] = uint32_t(block_[4 * i]) << 24 | uint32_t(block_[4 * i + 1]) << 16 |
                   uint32_t(block_[4 * i + 2]) << 8 | block_[4 * i + 3];
        for (int i = 16; i < 64; ++i) {
            const uint32_t a = rotate(w[i - 15], 7) ^ rotate(w[i - 15], 18) ^ w[i - 15] >> 3;
            const uint32_t b = rotate(w[i - 2], 17) ^ rotate(w[i - 2], 19) ^ w[i - 2] >> 10;
            w[i] = w[i - 16] + a + w[i - 7] + b;
        }
        std::array<uint32_t, 8> s = state_;
        for (int i = 0; i < 64; ++i) {
            const uint32_t choice = (s[4] & s[5]) ^ (~s[4] & s[6]);
            const uint32_t majority = (s[0] & s[1]) ^ (s[0] & s[2]) ^ (s[1] & s[2]);
            const uint32_t t1 = s[7] + (rotate(s[4], 6) ^ rotate(s[4], 11) ^ rotate(s[4], 25)) + choice + k[i] + w[i];
            const uint32_t t2 = (rotate(s[0], 2) ^ rotate(s[0], 13) ^ rotate(s[0], 22)) + majority;
            s = {t1 + t2, s[0], s[1], s[2], s[3] + t1, s[4], s[5], s[6]};
        }
        for (int i = 0; i < 8; ++i) state_[i] += s[i];
    }

    std::array<uint32_t, 8> state_ = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                      0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<uint8_t, 64> block_{};
    uint64_t total_ = 0;
};

} // namespace support

// G.711 against its tables of intervals: every code, every sample, and fractions around every limit.
#include "oracle/g711.h"
#include "support/bytes.h"
#include <cstring>
#include <limits>

using namespace support;

namespace {

template <class D, class S> std::vector<D> run(const std::string& name, const std::vector<S>& a)
{
    std::vector<D> d(a.size());
    const int n = static_cast<int>(a.size());
    EXPECT_EQ(callIndexed(name, static_cast<const void*>(a.data() - 3), 3, static_cast<void*>(d.data() + 2), -2, n), 0);
    return d;
}

const struct {
    const char* name;
    oracle::Intervals intervals;
    unsigned char zero;
} laws[] = {{"ALaw", oracle::aLaw(), 0xD5}, {"MuLaw", oracle::muLaw(), 0xFF}};

Bytes allCodes()
{
    Bytes codes(256);
    for (size_t i = 0; i < codes.size(); ++i) codes[i] = static_cast<unsigned char>(i);
    return codes;
}

template <class F> void fractions(const std::string& suffix)
{
    constexpr F inf = std::numeric_limits<F>::infinity(), most = std::numeric_limits<F>::max(),
                least = std::numeric_limits<F>::denorm_min(), NaN = std::numeric_limits<F>::quiet_NaN();
    std::vector<F> x = {0, -F(0), NaN, -NaN, inf, -inf, most, -most, least, -least, 1, -1, F(1.5), F(-1.5)};
    for (int s = -32768; s <= 32768; ++s) { // halves between samples are where they change
        F limit = static_cast<F>((s - 0.5) / 32767.0);
        for (int i = 0; i < 3; ++i) limit = std::nextafter(limit, -inf);
        for (int i = 0; i < 6; ++i) x.push_back(limit = std::nextafter(limit, inf));
    }
    for (const auto& law : laws) {
        std::vector<unsigned char> expected;
        for (const F v : x)
            expected.push_back(static_cast<unsigned char>(oracle::encoded(law.intervals, oracle::sampleOf(v))));
        const Bytes codes = allCodes();
        inEveryVariant([&] {
            ASSERT_EQ(run<unsigned char>(std::string("ippsLinTo") + law.name + suffix + "8u_Idx", x), expected);
            const auto decoded =
                run<F>(std::string("ipps") + law.name + "ToLin_8u" + (suffix.c_str() + 1) + "_Idx", codes);
            for (int code = 0; code < 256; ++code) {
                const F exact = static_cast<F>(oracle::decoded(law.intervals, code)) / 32768;
                ASSERT_EQ(std::memcmp(&decoded[static_cast<size_t>(code)], &exact, sizeof exact), 0) << code;
            }
            auto back = run<unsigned char>(std::string("ippsLinTo") + law.name + suffix + "8u_Idx", decoded);
            if (law.zero == 0xFF) back[0x7F] = 0x7F; // the negative zero
            EXPECT_EQ(back, codes);
        });
    }
}

} // namespace

TEST(Companding, KnownCodes)
{
    inEveryVariant([] {
        const auto a = run<Ipp16s>("ippsALawToLin_8u16s_Idx", Bytes{0x00, 0x55, 0xD5, 0x80, 0x2A, 0xAA});
        EXPECT_EQ(a, (std::vector<Ipp16s>{-5504, -8, 8, 5504, -32256, 32256}));
        const auto mu = run<Ipp16s>("ippsMuLawToLin_8u16s_Idx", Bytes{0x00, 0x7F, 0xFF, 0x80, 0xFE, 0x7E});
        EXPECT_EQ(mu, (std::vector<Ipp16s>{-32124, 0, 0, 32124, 8, -8}));
        EXPECT_EQ(run<double>("ippsALawToLin_8u64f_Idx", Bytes{0x80})[0], 5504.0 / 32768);
        EXPECT_EQ(run<unsigned char>("ippsLinToALaw_16s8u_Idx", std::vector<Ipp16s>{0, -1})[0], 0xD5);
        EXPECT_EQ(run<unsigned char>("ippsLinToMuLaw_16s8u_Idx", std::vector<Ipp16s>{0, -1})[0], 0xFF);
    });
}

TEST(Companding, EverySampleAndEveryCode)
{
    std::vector<Ipp16s> samples(65536);
    for (int i = 0; i < 65536; ++i) samples[static_cast<size_t>(i)] = static_cast<Ipp16s>(i - 32768);
    const Bytes codes = allCodes();
    for (const auto& law : laws) {
        const std::string encode = std::string("ippsLinTo") + law.name + "_16s8u_Idx";
        std::vector<unsigned char> expected;
        for (const Ipp16s s : samples)
            expected.push_back(static_cast<unsigned char>(oracle::encoded(law.intervals, s)));
        std::vector<Ipp16s> decoded;
        for (int code = 0; code < 256; ++code)
            decoded.push_back(static_cast<Ipp16s>(oracle::decoded(law.intervals, code)));
        inEveryVariant([&] {
            EXPECT_EQ(run<unsigned char>(encode, samples), expected);
            EXPECT_EQ(run<Ipp16s>(std::string("ipps") + law.name + "ToLin_8u16s_Idx", codes), decoded);
            auto back = run<unsigned char>(encode, decoded);
            if (law.zero == 0xFF) back[0x7F] = 0x7F; // the negative zero
            EXPECT_EQ(back, codes);
        });
    }
}

TEST(Companding, FractionsAroundEveryLimit)
{
    fractions<double>("_64f");
    fractions<float>("_32f");
}

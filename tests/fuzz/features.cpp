// Any sequence of feature words: the variant, the status and the enabled word are those of the documented rules, and
// calls go on being right. The rules stand here once more, as the reference words them.
#include "fuzz.h"
#include "support/library.h"

namespace {

constexpr Ipp64u bit63 = Ipp64u(1) << 63;

struct Chosen {
    int variant;
    Ipp64u enabled;
    int status;
};

// The word of a variant: all the features below it.
constexpr Ipp64u below(int variant)
{
    constexpr Ipp64u words[] = {0x3, 0x7, 0x1F, 0xDF, 0x1DF, 0x81DF};
    return words[variant];
}

Chosen byRule(Ipp64u word)
{
    const auto has = [&](Ipp64u bits) { return (word & bits) == bits; };
    const auto chosen = [&](int variant, Ipp64u needs) {
        return Chosen{variant, word | needs, has(needs) ? 0 : ippStsFeaturesCombination};
    };
    if (has(0x7300000)) return chosen(5, below(5) | 0x7300000);
    if (has(0xF00000)) return chosen(5, below(5) | 0xF00000);
    if (has(0x8000)) return chosen(5, below(5));
    if (has(0x100)) return chosen(4, below(4));
    if (has(0x80)) return chosen(3, below(3));
    if (has(0x40)) return chosen(2, 0x5F);
    if (has(0x20)) return chosen(2, 0x3F);
    if (has(0x10)) return chosen(2, below(2));
    if (has(0x8)) return chosen(1, 0xF);
    if (has(0x4)) return chosen(1, below(1));
    if (has(0x2)) return chosen(0, below(0));
    return {0, word | 1, ippStsNotSupportedCpu};
}

Chosen against(Ipp64u word, Ipp64u processor)
{
    int early = word & 0xFFFFFFFF78000000u ? ippStsUnknownFeature : 0;
    if ((word & 0x7F08100) && !(processor & 0x200)) {
        word &= ~Ipp64u(0x7F08100);
        early = ippStsFeatureNotSupported;
    }
    if (word & ~processor & 0xFFFFFFFF) early = ippStsFeatureNotSupported;
    Chosen c = byRule(word);
    if (early) c.status = early;
    return c;
}

// Whether a variant's code may run here.
bool runs(int variant)
{
    for (const support::Variant& v : support::supported())
        if (v.index == variant) return true;
    return false;
}

void callsAreRight()
{
    Ipp64f a[11], b[11], sum[11];
    for (int i = 0; i < 11; ++i) a[i] = i, b[i] = 0.5;
    fuzz::expect(ippsAdd_64f(a, b, sum, 11) == 0, "a sum is refused");
    for (int i = 0; i < 11; ++i) fuzz::expect(sum[i] == i + 0.5, "a sum is wrong");
}

} // namespace

void fuzz::features(Input& in)
{
    // The first makes px's word the enabled one, the second makes that the processor's: a known state.
    ippSetCpuFeatures(0x3 | bit63);
    ippSetCpuFeatures(0x3 | bit63);
    Ipp64u processor = 0x3, enabled = ippGetEnabledCpuFeatures();
    expect(enabled == 0x3, "the enabled word after a selection of px");
    while (!in.empty()) {
        Ipp64u word = in.any<Ipp64u>();
        if (in.oneIn(2)) word &= 0xFFFF; // where the variants are told apart
        if (in.oneIn(3)) word &= ~bit63;
        const bool trusted = word & bit63;
        if (trusted) processor = enabled;
        const Chosen expected = trusted ? byRule(word & ~bit63) : against(word, processor);
        const std::string said = "after the word " + std::to_string(word) + ": ";
        expect(ippSetCpuFeatures(word) == expected.status, said + "the status");
        enabled = ippGetEnabledCpuFeatures();
        expect(enabled == expected.enabled, said + "the enabled word");
        Ipp64u detected = 0;
        expect(ippGetCpuFeatures(&detected, nullptr) == 0 && detected == processor, said + "the processor's word");
        if (!runs(expected.variant)) continue;
        expect(support::current().answers == std::string(support::variants[expected.variant].code),
               said + "the variant");
        callsAreRight();
    }
    support::force(support::variants[0]);
}

#include "variants/equality.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace variants {
namespace {

using registry::Arguments;
using registry::Function;
using registry::Pattern;
using registry::Special;

std::vector<long long> usualLengths()
{
    std::vector<long long> all;
    for (long long n = 0; n <= 67; ++n) all.push_back(n);
    for (long long n : {127, 128, 129, 130, 255, 256, 257, 1023, 1024, 1025, 4095, 4096, 4097}) all.push_back(n);
    return all;
}

int roundsOf(const Pass& pass, long long length)
{
    static const char* const factor = std::getenv("SIG5D_ROUNDS");
    const int usual = length <= 67 ? 32 : length < 1000 ? 8 : 2;
    return std::max(1, static_cast<int>(usual * pass.share)) * (factor ? std::atoi(factor) : 1);
}

constexpr uint64_t prefills[] = {0, ~uint64_t(0), 0x7FF4000000000001}; // the last is a signalling NaN

// What a function is called with.
struct Case {
    long long length;
    int round;
    Pattern pattern;
    registry::Outlier outlier;
};

const char* only()
{
    static const char* const part = std::getenv("SIG5D_ONLY");
    return part ? part : "";
}

int arraysRead(const Function& f)
{
    return static_cast<int>(std::count_if(f.args, f.args + f.argCount, [](const registry::Arg& arg) {
        return arg.kind == registry::Kind::array && (arg.isConst || arg.inout);
    }));
}

class Equality
{
public:
    Equality(const Function& f, const Pass& pass)
        : f_(f), pass_(pass), entry_(support::entryOf(f)), bodies_(support::bodiesOf(f)),
          sharings_(support::sharings(f)), calls_(bodies_.size())
    {
    }

    void run(Tally& tally)
    {
        if (pass_.specialValues)
            compareSpecialValues();
        else
            for (long long n : pass_.lengths.empty() ? usualLengths() : pass_.lengths)
                for (int round = 0; round < roundsOf(pass_, n) && fault_.empty(); ++round)
                    compare({n, round, static_cast<Pattern>(round % static_cast<int>(Pattern::count)), {}});
        EXPECT_EQ(fault_, "");
        report(tally);
    }

private:
    void compareSpecialValues()
    {
        const int inputs = arraysRead(f_);
        for (long long n = 1; n <= 35; n += n < 20 ? 1 : 5)
            for (long long at = 0; at < n; ++at)
                for (int s = 0; s < static_cast<int>(Special::count); ++s)
                    for (int alone = 0; alone < (inputs > 1 ? 2 : 1) && fault_.empty(); ++alone) {
                        const int array = alone ? static_cast<int>(n + at) % inputs : -1;
                        compare({n, 0, Pattern::tame, {at, static_cast<Special>(s), array}});
                    }
    }

    void compare(const Case& c)
    {
        registry::Random random(static_cast<uint64_t>(c.length) * 1000 + static_cast<uint64_t>(c.round));
        Arguments a = registry::build(f_, random, c.length, c.pattern, prefills[c.round % 3], c.outlier);
        if (!a.valid()) { // a length that the function refuses: its status is tested elsewhere
            ++skipped_;
            return;
        }
        Arguments again[2] = {a, a}; // what is only written must not depend on what lay there
        for (int side : {0, 1}) refill(again[side], prefills[(c.round + 1 + side) % 3]);

        const bool once = c.outlier.position >= 0; // the place does not matter to values
        support::Outcome expected;
        for (size_t b = 0; b < bodies_.size(); ++b) {
            select(bodies_[b]);
            for (int side = 0; side < (once ? 1 : 2); ++side) {
                Arguments& placed = b == 0 && side == 0 ? a : again[side];
                stage_.putEach(placed, placesOf(f_.argCount, c.length, c.round, side));
                const auto answer = call(placed, b);
                if (b == 0 && side == 0) expected = support::outcomeOf(a, stage_, answer);
                check(placed, c, b, answer, expected, {});
            }
            for (const support::Shared& shared : sharings_) {
                if (once || isNull(a, shared)) continue;
                stage_.putEach(a, placesOf(f_.argCount, c.length, c.round / 2, c.round % 2), shared);
                check(a, c, b, call(a, b), expected, shared);
                ++inPlace_;
            }
        }
    }

    void refill(Arguments& a, uint64_t prefill)
    {
        for (int i = 0; i < f_.argCount; ++i)
            if (!a.null[i]) a.prefill(i, prefill);
    }

    static bool isNull(const Arguments& a, const support::Shared& shared)
    {
        return std::any_of(shared.begin(), shared.end(), [&](const registry::InPlace& pair) {
            return a.null[pair.source] || a.null[pair.destination];
        });
    }

    void select(const support::Variant& v)
    {
        support::force(v);
        if (pass_.afterSelecting) pass_.afterSelecting();
    }

    registry::Answer call(Arguments& a, size_t body)
    {
        const registry::Answer answer = stage_.call(a, entry_);
        calls_[body] += !refused(answer);
        return answer;
    }

    bool refused(const registry::Answer& answer) const
    {
        return f_.result == registry::Result::status && answer.status < 0;
    }

    void check(const Arguments& a, const Case& c, size_t body, const registry::Answer& answer,
               const support::Outcome& expected, const support::Shared& shared)
    {
        std::string said = answer.intrusion;
        if (refused(answer) && !support::mayRefuse(f_))
            said += "refuses valid arguments with " + std::to_string(answer.status);
        const std::string stray = stage_.strayWrite(a);
        if (!stray.empty()) said += "writes outside of " + stray;
        if (said.empty() && answer.status != expected.answer.status)
            said = "answers " + std::to_string(answer.status) + " instead of " + std::to_string(expected.answer.status);
        if (said.empty()) said = refused(answer) ? stage_.changed(a) : support::unlike(expected, a, stage_, answer);
        if (said.empty() || !fault_.empty()) return;

        fault_ = support::nameOf(f_) + " in " + bodies_[body].code + ": " + said + ";";
        for (const registry::InPlace& pair : shared)
            fault_ += std::string(" ") + f_.args[pair.destination].name + " = " + f_.args[pair.source].name;
        fault_ += " length " + std::to_string(c.length) + " round " + std::to_string(c.round);
        for (int i = 0; i < f_.argCount; ++i)
            fault_ += std::string(", ") + f_.args[i].name + " " + std::to_string(a.values[i].i) + " extent " +
                      std::to_string(a.extent[i]);
    }

    void report(Tally& tally) const
    {
        ++tally.functions;
        tally.bodies += static_cast<int>(bodies_.size());
        tally.inPlace += inPlace_;
        tally.skipped += skipped_;
        for (size_t b = 0; b < bodies_.size(); ++b) {
            tally.calls += calls_[b];
            if (tally.fewest >= 0 && calls_[b] >= tally.fewest) continue;
            tally.fewest = calls_[b];
            tally.fewestOf = support::nameOf(f_) + " in " + bodies_[b].code;
        }
    }

    const Function& f_;
    const Pass& pass_;
    registry::Entry entry_;
    std::vector<support::Variant> bodies_;
    std::vector<support::Shared> sharings_;
    support::Stage stage_;
    std::vector<long long> calls_; // of each body
    long long inPlace_ = 0, skipped_ = 0;
    std::string fault_; // the first one
};

} // namespace

support::Places placesOf(int arguments, long long length, int round, int side)
{
    support::Places places(static_cast<size_t>(arguments));
    const int others = round - round / 8; // counts the rounds in which not all lie flush
    for (int i = 0; i < arguments; ++i) {
        // Mixed bits of all that identifies the place.
        uint64_t x = static_cast<uint64_t>(((length * 4096 + round) * 2 + side) * 32 + i + 1) * 0x9E3779B97F4A7C15u;
        x = (x ^ x >> 32) * 0xD6E8FEB86659FD93u;
        x ^= x >> 32;
        const bool flush = round % 8 == 0 || (length + others) % (arguments + 1) == i;
        places[static_cast<size_t>(i)] =
            flush ? support::Place{side == 0, 0} : support::Place{(x >> 8 & 1) == 0, static_cast<int>(x % 64)};
    }
    return places;
}

bool restricted() { return *only(); }

Tally compareBodies(const Pass& pass)
{
    Tally tally;
    for (const Function& f : registry::functions()) {
        if (!*f.bodies || !support::generallyCallable(f) || f.result == registry::Result::pointer) continue;
        if (pass.specialValues && !arraysRead(f)) continue;
        if (!std::strstr(f.name, only())) continue;
        if (pass.includes && !pass.includes(f)) continue;
        Equality(f, pass).run(tally);
        if (testing::Test::HasFailure()) break;
    }
    std::printf("%d functions, %d bodies: %lld guarded calls compared (%lld in place), %lld sets of arguments refused; "
                "fewest calls: %lld, %s\n",
                tally.functions, tally.bodies, tally.calls, tally.inPlace, tally.skipped, tally.fewest,
                tally.fewestOf.c_str());
    EXPECT_GE(tally.fewest, pass.leastCalls) << tally.fewestOf << " is hardly tested";
    return tally;
}

} // namespace variants

#include "variants/streams.h"

namespace variants {

using registry::Arguments;
using support::Variant;

constexpr int callsOfStream = 3;

std::string Streams::difference(int round)
{
    registry::Random random(static_cast<uint64_t>(round));
    const auto pattern = round % 4 ? registry::Pattern::tame : registry::Pattern::adversarial;
    std::vector<Arguments> calls = {registry::build(f_, random, 1 + random.below(80), pattern, random.bits())};
    if (!calls[0].valid()) return "";
    for (int k = 1; registry::updatesState(f_) && k < callsOfStream; ++k) {
        calls.push_back(calls.back());
        registry::further(calls.back(), random, pattern);
    }
    const auto& all = support::supported();
    const std::vector<Step> expected = run(calls, all[0], all[0], {true, 0});
    for (const Variant& maker : all)
        for (const Variant& user : all) {
            const bool atEnd = random.oneIn(2);
            const int offset = random.oneIn(4) ? 0 : static_cast<int>(random.below(64));
            const auto found = run(calls, maker, user, {atEnd, offset});
            for (size_t k = 0; k < calls.size(); ++k) {
                const std::string how = compare(calls[k], expected[k], found[k]);
                if (!how.empty())
                    return support::nameOf(f_) + " made in " + maker.code + ", used in " + user.code + ", offset " +
                           std::to_string(offset) + (atEnd ? " from the end" : " from the start") + ", round " +
                           std::to_string(round) + ", call " + std::to_string(k) + ": " + how;
            }
        }
    return "";
}

std::vector<Streams::Step> Streams::run(std::vector<Arguments>& calls, const Variant& maker, const Variant& user,
                                        support::Place place)
{
    support::force(user);
    stage_.makeStatesIn(&maker);
    std::vector<Step> steps;
    for (size_t k = 0; k < calls.size(); ++k) {
        Arguments& a = calls[k];
        if (k) {
            a.values = calls[0].values; // where the arrays and states lie
            stage_.refresh(a);
        } else {
            stage_.put(a, place);
        }
        Step step;
        step.answer = stage_.call(a, entry_);
        step.stray = stage_.strayWrite(a);
        for (int i = 0; i < f_.argCount; ++i) {
            step.outputs.emplace_back();
            if (support::isOutput(f_.args[i]) && stage_.now(i) && !a.null[i])
                step.outputs.back().assign(stage_.now(i), stage_.now(i) + a.bytes(i));
        }
        steps.push_back(std::move(step));
        ++calls_;
    }
    return steps;
}

std::string Streams::compare(const Arguments& a, const Step& expected, const Step& found) const
{
    if (!found.answer.intrusion.empty()) return found.answer.intrusion;
    if (!found.stray.empty()) return "written beside " + found.stray;
    if (expected.answer.status != found.answer.status) return "another status " + std::to_string(found.answer.status);
    if (f_.result == registry::Result::status && found.answer.status < 0)
        return "refused " + std::to_string(found.answer.status);
    for (int i = 0; i < f_.argCount; ++i) {
        const auto &x = expected.outputs[static_cast<size_t>(i)], &y = found.outputs[static_cast<size_t>(i)];
        const std::string how = x.empty() ? "" : support::difference(a, i, x.data(), y.data());
        if (!how.empty()) return how;
    }
    return "";
}

} // namespace variants

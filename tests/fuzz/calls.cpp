// Calls of all functions that the registry describes: any scalars, lengths, values, places, null pointers. A refused
// call answers with its first failing check and writes nothing; any other equals px bit for bit, in guarded memory.
#include "fuzz.h"
#include "states.h"
#include "support/stage.h"
#include <algorithm>

namespace fuzz {
namespace {

using registry::Arg;
using registry::Arguments;
using registry::Function;
using registry::Kind;

using Outputs = std::vector<std::vector<uint8_t>>;

bool fuzzed(const Function& f) { return support::generallyCallable(f) && f.result != registry::Result::pointer; }

// Lengths follow from the arguments, and values are free. Elsewhere arrays stay as they were built: values that keep to
// rules, states, lengths that depend on contents.
bool isRegular(const Function& f)
{
    const auto built = [](const Arg& arg) { return arg.makers || arg.room; };
    return !f.ruleCount && !f.namedCount && std::none_of(f.args, f.args + f.argCount, built);
}

Arguments built(const Function& f, Input& in)
{
    static const size_t most[] = {68, 68, 68, 300, 4200};
    const auto length = static_cast<long long>(in.below(most[in.below(std::size(most))]));
    const auto pattern = static_cast<registry::Pattern>(in.below(static_cast<size_t>(registry::Pattern::count)));
    registry::Random random(in.any<uint32_t>());
    return registry::build(f, random, length, pattern, in.any<uint64_t>());
}

void anyScalar(registry::Value& v, const Arg& arg, Input& in)
{
    if (registry::isFloating(arg.element)) {
        v.re = in.any<double>();
        v.im = in.any<double>();
        if (arg.element == registry::Element::f32) v.re = in.any<float>();
    } else {
        const size_t kind = in.below(4); // mostly numbers that counts, shifts and scale factors can be
        v.i = kind == 0   ? in.any<long long>()
              : kind == 1 ? in.any<signed char>()
                          : static_cast<long long>(in.below(34));
        v.i = registry::fitting(v.i, arg.element);
        v.i2 = in.any<int32_t>();
    }
}

// Other scalars and null pointers. The unchecked half gets only what it must stand: values that decide no length.
void spoil(Arguments& a, Input& in)
{
    const bool checked = a.f.half == registry::Half::ipp;
    for (int i = 0; i < a.f.argCount; ++i) {
        const Arg& arg = a.f.args[i];
        if (!in.oneIn(4)) continue;
        const bool isValue =
            arg.element != registry::Element::none && !arg.inExtent && !arg.domainSize && isRegular(a.f);
        if (arg.kind == Kind::scalar && (checked || isValue)) anyScalar(a.values[static_cast<size_t>(i)], arg, in);
        if (arg.kind != Kind::scalar && arg.kind != Kind::index && checked) {
            a.values[static_cast<size_t>(i)].p = nullptr;
            a.null[static_cast<size_t>(i)] = true;
        }
    }
    registry::askAgain(a.f, a.values);
}

// Arrays as long as the scalars now say; false where that is too long or more than the scalars decide, and where
// nothing checks a null pointer.
bool measured(Arguments& a)
{
    if (!isRegular(a.f)) return false;
    size_t total = 0;
    for (int i = 0; i < a.f.argCount; ++i) {
        const auto k = static_cast<size_t>(i);
        if (a.null[k] && !a.f.args[i].optional) return false;
        if (!a.f.args[i].extent) continue;
        a.extent[k] = a.f.args[i].extent(a.values.data());
        if (a.extent[k] > 100000 || (total += a.bytes(i)) > 200000) return false;
        a.content[k].resize(a.bytes(i), 0x5A);
    }
    return true;
}

void overwrite(Arguments& a, Input& in)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        auto& bytes = a.content[static_cast<size_t>(i)];
        const Arg& arg = a.f.args[i];
        if (arg.kind != Kind::array || !(arg.isConst || arg.inout) || bytes.empty() || !isRegular(a.f)) continue;
        for (size_t k = in.below(4); k > 0; --k) {
            const auto value = in.any<uint64_t>();
            const size_t at = in.below(bytes.size());
            std::memcpy(&bytes[at], &value, std::min(sizeof value, bytes.size() - at));
        }
    }
}

int firstFailing(const Arguments& a)
{
    for (int k = 0; k < a.f.checkCount; ++k)
        if (a.f.checks[k].fails(a.values.data())) return k;
    return -1;
}

class Call
{
public:
    Call(const Arguments& a, Input& in) : original_(a), entry_(support::entryOf(a.f))
    {
        for (const support::Variant& v : support::supported()) bodies_.push_back(v);
        place_ = {in.oneIn(2), static_cast<int>(in.below(64))};
        body_ = bodies_[in.below(bodies_.size())];
        if (a.f.inPlaceCount && in.oneIn(3)) {
            shared_ = &a.f.inPlace[in.below(static_cast<size_t>(a.f.inPlaceCount))];
            const auto null = [&](int i) { return a.null[static_cast<size_t>(i)]; };
            if (null(shared_->source) || null(shared_->destination)) shared_ = nullptr;
        }
    }

    void mustBeRefused(const registry::Check& check)
    {
        Arguments a = original_;
        run(a, body_, nullptr);
        expect(answer_.status == check.status, said(a) + ": not the status of " + check.text);
        const std::string changed = stage().changed(a);
        expect(changed.empty(), said(a) + ": wrote to " + changed + " in spite of " + check.text);
    }

    // The functions of the frame tell the time or change a handle: their calls only have to keep within their arrays.
    void mustEqualPx()
    {
        Arguments a = original_;
        run(a, bodies_[0], nullptr);
        if (!a.f.dispatched) return;
        const registry::Answer expected = answer_;
        Outputs outputs(a.content.size());
        for (int i = 0; i < a.f.argCount; ++i)
            if (support::isOutput(a.f.args[i]) && !a.null[static_cast<size_t>(i)])
                outputs[static_cast<size_t>(i)].assign(stage().now(i), stage().now(i) + a.bytes(i));

        Arguments again = original_;
        run(again, body_, shared_);
        expect(answer_.status == expected.status, said(again) + ": another status");
        if (again.f.result == registry::Result::f64)
            expect(std::memcmp(&answer_.number, &expected.number, 8) == 0 ||
                       (answer_.number != answer_.number && expected.number != expected.number),
                   said(again) + ": another result");
        if (again.f.result == registry::Result::status && expected.status < 0) {
            expect(shared_ || stage().changed(again).empty(), said(again) + ": a refused call wrote");
            return;
        }
        for (int i = 0; i < again.f.argCount; ++i) {
            const auto& output = outputs[static_cast<size_t>(i)];
            if (output.empty()) continue;
            const std::string difference = support::difference(again, i, output.data(), stage().now(i));
            expect(difference.empty(), said(again) + ": " + difference);
        }
    }

private:
    static support::Stage& stage()
    {
        static support::Stage stage;
        return stage;
    }
    void run(Arguments& a, const support::Variant& v, const registry::InPlace* shared)
    {
        stage().put(a, place_, shared);
        support::force(v);
        answer_ = stage().call(a, entry_);
        expect(answer_.intrusion.empty(), said(a) + ": left behind " + answer_.intrusion);
        const std::string stray = stage().strayWrite(a);
        expect(stray.empty(), said(a) + ": wrote beside " + stray);
    }
    std::string said(const Arguments& a) const
    {
        std::string text = support::nameOf(a.f) + " in " + body_.code + (shared_ ? " in place" : "") +
                           (place_.atEnd ? ", end" : ", start") + " + " + std::to_string(place_.offset) + ", answer " +
                           std::to_string(answer_.status) + ", with";
        for (int i = 0; i < a.f.argCount; ++i) {
            const registry::Value& v = a.values[static_cast<size_t>(i)];
            text += std::string(" ") + a.f.args[i].name + "=";
            text += a.f.args[i].kind == Kind::scalar
                        ? std::to_string(v.i) + "/" + std::to_string(v.re)
                        : (v.p ? std::to_string(a.extent[static_cast<size_t>(i)]) : "null");
        }
        return text;
    }

    const Arguments& original_;
    registry::Entry entry_;
    std::vector<support::Variant> bodies_;
    support::Variant body_{};
    support::Place place_;
    const registry::InPlace* shared_ = nullptr;
    registry::Answer answer_;
};

void callOne(const Function& f, Input& in)
{
    Arguments a = built(f, in);
    if (!in.oneIn(2)) {
        Arguments spoiled = a;
        spoil(spoiled, in);
        const int failing = firstFailing(spoiled);
        if (failing >= 0 && f.result == registry::Result::status) {
            Call(spoiled, in).mustBeRefused(f.checks[failing]);
            return;
        }
        if (failing < 0 && measured(spoiled)) {
            overwrite(spoiled, in);
            Call(spoiled, in).mustEqualPx();
            return;
        }
    }
    overwrite(a, in);
    if (firstFailing(a) < 0) Call(a, in).mustEqualPx();
}

} // namespace

std::vector<std::string> callTopics()
{
    std::vector<std::string> topics;
    for (const Function& f : registry::functions())
        if (fuzzed(f) && std::find(topics.begin(), topics.end(), f.topic) == topics.end()) topics.push_back(f.topic);
    return topics;
}

bool calls(const std::string& topic, Input& in)
{
    static const std::vector<const Function*> functions = [&] {
        std::vector<const Function*> all;
        for (const Function& f : registry::functions())
            if (fuzzed(f) && topic == f.topic) all.push_back(&f);
        return all;
    }();
    if (functions.empty()) return false;
    callOne(*functions[in.below(functions.size())], in);
    return true;
}

} // namespace fuzz

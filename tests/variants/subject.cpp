#include "variants/subject.h"
#include <cstring>

namespace variants {

using registry::Arguments;
using registry::Element;
using registry::Kind;

namespace {

bool computesOnIntegers(const registry::Function& f)
{
    for (int i = 0; i < f.argCount; ++i)
        if (registry::isFloating(f.args[i].element) || f.args[i].element == Element::f16 ||
            f.args[i].kind == Kind::opaque)
            return false;
    return f.result != registry::Result::f64;
}

// One for all functions: guarded memory is never given back, and address space is scarce in 32 bits.
support::Stage& stage()
{
    static support::Stage one;
    return one;
}

template <class F> void put(Numbers& numbers, std::vector<uint8_t>& bytes)
{
    for (size_t i = 0; i + sizeof(F) <= bytes.size(); i += sizeof(F)) {
        const F x = static_cast<F>(numbers.next());
        std::memcpy(&bytes[i], &x, sizeof x);
    }
}

// Modes change which numbers are equal, and so how much is written where the values decide that.
void giveRoom(Arguments& a)
{
    for (int i = 0; i < a.f.argCount; ++i)
        if (a.f.args[i].room) {
            a.extent[i] = a.f.args[i].room(a.values.data());
            a.content[i].resize(a.bytes(i));
        }
}

} // namespace

Subject::Subject(const registry::Function& f)
    : f_(f), entry_(support::entryOf(f)), bodies_(support::bodiesOf(f)), onIntegers_(computesOnIntegers(f))
{
}

bool Subject::suits(const registry::Function& f)
{
    return f.dispatched && *f.bodies && support::generallyCallable(f) && f.result != registry::Result::pointer;
}

Result Subject::call(Arguments& a, support::Place place, const registry::InPlace* shared)
{
    ++calls_;
    giveRoom(a);
    stage().put(a, place, shared);
    Result r{stage().call(a, entry_), Outputs(static_cast<size_t>(f_.argCount))};
    if (const std::string stray = stage().strayWrite(a); !stray.empty()) r.answer.intrusion += "bytes around " + stray;
    for (int i = 0; i < f_.argCount; ++i)
        if (support::isOutput(f_.args[i]) && !a.null[i])
            r.outputs[static_cast<size_t>(i)].assign(stage().now(i), stage().now(i) + a.bytes(i));
    return r;
}

std::string Subject::difference(const Arguments& a, const Result& expected, const Result& found) const
{
    if (!found.answer.intrusion.empty()) return "changed: " + found.answer.intrusion;
    if (found.answer.status != expected.answer.status)
        return "result " + std::to_string(found.answer.status) + " instead of " +
               std::to_string(expected.answer.status);
    if (f_.result == registry::Result::f64 &&
        std::memcmp(&found.answer.number, &expected.answer.number, sizeof(double)))
        return "result " + std::to_string(found.answer.number) + " instead of " +
               std::to_string(expected.answer.number);
    for (int i = 0; i < f_.argCount; ++i) {
        const auto &x = expected.outputs[static_cast<size_t>(i)], &y = found.outputs[static_cast<size_t>(i)];
        if (x.empty()) continue;
        if (std::string said = support::difference(a, i, x.data(), y.data()); !said.empty()) return said;
    }
    return "";
}

void Numbers::replaceIn(Arguments& a)
{
    if (a.f.ruleCount) return;
    for (int i = 0; i < a.f.argCount; ++i) {
        const registry::Arg& arg = a.f.args[i];
        if (arg.domainSize) continue;
        if (arg.kind == Kind::scalar) {
            if (!registry::isFloating(arg.element)) continue;
            const registry::Value before = a.values[i];
            a.values[i].re = arg.element == Element::f32 ? static_cast<float>(next()) : next();
            a.values[i].im = next();
            if (!a.valid()) a.values[i] = before;
        } else if ((arg.kind == Kind::array || arg.kind == Kind::result) && (arg.isConst || arg.inout)) {
            if (arg.element == Element::f32 || arg.element == Element::c32f) put<float>(*this, a.content[i]);
            if (arg.element == Element::f64 || arg.element == Element::c64f) put<double>(*this, a.content[i]);
        }
    }
}

} // namespace variants

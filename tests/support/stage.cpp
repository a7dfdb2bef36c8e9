#include "support/stage.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace support {
namespace {

using registry::Arg;
using registry::Element;
using registry::Kind;

constexpr size_t canaryBytes = 64;
constexpr uint8_t canary = 0xA5;

// The call under way, for what is said of a fault.
thread_local const registry::Arguments* running = nullptr;
class Running
{
public:
    explicit Running(const registry::Arguments& a);
    ~Running() { running = nullptr; }
};

const char* describeCall()
{
    if (!running) return "no call";
    static std::string text;
    text = nameOf(running->f) + " variant " + current().code;
    for (int i = 0; i < running->f.argCount; ++i) {
        const registry::Value& v = running->values[i];
        char piece[96];
        std::snprintf(piece, sizeof piece, " %s=%lld/%p(%lld)", running->f.args[i].name, v.i, v.p, running->extent[i]);
        text += piece;
    }
    return text.c_str();
}

Running::Running(const registry::Arguments& a)
{
    static const bool installed = (onFault(describeCall), true);
    (void)installed;
    running = &a;
}

template <class F> bool sameNumber(const uint8_t* a, const uint8_t* b)
{
    F x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return std::memcmp(a, b, sizeof x) == 0 || (std::isnan(x) && std::isnan(y));
}

bool sameElement(Element e, const uint8_t* a, const uint8_t* b, bool moves)
{
    if (!moves) switch (e) {
        case Element::f32:
            return sameNumber<float>(a, b);
        case Element::f64:
            return sameNumber<double>(a, b);
        case Element::c32f:
            return sameNumber<float>(a, b) && sameNumber<float>(a + 4, b + 4);
        case Element::c64f:
            return sameNumber<double>(a, b) && sameNumber<double>(a + 8, b + 8);
        default:
            break;
        }
    return std::memcmp(a, b, static_cast<size_t>(registry::elementBytes(e))) == 0;
}

std::string text(Element e, const uint8_t* p)
{
    char line[96];
    if (e == Element::f64 || e == Element::c64f) {
        double x[2] = {};
        std::memcpy(x, p, e == Element::f64 ? 8 : 16);
        std::snprintf(line, sizeof line, "%a %a", x[0], x[1]);
        return line;
    }
    std::string hex;
    for (int i = 0; i < registry::elementBytes(e); ++i) {
        std::snprintf(line, sizeof line, "%02x", p[i]);
        hex += line;
    }
    return hex;
}

} // namespace

bool isOutput(const Arg& arg) { return !arg.isConst && (arg.kind == Kind::array || arg.kind == Kind::result); }

std::vector<Shared> sharings(const registry::Function& f)
{
    std::vector<Shared> all;
    for (int k = 0; k < f.inPlaceCount; ++k) all.push_back({f.inPlace[k]});
    for (int first = 0; first < f.inPlaceCount; ++first) {
        Shared together = {f.inPlace[first]};
        for (int k = first + 1; k < f.inPlaceCount; ++k) {
            const registry::InPlace pair = f.inPlace[k];
            if (std::none_of(together.begin(), together.end(), [&](const registry::InPlace& other) {
                    return other.destination == pair.destination || other.source == pair.source;
                }))
                together.push_back(pair);
        }
        if (together.size() > 1) all.push_back(together);
    }
    return all;
}

GuardedRegion& Stage::region(size_t index, size_t bytes)
{
    if (index >= regions_.size()) regions_.resize(index + 1);
    if (!regions_[index] || regions_[index]->size() < bytes) regions_[index] = std::make_unique<GuardedRegion>(bytes);
    return *regions_[index];
}

Stage::Spot Stage::spot(GuardedRegion& r, size_t bytes, Place place)
{
    const auto offset = static_cast<size_t>(place.offset);
    const size_t start = place.atEnd ? r.size() - bytes - offset : offset;
    Spot s;
    s.bytes = bytes;
    s.own = r.own() + start;
    s.low = r.own() + (start > canaryBytes ? start - canaryBytes : 0);
    s.high = r.own() + std::min(r.size(), start + bytes + canaryBytes);
    std::memset(s.low, canary, static_cast<size_t>(s.high - s.low));
    return s;
}

void Stage::put(registry::Arguments& a, Place place, const registry::InPlace* shared)
{
    putEach(a, Places(static_cast<size_t>(a.f.argCount), place), shared ? Shared{*shared} : Shared{});
}

void Stage::putEach(registry::Arguments& a, const Places& places, const Shared& shared)
{
    const registry::Function& f = a.f;
    releaseStates();
    spots_.assign(static_cast<size_t>(f.argCount), {});
    shared_ = shared;
    for (int i = 0; i < f.argCount; ++i) {
        const Arg& arg = f.args[i];
        if (arg.kind == Kind::scalar || arg.kind == Kind::index) continue;
        a.values[i].p = nullptr;
        if (a.null[i]) continue;
        if (arg.makers) {
            putState(a, i, places[i]);
            continue;
        }
        size_t bytes = a.content[i].size();
        bool writable = !arg.isConst;
        for (const registry::InPlace& pair : shared)
            if (pair.source == i) {
                bytes = std::max(bytes, a.content[pair.destination].size());
                writable = true;
            }
        GuardedRegion& r = region(static_cast<size_t>(i), bytes + 2 * canaryBytes + 4096);
        spots_[i] = spot(r, bytes, places[i]);
        spots_[i].gaps = a.gaps(i);
        a.values[i].p = (writable ? r.readWrite() : r.readOnly()) + (spots_[i].own - r.own()) + a.lead(i);
        write(a, i);
    }
    for (const registry::InPlace& pair : shared) {
        Spot& spot = spots_[pair.destination];
        spot = spots_[pair.source];
        spot.bytes = a.content[pair.destination].size();
        spot.gaps = a.gaps(pair.destination);
        spot.longer = &a.content[pair.source];
        a.values[pair.destination].p = a.values[pair.source].p;
    }
}

// What lies between rows that are only read differs from call to call.
void Stage::write(const registry::Arguments& a, int i)
{
    const Spot& s = spots_[i];
    if (!s.own || a.content[i].empty()) return;
    std::memcpy(s.own, a.content[i].data(), a.content[i].size());
    ++writes_;
    if (a.f.args[i].rows && a.f.args[i].isConst && shared_.empty())
        for (size_t k = 0; k < a.content[i].size(); ++k)
            if (s.gaps.have(k)) s.own[k] = static_cast<uint8_t>(writes_ * 37);
}

void Stage::refresh(const registry::Arguments& a)
{
    for (int i = 0; i < a.f.argCount; ++i)
        if (std::none_of(shared_.begin(), shared_.end(), [=](const auto& pair) { return pair.destination == i; }))
            write(a, i);
    for (const State& s : states_) { // as the last call left it
        const Spot& at = spots_[s.argument];
        if (at.own) spots_[s.argument].made.assign(at.own, at.own + at.bytes);
    }
}

void Stage::putState(registry::Arguments& a, int i, Place place)
{
    State state{i, nullptr, nullptr};
    const Variant user = current();
    if (maker_) force(*maker_);
    state.made = std::make_unique<registry::Made>(*a.made[i], [&](size_t bytes, bool kept) {
        GuardedRegion& r = region(static_cast<size_t>(a.f.argCount) + stateRegions_++, bytes + 2 * canaryBytes + 4096);
        const Spot s = spot(r, bytes, place);
        if (kept) {
            spots_[i] = s;
            state.home = &r;
        }
        return r.readWrite() + (s.own - r.own());
    });
    if (maker_) force(user);
    if (!state.made->pointer())
        throw std::runtime_error(nameOf(a.made[i]->f) + " makes no state: " + std::to_string(state.made->status()));
    a.values[i].p = state.made->pointer();
    Spot& s = spots_[i];
    if (s.own) s.made.assign(s.own, s.own + s.bytes);
    if (state.home && a.f.args[i].isConst) state.home->lock(true);
    states_.push_back(std::move(state));
}

void Stage::wipe(int argument)
{
    Spot& s = spots_[argument];
    std::memset(s.own, 0, s.bytes);
    s.made.assign(s.bytes, 0);
}

void Stage::releaseStates()
{
    for (const State& s : states_)
        if (s.home) s.home->lock(false);
    states_.clear();
    stateRegions_ = 0;
}

registry::Answer Stage::call(registry::Arguments& a, registry::Entry entry, int stackPhase)
{
    const std::vector<int> zeros(static_cast<size_t>(a.f.argCount));
    if (a.f.index == registry::IndexForm::only) return callIndexed(a, entry, a.values.data(), zeros.data(), stackPhase);
    const Running described(a);
    return settled(a, registry::invoke(entry, a.f, a.values.data(), stackPhase));
}

registry::Answer Stage::callIndexed(const registry::Arguments& a, registry::Entry entry, const registry::Value* values,
                                    const int* indexes, int stackPhase)
{
    const Running described(a);
    return settled(a, registry::invokeIndexed(entry, a.f, values, indexes, stackPhase));
}

// What the call made and nobody will use is released; what it released is not released again.
registry::Answer Stage::settled(const registry::Arguments& a, const registry::Answer& answer)
{
    registry::releaseMade(a.f, a.values.data(), answer);
    for (State& s : states_)
        if (registry::releasesState(a.f) && a.values[s.argument].p == s.made->pointer()) s.made->forget();
    return answer;
}

std::string Stage::strayWrite(const registry::Arguments& a) const
{
    for (size_t i = 0; i < spots_.size(); ++i) {
        const Spot& s = spots_[i];
        if (!s.own || (a.f.args[i].isConst && s.made.empty())) continue;
        for (const uint8_t* p = s.low; p < s.high; ++p) {
            const auto k = static_cast<size_t>(p - s.own);
            const bool inside = p >= s.own && k < s.bytes;
            if (inside && !s.gaps.have(k)) continue;
            // Where steps were spoilt after the rows had been filled, what counts as between them has elements.
            const auto& filled = s.longer ? *s.longer : a.content[i];
            const bool known = p >= s.own && k < filled.size() && (inside || s.longer);
            if (*p != (known ? filled[k] : canary)) return a.f.args[i].name;
        }
    }
    return "";
}

std::string Stage::changed(const registry::Arguments& a) const
{
    for (size_t i = 0; i < spots_.size(); ++i) {
        const Spot& s = spots_[i];
        const auto& before = s.made.empty() ? a.content[i] : s.made;
        for (size_t k = 0; s.own && k < before.size(); ++k)
            if (s.own[k] != before[k] && !s.gaps.have(k)) return a.f.args[i].name;
    }
    return strayWrite(a);
}

std::string difference(const registry::Arguments& a, int i, const uint8_t* expected, const uint8_t* found)
{
    if (a.bytes(i) == 0 || std::memcmp(expected, found, a.bytes(i)) == 0) return "";
    const Arg& arg = a.f.args[i];
    const size_t step = static_cast<size_t>(arg.elementBytes), n = a.bytes(i) / step;
    for (size_t k = 0; k < n; ++k) {
        const uint8_t *x = expected + k * step, *y = found + k * step;
        if (!sameElement(arg.element, x, y, a.f.movesBits))
            return std::string(arg.name) + "[" + std::to_string(k) + "]: expected " + text(arg.element, x) +
                   ", found " + text(arg.element, y);
    }
    return "";
}

Outcome outcomeOf(const registry::Arguments& a, const Stage& stage, const registry::Answer& answer)
{
    Outcome o = {answer, std::vector<std::vector<uint8_t>>(static_cast<size_t>(a.f.argCount))};
    for (int i = 0; i < a.f.argCount; ++i)
        if (isOutput(a.f.args[i]) && !a.null[i])
            o.outputs[static_cast<size_t>(i)].assign(stage.now(i), stage.now(i) + a.bytes(i));
    return o;
}

std::string unlike(const Outcome& expected, const registry::Arguments& a, const Stage& stage,
                   const registry::Answer& answer)
{
    if (answer.status != expected.answer.status)
        return "result " + std::to_string(expected.answer.status) + " expected, found " + std::to_string(answer.status);
    const auto number = [](const registry::Answer& x) { return reinterpret_cast<const uint8_t*>(&x.number); };
    if (a.f.result == registry::Result::f64 &&
        !sameElement(Element::f64, number(expected.answer), number(answer), a.f.movesBits))
        return "result " + text(Element::f64, number(expected.answer)) + " expected, found " +
               text(Element::f64, number(answer));
    for (int i = 0; i < a.f.argCount; ++i) {
        const auto& output = expected.outputs[static_cast<size_t>(i)];
        if (output.empty()) continue;
        const std::string said = difference(a, i, output.data(), stage.now(i));
        if (!said.empty()) return said;
    }
    return "";
}

bool generallyCallable(const registry::Function& f) { return !*f.untested; }

bool mayRefuse(const registry::Function& f)
{
    for (const char* query : {"GetSize", "GetBufSize", "GetStateSize", "GetBufferSize"})
        if (std::strstr(f.name, query)) return true;
    return false;
}

} // namespace support

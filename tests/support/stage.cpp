#include "support/stage.h"
#include <algorithm>
#include <cmath>
#include <cstring>

namespace support {
namespace {

using registry::Arg;
using registry::Element;
using registry::Kind;

constexpr size_t canaryBytes = 64;
constexpr uint8_t canary = 0xA5;

std::string context;
const char* describeCall() { return context.c_str(); }

template <class F>
bool sameNumber(const uint8_t* a, const uint8_t* b)
{
    F x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return std::memcmp(a, b, sizeof x) == 0 || (std::isnan(x) && std::isnan(y));
}

bool sameElement(Element e, const uint8_t* a, const uint8_t* b, bool moves)
{
    if (!moves) switch (e) {
        case Element::f32: return sameNumber<float>(a, b);
        case Element::f64: return sameNumber<double>(a, b);
        case Element::c32f: return sameNumber<float>(a, b) && sameNumber<float>(a + 4, b + 4);
        case Element::c64f: return sameNumber<double>(a, b) && sameNumber<double>(a + 8, b + 8);
        default: break;
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

GuardedRegion& Stage::region(size_t index, size_t bytes)
{
    if (index >= regions_.size()) regions_.resize(index + 1);
    if (!regions_[index] || regions_[index]->size() < bytes) regions_[index] = std::make_unique<GuardedRegion>(bytes);
    return *regions_[index];
}

void Stage::put(registry::Arguments& a, Place place, const registry::InPlace* shared)
{
    const registry::Function& f = a.f;
    spots_.assign(static_cast<size_t>(f.argCount), {});
    for (int i = 0; i < f.argCount; ++i) {
        const Arg& arg = f.args[i];
        if (arg.kind == Kind::scalar || arg.kind == Kind::index) continue;
        a.values[i].p = nullptr;
        if (a.null[i]) continue;
        size_t bytes = a.content[i].size();
        if (shared && shared->source == i) bytes = std::max(bytes, a.content[shared->destination].size());
        GuardedRegion& r = region(static_cast<size_t>(i), bytes + 2 * canaryBytes + 4096);
        size_t start = place.atEnd ? r.size() - bytes - static_cast<size_t>(place.offset) : static_cast<size_t>(place.offset);
        if (arg.kind == Kind::opaque) start = start / 64 * 64; // records keep their alignment when they move
        Spot& spot = spots_[i];
        spot.bytes = bytes;
        spot.own = r.own() + start;
        spot.low = r.own() + (start > canaryBytes ? start - canaryBytes : 0);
        spot.high = r.own() + std::min(r.size(), start + bytes + canaryBytes);
        const bool writable = !arg.isConst || (shared && shared->source == i);
        a.values[i].p = (writable ? r.readWrite() : r.readOnly()) + start;
        std::memset(spot.low, canary, static_cast<size_t>(spot.high - spot.low));
        if (bytes) std::memcpy(spot.own, a.content[i].data(), a.content[i].size());
    }
    if (shared) {
        spots_[shared->destination] = spots_[shared->source];
        a.values[shared->destination].p = a.values[shared->source].p;
    }
}

registry::Answer Stage::call(registry::Arguments& a, registry::Entry entry, int stackPhase)
{
    static const bool installed = (onFault(describeCall), true);
    (void)installed;
    context = nameOf(a.f) + " variant " + current().code;
    for (int i = 0; i < a.f.argCount; ++i) {
        char piece[96];
        std::snprintf(piece, sizeof piece, " %s=%lld/%p(%lld)", a.f.args[i].name, a.values[i].i, a.values[i].p, a.extent[i]);
        context += piece;
    }
    if (a.f.index == registry::IndexForm::only) {
        const std::vector<int> zeros(static_cast<size_t>(a.f.argCount));
        return registry::invokeIndexed(entry, a.f, a.values.data(), zeros.data(), stackPhase);
    }
    return registry::invoke(entry, a.f, a.values.data(), stackPhase);
}

std::string Stage::strayWrite(const registry::Arguments& a) const
{
    for (size_t i = 0; i < spots_.size(); ++i) {
        const Spot& s = spots_[i];
        if (!s.own || a.f.args[i].isConst) continue;
        for (const uint8_t* p = s.low; p < s.high; ++p)
            if ((p < s.own || p >= s.own + s.bytes) && *p != canary) return a.f.args[i].name;
    }
    return "";
}

std::string Stage::changed(const registry::Arguments& a) const
{
    for (size_t i = 0; i < spots_.size(); ++i) {
        const Spot& s = spots_[i];
        if (s.own && std::memcmp(s.own, a.content[i].data(), a.content[i].size())) return a.f.args[i].name;
    }
    return strayWrite(a);
}

std::string difference(const registry::Arguments& a, int i, const uint8_t* expected, const uint8_t* found)
{
    const Arg& arg = a.f.args[i];
    const long long n = arg.elementBytes ? static_cast<long long>(a.bytes(i)) / arg.elementBytes : 0;
    if (std::memcmp(expected, found, a.bytes(i)) == 0) return "";
    for (long long k = 0; k < n; ++k) {
        const uint8_t *x = expected + k * arg.elementBytes, *y = found + k * arg.elementBytes;
        if (!sameElement(arg.element, x, y, a.f.movesBits))
            return std::string(arg.name) + "[" + std::to_string(k) + "]: expected " + text(arg.element, x) + ", found " +
                   text(arg.element, y);
    }
    return "";
}

bool generallyCallable(const registry::Function& f) { return std::strcmp(f.fixture, "none") != 0; }

} // namespace support

#include "arguments.h"
#include "rules.h"
#include "states.h"
#include <cstring>
#include <string>

namespace registry {
namespace {

constexpr long long largestExtent = 1 << 22; // of what tests build

void* somewhere()
{
    alignas(64) static char place[64];
    return place;
}

bool isPointer(const Arg& arg) { return arg.kind != Kind::scalar && arg.kind != Kind::index; }

Value choose(const Choice* domain, int size, const Value* values, Random& random)
{
    const Choice& c = domain[random.below(size)];
    Value v;
    v.re = c.low(values);
    if (c.high) v.re += static_cast<double>(random.below(static_cast<long long>(c.high(values) - v.re) + 1));
    v.i = static_cast<long long>(v.re);
    return v;
}

Value chooseScalar(const Arg& arg, const Value* values, Random& random, long long length, int lengths, Pattern pattern)
{
    Value v;
    if (arg.domainSize) {
        v = choose(arg.domain, arg.domainSize, values, random);
    } else if (arg.inExtent) {
        v.i = lengths == 1 ? length : random.below(length < 24 ? length + 1 : 24);
    } else if (arg.element != Element::none) {
        v = scalar(random, arg.element, pattern);
    } else {
        static const int candidates[] = {0,  1,   2,  3,  7,  8,   15,  16,  17,  31,         32,
                                         33, 100, -1, -2, -8, -16, -31, -32, -33, 2147483647, -2147483647 - 1};
        v.i = candidates[random.below(sizeof candidates / sizeof *candidates)];
    }
    return v;
}

int lengthsOf(const Function& f)
{
    int lengths = 0;
    for (int i = 0; i < f.argCount; ++i)
        lengths += f.args[i].inExtent && f.args[i].kind == Kind::scalar && !f.args[i].domainSize;
    return lengths;
}

// The calls that make the states: short ones now and then longer, where this call has a length of its own.
void chooseStates(Arguments& a, Random& random, long long length)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        const Arg& arg = a.f.args[i];
        if (!arg.makers) continue;
        const Maker& maker = arg.makers[random.below(arg.makerCount)];
        const Pattern pattern = random.oneIn(4) ? Pattern::adversarial : Pattern::tame;
        if (lengthsOf(a.f)) length = 1 + random.below(random.oneIn(3) ? 150 : 24);
        a.made[i] = std::make_shared<Arguments>(
            build(begin()[maker.function], random, length ? length : 1, pattern, random.bits(), {}, &maker));
    }
}

// A value of the call that made a state, by its name there.
Value ofState(const Arguments& maker, const char* name)
{
    for (int i = 0; i < maker.f.argCount; ++i)
        if (!std::strcmp(maker.f.args[i].name, name)) return maker.values[i];
    for (int i = 0; i < maker.f.namedCount; ++i)
        if (!std::strcmp(maker.f.named[i].name, name)) return maker.values[maker.f.argCount + i];
    return {};
}

bool findNamed(Arguments& a, Random& random)
{
    for (int i = 0; i < a.f.namedCount; ++i) {
        const Named& n = a.f.named[i];
        Value& v = a.values[a.f.argCount + i];
        if (n.source == Source::chosen) v = choose(n.domain, n.domainSize, a.values.data(), random);
        if (n.source == Source::computed) v.i = n.value(a.values.data());
        if (n.source == Source::ofState) v = ofState(*a.made[n.argument], std::strchr(n.name, '.') + 1);
        if (n.query && !ask(*n.query, a.values)) return false;
    }
    return true;
}

// Extents; false: too large for a test.
bool measure(Arguments& a, bool late)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        const Arg& arg = a.f.args[i];
        if (arg.extent && arg.late == late) a.extent[i] = (arg.room ? arg.room : arg.extent)(a.values.data());
        if (a.extent[i] > largestExtent) return false;
    }
    return true;
}

void chooseArgument(Arguments& a, int i, Random& random, long long length, int lengths, Pattern pattern)
{
    const Arg& arg = a.f.args[i];
    Value& v = a.values[i];
    if (arg.kind == Kind::scalar) {
        v = chooseScalar(arg, a.values.data(), random, length, lengths, pattern);
    } else if (arg.kind == Kind::index) {
        v.i = 0;
    } else if (arg.domainSize) { // a number by pointer, which checks look at
        setNumber(a, i, choose(arg.domain, arg.domainSize, a.values.data(), random).re);
        v.p = a.content[i].data();
    } else {
        v.p = somewhere();
    }
}

bool chooseScalars(Arguments& a, Random& random, long long length, Pattern pattern, const Maker* maker)
{
    const int lengths = lengthsOf(a.f);
    for (int attempt = 0; attempt < 500; ++attempt) {
        for (bool later : {false, true})
            for (int i = 0; i < a.f.argCount; ++i) {
                if (a.f.args[i].followsLater != later) continue;
                chooseArgument(a, i, random, length, lengths, pattern);
                for (int k = 0; maker && k < maker->fixedCount; ++k)
                    if (maker->fixed[k].argument == i) a.values[i].i = maker->fixed[k].value;
            }
        if (findNamed(a, random) && measure(a, false) && a.valid()) return true;
    }
    return false;
}

void fillElements(Arguments& a, int i, Random& random, Pattern pattern)
{
    const Arg& arg = a.f.args[i];
    if (a.extent[i] <= 0) return;
    if (!arg.rows) return fill(random, arg.element, pattern, a.content[i].data(), static_cast<size_t>(a.extent[i]));
    const Value* v = a.values.data();
    const auto width = static_cast<size_t>(arg.rows->width(v) / arg.elementBytes);
    for (long long r = 0; r < arg.rows->count(v); ++r)
        fill(random, arg.element, pattern, a.content[i].data() + r * arg.rows->step(v), width);
}

// Filled with numbers: arrays, and values by pointer.
bool isRead(const Arg& arg)
{
    return (arg.kind == Kind::array || arg.kind == Kind::result) && !arg.domainSize && (arg.isConst || arg.inout);
}

void fillArgument(Arguments& a, int i, Random& random, Pattern pattern, uint64_t prefill)
{
    const Arg& arg = a.f.args[i];
    if (arg.optional && random.oneIn(4)) { // but not all that may be null, where one of them must be there
        a.values[i].p = nullptr;
        a.null[i] = a.valid();
        if (!a.null[i]) a.values[i].p = somewhere();
    }
    a.content[i].resize(a.bytes(i));
    if (isRead(arg)) fillElements(a, i, random, pattern);
    a.prefill(i, prefill);
    const Gaps gaps = a.gaps(i);
    for (size_t k = 0; arg.rows && k < a.content[i].size(); ++k)
        if (gaps.have(k)) a.content[i][k] = 0xA5;
}

// Elements are counted without the gaps between rows.
void plantIn(Arguments& a, int i, int number, const Outlier& outlier, Random& random)
{
    if (outlier.position < 0 || (outlier.array >= 0 && outlier.array != number)) return;
    const Arg& arg = a.f.args[i];
    const Value* v = a.values.data();
    const long long size = elementBytes(arg.element), row = arg.rows ? arg.rows->width(v) / size : a.extent[i];
    const long long at = outlier.position % (arg.rows ? row * arg.rows->count(v) : row);
    plant(random, arg.element, outlier.value,
          a.content[i].data() + (arg.rows ? at / row * arg.rows->step(v) : 0) + at % row * size);
}

// Where only the call itself tells how much it writes: the extents of a trial with enough room.
void tryExtents(Arguments& a)
{
    bool any = false;
    for (int i = 0; i < a.f.argCount; ++i) any |= a.f.args[i].room != nullptr;
    if (!any) return;
    auto memory = a.content;
    auto values = a.values;
    for (int i = 0; i < a.f.argCount; ++i)
        if (isPointer(a.f.args[i]) && !a.null[i])
            values[i].p = memory[i].empty() ? somewhere() : memory[i].data() + a.lead(i);
    call(a.f, values.data());
    for (int i = 0; i < a.f.argCount; ++i)
        if (a.f.args[i].room) {
            a.extent[i] = a.f.args[i].extent(values.data());
            a.content[i].resize(a.bytes(i));
        }
}

} // namespace

Arguments::Arguments(const Function& function)
    : f(function), values(static_cast<size_t>(function.argCount + function.namedCount)), extent(function.argCount),
      content(function.argCount), null(function.argCount), made(function.argCount)
{
}

size_t Arguments::bytes(int i) const
{
    const Arg& arg = f.args[i];
    if (extent[i] <= 0) return 0;
    if (arg.rows) {
        const Value* v = values.data();
        return static_cast<size_t>((arg.rows->count(v) - 1) * arg.rows->step(v) + arg.rows->width(v));
    }
    const bool plain = arg.kind == Kind::opaque || arg.kind == Kind::work;
    const size_t unit = plain ? 1 : arg.kind == Kind::handle ? sizeof(void*) : static_cast<size_t>(arg.elementBytes);
    return static_cast<size_t>(extent[i]) * unit;
}

size_t Arguments::lead(int i) const
{
    if (!f.args[i].rows || extent[i] <= 0) return 0;
    const auto lead = static_cast<size_t>(f.args[i].rows->lead(values.data()));
    return lead < content[i].size() ? lead : 0; // scalars that were spoilt since may lead anywhere
}

bool Arguments::valid() const
{
    for (int i = 0; i < f.checkCount; ++i)
        if (f.checks[i].fails(values.data())) return false;
    return true;
}

void setNumber(Arguments& a, int i, double number)
{
    const int whole = static_cast<int>(number);
    const bool floating = a.f.args[i].element == Element::f64;
    const void* const from = floating ? static_cast<const void*>(&number) : &whole;
    a.content[i].resize(floating ? sizeof number : sizeof whole);
    std::memcpy(a.content[i].data(), from, a.content[i].size());
}

Gaps Arguments::gaps(int i) const
{
    const Rows* rows = f.args[i].rows;
    if (!rows) return {};
    return {static_cast<size_t>(rows->step(values.data())), static_cast<size_t>(rows->width(values.data()))};
}

void Arguments::prefill(int i, uint64_t pattern)
{
    const Arg& arg = f.args[i];
    if (arg.isConst || arg.inout || arg.makers || arg.domainSize || arg.kind == Kind::handle) return;
    const Gaps between = gaps(i);
    for (size_t k = 0; k < content[i].size(); ++k)
        if (!between.have(k)) content[i][k] = static_cast<uint8_t>(pattern >> k % 8 * 8);
}

Arguments build(const Function& f, Random& random, long long length, Pattern pattern, uint64_t prefill,
                const Outlier& outlier, const Maker* maker)
{
    Arguments a(f);
    int arraysRead = 0;
    chooseStates(a, random, length);
    chooseScalars(a, random, length, pattern, maker);
    for (bool late : {false, true}) {
        if (late) measure(a, late);
        for (int i = 0; i < f.argCount; ++i) {
            if (!isPointer(f.args[i]) || f.args[i].late != late) continue;
            fillArgument(a, i, random, pattern, prefill);
            if (isRead(f.args[i]) && a.extent[i] > 0) plantIn(a, i, arraysRead++, outlier, random);
        }
        if (!late) keepToRules(a, random);
    }
    tryExtents(a);
    return a;
}

void further(Arguments& a, Random& random, Pattern pattern)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        bool ruled = false;
        for (int k = 0; k < a.f.ruleCount; ++k) ruled |= a.f.rules[k].argument == i;
        if (isRead(a.f.args[i]) && !ruled) fillElements(a, i, random, pattern);
    }
}

bool takesState(const Function& f)
{
    for (int i = 0; i < f.argCount; ++i)
        if (f.args[i].makers) return true;
    return false;
}

bool updatesState(const Function& f)
{
    for (int i = 0; i < f.argCount; ++i)
        if (f.args[i].makers && !f.args[i].isConst) return !releasesState(f);
    return false;
}

bool releasesState(const Function& f)
{
    for (int i = 0; i < f.argCount; ++i)
        for (int k = 0; k < f.args[i].makerCount; ++k)
            if (begin()[f.args[i].makers[k].function].makes.release == &f - begin()) return true;
    return false;
}

} // namespace registry

#include "arguments.h"
#include "fixtures/fixtures.h"
#include <cstring>
#include <map>
#include <string>

namespace registry {
namespace {

std::map<std::string, Fixture>& known()
{
    static std::map<std::string, Fixture> all;
    return all;
}

void* somewhere()
{
    static char place;
    return &place;
}

const Fixture& fixtureOf(const Function& f)
{
    static const Fixture none;
    static const bool added = (fixtures::addAll(), true);
    (void)added;
    const auto found = known().find(f.fixture);
    return found == known().end() ? none : found->second;
}

void measure(Arguments& a)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        const Arg& arg = a.f.args[i];
        if (arg.extent) a.extent[i] = arg.extent(a.values.data());
    }
    if (fixtureOf(a.f).extents) fixtureOf(a.f).extents(a);
}

Value chooseScalar(const Arg& arg, const Value* values, Random& random, long long length, int lengths, Pattern pattern)
{
    Value v;
    if (arg.domainSize) {
        v.re = arg.domain[random.below(arg.domainSize)](values);
        v.i = static_cast<long long>(v.re);
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

} // namespace

Arguments::Arguments(const Function& function)
    : f(function), values(function.argCount), extent(function.argCount), content(function.argCount),
      null(function.argCount)
{
}

size_t Arguments::bytes(int i) const
{
    const Arg& arg = f.args[i];
    const long long unit = arg.kind == Kind::opaque || arg.kind == Kind::work ? 1 : arg.elementBytes;
    return extent[i] > 0 ? static_cast<size_t>(extent[i] * unit) : 0;
}

bool Arguments::valid() const
{
    for (int i = 0; i < f.checkCount; ++i)
        if (f.checks[i].fails(values.data())) return false;
    return true;
}

void addFixture(const char* name, Fixture fixture) { known()[name] = std::move(fixture); }

bool chooseScalars(Arguments& a, Random& random, long long length, Pattern pattern)
{
    const Function& f = a.f;
    int lengths = 0;
    for (int i = 0; i < f.argCount; ++i)
        lengths += f.args[i].inExtent && f.args[i].kind == Kind::scalar && !f.args[i].domainSize;
    for (int attempt = 0; attempt < 500; ++attempt) {
        for (int i = 0; i < f.argCount; ++i) {
            const Arg& arg = f.args[i];
            if (arg.kind == Kind::scalar)
                a.values[i] = chooseScalar(arg, a.values.data(), random, length, lengths, pattern);
            else if (arg.kind == Kind::index)
                a.values[i].i = 0;
            else
                a.values[i].p = somewhere();
        }
        if (fixtureOf(f).scalars) fixtureOf(f).scalars(a, random, length);
        if (a.valid()) return true;
    }
    return false;
}

Arguments build(const Function& f, Random& random, long long length, Pattern pattern, uint64_t prefill,
                const Outlier& outlier)
{
    Arguments a(f);
    int arraysRead = 0;
    chooseScalars(a, random, length, pattern);
    measure(a);
    for (int i = 0; i < f.argCount; ++i) {
        const Arg& arg = f.args[i];
        if (arg.kind == Kind::scalar || arg.kind == Kind::index) continue;
        if (arg.optional && random.oneIn(4)) { // but not all that may be null, where one of them must be there
            a.values[i].p = nullptr;
            a.null[i] = a.valid();
            if (!a.null[i]) a.values[i].p = somewhere();
        }
        a.content[i].resize(a.bytes(i));
        for (size_t k = 0; k < a.content[i].size(); ++k) a.content[i][k] = static_cast<uint8_t>(prefill >> k % 8 * 8);
        const bool numbers = arg.kind == Kind::array || (arg.kind == Kind::result && arg.isConst); // a value by pointer
        if (!numbers || !(arg.isConst || arg.inout) || a.extent[i] <= 0) continue;
        fill(random, arg.element, pattern, a.content[i].data(), static_cast<size_t>(a.extent[i]));
        const int number = arraysRead++;
        if (outlier.position >= 0 && (outlier.array < 0 || outlier.array == number))
            plant(random, arg.element, outlier.value,
                  a.content[i].data() + outlier.position % a.extent[i] * elementBytes(arg.element));
    }
    if (fixtureOf(f).contents) fixtureOf(f).contents(a, random);
    return a;
}

void release(const Arguments& a)
{
    if (fixtureOf(a.f).release) fixtureOf(a.f).release(a);
}

} // namespace registry

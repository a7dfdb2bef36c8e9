#include "registry_cases.h"
#include "arguments.h"
#include "call.h"
#include "sizes.h"
#include <algorithm>
#include <cstring>

namespace bench {
namespace {

using registry::Arg;
using registry::Element;
using registry::Function;
using registry::Kind;
using registry::Value;

// Scalars that decide how much work an element is: one case for each value.
const struct Choice {
    const char* argument;
    std::vector<int> values;
} choices[] = {{"scaleFactor", {0, 1, 5, 15, -2}}};

// Where work beyond moving the arrays is the limit: operations on doubles for each element; flops are additions and
// multiplications.
const struct Work {
    const char* family; // or one function, after its family
    Element element;
    double divisions, squareRoots, flops = 0;
} works[] = {
    {"ippsDiv", Element::f64, 1, 0},           {"ippsDiv", Element::c64f, 1, 0},
    {"ippsDivCRev", Element::f64, 1, 0},       {"ippsSqrt", Element::f64, 0, 1},
    {"ippsSqrt", Element::c64f, 2, 2},         {"ippsMagnitude", Element::f64, 0, 1},
    {"ippsMagnitude", Element::c64f, 0, 1},    {"DivideValue", Element::f64, 1, 0},
    {"DivideValue", Element::c64f, 1, 0},      {"DivideValuedc", Element::f64, 2, 0},
    {"DivVeccd", Element::c64f, 2, 0},         {"DivVeccc", Element::c64f, 1, 0},
    {"DivVecdc", Element::f64, 1, 0},          {"ippsNormalize", Element::f64, 1, 0},
    {"ippsNormalize", Element::c64f, 2, 0},    {"ippsNorm_L1", Element::c64f, 0, 1},
    {"ippsNormDiff_L1", Element::c64f, 0, 1},  {"ippsDotProd", Element::c64f, 0, 0, 8},
    {"ippsStdDev", Element::f64, 0, 0, 4}, // a sum, and squares of distances from the mean
    {"ippsMeanStdDev", Element::f64, 0, 0, 4},
};

using Rule = double (*)(const Value*); // a scalar's value as it follows from others

Value number(double x)
{
    Value v;
    v.re = v.im = x;
    v.i = v.i2 = static_cast<long long>(x);
    return v;
}

bool isLength(const Arg& a) { return a.kind == Kind::scalar && a.inExtent && !a.domainSize; }

void* somewhere()
{
    alignas(64) static char zeros[256];
    return zeros;
}

// A function with its scalars chosen: the value of every argument but the lengths and the array addresses.
struct Job {
    const Function* f;
    std::vector<Value> values;
    const char* chosenArgument = "";
    int chosenValue = 0;
    std::vector<Rule> rules = {}; // of the scalars that have one: row strides follow the lengths

    void setLengths(long long n)
    {
        for (int i = 0; i < f->argCount; ++i)
            if (isLength(f->args[i])) values[i].i = n;
        for (int i = 0; i < f->argCount; ++i)
            if (rules[i]) values[i] = number(rules[i](values.data()));
        for (int i = 0; i < f->namedCount; ++i)
            if (f->named[i].value) values[f->argCount + i].i = f->named[i].value(values.data());
    }
    bool valid() const
    {
        for (int i = 0; i < f->checkCount; ++i)
            if (f->checks[i].fails(values.data())) return false;
        return true;
    }
    long long extent(int i) const { return f->args[i].extent ? std::max(0LL, f->args[i].extent(values.data())) : 0; }
};

// Values to try for a scalar, ordinary ones first: numbers that differ from argument to argument, grow with it, and are
// nothing special.
struct Candidate {
    double value;
    Rule rule;
};
std::vector<Candidate> candidates(const Job& job, int i)
{
    const Arg& a = job.f->args[i];
    std::vector<Candidate> all;
    const auto add = [&](std::initializer_list<double> values) {
        for (double x : values) all.push_back({x, nullptr});
    };
    if (!std::strcmp(a.name, job.chosenArgument)) {
        add({static_cast<double>(job.chosenValue)});
    } else if (!std::strcmp(a.name, "rndMode")) {
        add({1}); // what callers use, though not the largest
    } else {
        for (int k = 0; k < a.domainSize; ++k) all.push_back({a.domain[k].low(job.values.data()), a.domain[k].low});
        std::stable_partition(all.begin(), all.end(), [](const Candidate& c) { return c.value > 1; });
    }
    if (all.empty() && a.element == Element::none) add({1, 0, 2, 3, 8});
    if (all.empty() && registry::isFloating(a.element)) add({0.3125 + 0.0625 * i, -0.3125, 0, 1});
    if (all.empty()) add({37.0 + i, 3, 1, 0, -1});
    return all;
}

// The first combination, from argument i on, that passes all checks.
bool chooseScalars(Job& job, int i, int& attempts)
{
    if (i == job.f->argCount) return --attempts, job.valid();
    const Arg& a = job.f->args[i];
    if (a.kind != Kind::scalar || isLength(a)) return chooseScalars(job, i + 1, attempts);
    for (const Candidate& c : candidates(job, i)) {
        job.values[i] = number(c.value);
        job.rules[i] = c.rule;
        if (chooseScalars(job, i + 1, attempts)) return true;
        if (attempts <= 0) return false;
    }
    return false;
}

// The largest length whose arrays fit; a matrix has all its lengths equal.
long long largestLength(Job job, const Room& room)
{
    const auto fits = [&](long long n) {
        job.setLengths(n);
        double total = 0, largest = 0; // no product is too large for a double
        for (int i = 0; i < job.f->argCount; ++i) {
            if (job.f->args[i].kind != Kind::array) continue;
            const double bytes = static_cast<double>(job.extent(i)) * job.f->args[i].elementBytes;
            total += bytes;
            largest = std::max(largest, bytes);
        }
        return total <= static_cast<double>(room.total) && largest <= static_cast<double>(room.largest);
    };
    long long low = 1, high = 1LL << 31;
    while (low + 1 < high) {
        const long long middle = (low + high) / 2;
        (fits(middle) ? low : high) = middle;
    }
    return low;
}

Access accessOf(const Arg& a) { return a.isConst ? Access::read : a.inout ? Access::updated : Access::written; }

// Places the arrays; returns the argument values.
std::vector<Value> placeArrays(Job job, Setup& s)
{
    job.setLengths(s.size);
    for (int i = 0; i < job.f->argCount; ++i) {
        const Arg& a = job.f->args[i];
        if (a.kind == Kind::array) {
            const auto n = static_cast<size_t>(job.extent(i));
            job.values[i].p = s.memory().array(a.name, n, a.element, accessOf(a));
            s.elements = std::max(s.elements, static_cast<double>(n));
        } else if (a.kind == Kind::work) {
            job.values[i].p = s.scratch(static_cast<size_t>(job.extent(i)));
        } else if (a.kind == Kind::result) {
            job.values[i].p = s.scratch(64);
        }
    }
    return job.values;
}

void prepare(const Job& job, Setup& s)
{
    const Function& f = *job.f;
    const std::vector<Value> values = placeArrays(job, s);
    for (const Work& w : works)
        if ((!std::strcmp(w.family, f.family) || !std::strcmp(w.family, f.name)) && f.args[0].element == w.element) {
            s.divisions = w.divisions * s.elements;
            s.squareRoots = w.squareRoots * s.elements;
            s.flops = w.flops * s.elements;
        }
    const bool indexed = f.index == registry::IndexForm::only;
    const std::vector<int> zeros(static_cast<size_t>(f.argCount));
    const auto words = indexed ? wordsOfIndexed(f, values.data(), zeros.data()) : wordsOf(f, values.data());
#ifdef _WIN32
    const bool pops = f.standardCall && !indexed;
#else
    const bool pops = false;
#endif
    const registry::Entry entry = registry::exported(exportOf(f).c_str());
    s.batch = repeatedCall(entry, words, pops, f.result == registry::Result::f64);
    s.sameCall = [=](registry::Entry other) { return repeatedCall(other, words, pops, false); };
    s.poppedBytes = pops ? words.stack.size() * sizeof(uintptr_t) : 0;
}

// Why a function has no case of this kind; null: it has one.
const char* obstacle(const Function& f)
{
    bool array = false, length = false;
    for (int i = 0; i < f.argCount; ++i) {
        array |= f.args[i].kind == Kind::array;
        length |= isLength(f.args[i]);
        if (f.args[i].kind == Kind::opaque || f.args[i].kind == Kind::pointer)
            return "arguments that only a case of its own can build";
    }
    bool follows = !*f.untested && !f.ruleCount;
    for (int i = 0; i < f.namedCount; ++i) follows &= f.named[i].source == registry::Source::computed;
    if (!follows) return "arguments that only a case of its own can build";
    if (!array || !length) return "no array whose length is an argument";
    return nullptr;
}

// Calls the function once on a few elements; null: it did its work.
const char* refusal(const Job& job)
{
    Memory memory;
    Setup s(memory, 16);
    const std::vector<Value> values = placeArrays(job, s);
    const std::vector<int> zeros(values.size());
    const Function& f = *job.f;
    const bool indexed = f.index == registry::IndexForm::only;
    const registry::Entry entry = registry::exported(exportOf(f).c_str());
    if (!entry) return "not exported";
    const auto answer =
        indexed ? invokeIndexed(entry, f, values.data(), zeros.data()) : invoke(entry, f, values.data());
    return f.result == registry::Result::status && answer.status < 0 ? "an error status" : nullptr;
}

void addJob(Job job, const std::string& name, const Selection& selection, std::vector<Skipped>& skipped)
{
    const Function& f = *job.f;
    int attempts = 1000;
    job.values.resize(static_cast<size_t>(f.argCount + f.namedCount));
    job.rules.resize(static_cast<size_t>(f.argCount));
    for (int i = 0; i < f.argCount; ++i)
        if (f.args[i].kind != Kind::scalar && f.args[i].kind != Kind::index) job.values[i].p = somewhere();
    job.setLengths(16);
    if (!chooseScalars(job, 0, attempts)) return skipped.push_back({name, "no valid scalars found"});
    if (const char* reason = refusal(job)) return skipped.push_back({name, reason});

    std::vector<Size> sizes;
    const auto add = [&](long long n, Level level) {
        job.setLengths(n);
        if (selection.has(level) && job.valid()) sizes.push_back({n, level});
    };
    for (long long n : {1, 4, 16, 64}) add(n, Level::tiny);
    for (Level level : {Level::L1, Level::L2, Level::memory})
        if (selection.has(level)) add(largestLength(job, roomAt(level)), level);
    addCase(name, std::move(sizes), [job](Setup& s) { prepare(job, s); });
}

} // namespace

std::vector<Skipped> addRegistryCases(const Selection& selection, const std::function<bool(const std::string&)>& wanted)
{
    std::vector<Skipped> skipped;
    for (const Function& f : registry::functions()) {
        const std::string name = exportOf(f);
        const Choice* choice = nullptr;
        for (const Choice& c : choices)
            for (int i = 0; i < f.argCount; ++i)
                if (!std::strcmp(f.args[i].name, c.argument)) choice = &c;
        std::vector<Job> jobs;
        if (!choice) jobs.push_back({&f, {}});
        for (int k = 0; choice && k < static_cast<int>(choice->values.size()); ++k)
            jobs.push_back({&f, {}, choice->argument, choice->values[static_cast<size_t>(k)]});
        for (const Job& job : jobs) {
            const std::string whole =
                choice ? name + " " + job.chosenArgument + "=" + std::to_string(job.chosenValue) : name;
            if (!wanted(whole)) continue;
            if (const char* reason = obstacle(f))
                skipped.push_back({whole, reason});
            else
                addJob(job, whole, selection, skipped);
        }
    }
    return skipped;
}

} // namespace bench

#include "rules.h"
#include <cmath>
#include <cstring>
#include <limits>

namespace registry {
namespace {

// The numbers of an array, both parts of complex ones. A function object gets them by reference, with their places.
template <class T, class Change> void changeEach(std::vector<uint8_t>& bytes, Change change)
{
    for (size_t k = 0; k < bytes.size() / sizeof(T); ++k) {
        T x;
        std::memcpy(&x, &bytes[k * sizeof x], sizeof x);
        change(k, x);
        std::memcpy(&bytes[k * sizeof x], &x, sizeof x);
    }
}
template <class Change> void changeNumbers(Arguments& a, int i, Change change)
{
    auto& bytes = a.content[i];
    switch (a.f.args[i].element) {
    case Element::u8:
        return changeEach<uint8_t>(bytes, change);
    case Element::i8:
        return changeEach<int8_t>(bytes, change);
    case Element::u16:
        return changeEach<uint16_t>(bytes, change);
    case Element::i16:
        return changeEach<int16_t>(bytes, change);
    case Element::u32:
        return changeEach<uint32_t>(bytes, change);
    case Element::i32:
        return changeEach<int32_t>(bytes, change);
    case Element::f32:
        return changeEach<float>(bytes, change);
    case Element::f64:
    case Element::c64f:
        return changeEach<double>(bytes, change);
    default:
        break; // the generator refuses rules for other types
    }
}
std::vector<double> numbersOf(Arguments& a, int i)
{
    std::vector<double> all;
    changeNumbers(a, i, [&](size_t, auto& x) { all.push_back(static_cast<double>(x)); });
    return all;
}
bool isScalar(const Arguments& a, int i) { return a.f.args[i].kind == Kind::scalar; }

// 7 for 0: a divisor that tells more than 1.
double otherThan(double x) { return x == 0 ? 7 : x + 1; }

// Which elements a rule is about.
class Places
{
public:
    Places(const Arguments& a, const ValueRule& r)
        : parts_(a.f.args[r.argument].element == Element::c64f ? 2 : 1), first_(r.place ? r.place(a.values.data()) : 0),
          step_(r.step    ? r.step(a.values.data())
                : r.place ? 1LL << 40
                          : 1)
    {
    }
    bool have(size_t number) const
    {
        const long long k = static_cast<long long>(number) / parts_;
        return k >= first_ && (k - first_) % step_ == 0;
    }

private:
    long long parts_, first_, step_;
};

void avoid(Arguments& a, int i, const Places& places, double bad)
{
    const double good = otherThan(bad);
    Value& v = a.values[i];
    if (!isScalar(a, i))
        changeNumbers(a, i, [&](size_t k, auto& x) {
            if (places.have(k) && static_cast<double>(x) == bad)
                x = static_cast<std::remove_reference_t<decltype(x)>>(good);
        });
    else if (isFloating(a.f.args[i].element) ? v.re == bad : v.i == static_cast<long long>(bad))
        v.re = good, v.i = static_cast<long long>(good);
}

// Numbers below "size", the last one among them; with repetitions, in runs now and then.
void countBelow(Arguments& a, int i, long long size, bool apart, Random& random)
{
    const bool runs = random.oneIn(3);
    long long last = -1, n = a.extent[i], largest = n > 0 ? random.below(n) : 0;
    changeNumbers(a, i, [&](size_t k, auto& x) {
        long long now = runs && k && !random.oneIn(10) ? last : random.below(size);
        if (static_cast<long long>(k) == largest) now = size - 1;
        if (apart && now == last) now = (now + 1) % size;
        x = static_cast<std::remove_reference_t<decltype(x)>>(last = now);
    });
}

void spread(Arguments& a, int i, const Places& places, double low, double high, bool often, Random& random)
{
    if (often && (!std::isfinite(low) || !std::isfinite(high) || random.oneIn(2))) return;
    const bool runs = often && random.oneIn(3);
    double last = low;
    changeNumbers(a, i, [&](size_t k, auto& x) {
        if (!places.have(k) || (often && random.oneIn(20))) return;
        if (!runs || !k || random.oneIn(10)) last = low + (high - low) * (double(random.bits() >> 11) * 0x1p-53);
        x = static_cast<std::remove_reference_t<decltype(x)>>(last);
    });
}

// Positive numbers select. Their share is the same all along, or changes every so often.
long long select(Arguments& a, int i, Random& random)
{
    static const int shares[] = {0, 1, 5, 20, 50, 80, 99, 100};
    static const int on[] = {1, 2, 5, INT32_MAX}, off[] = {0, -1, -7, INT32_MIN};
    const bool stretches = random.oneIn(3);
    long long share = shares[random.below(8)], count = 0;
    changeNumbers(a, i, [&](size_t, auto& x) {
        if (stretches && random.oneIn(40)) share = shares[random.below(8)];
        const bool selected = random.below(100) < share;
        x = static_cast<std::remove_reference_t<decltype(x)>>((selected ? on : off)[random.below(4)]);
        count += selected;
    });
    return count;
}

constexpr double special[] = {NAN, -NAN, INFINITY, -INFINITY, 0.0, -0.0, 0.5};

// What is compared with others: some numbers equal those, some are NaN or infinite.
void imitate(Arguments& a, int i, int other, Random& random)
{
    const bool floating = isFloating(a.f.args[i].element);
    const auto models =
        isScalar(a, other) ? std::vector<double>{floating ? a.values[other].re : static_cast<double>(a.values[other].i)}
                           : numbersOf(a, other);
    if (models.empty() || random.oneIn(3)) return;
    if (isScalar(a, i)) {
        Value& v = a.values[i];
        v.re = floating && random.oneIn(2) ? special[random.below(7)]
                                           : models[random.below(static_cast<long long>(models.size()))];
        if (!floating) v.i = static_cast<long long>(v.re);
        return;
    }
    changeNumbers(a, i, [&](size_t k, auto& x) {
        using T = std::remove_reference_t<decltype(x)>;
        if (random.oneIn(3)) x = static_cast<T>(models[k % models.size()]);
        if constexpr (std::is_floating_point_v<T>)
            if (random.oneIn(4)) x = static_cast<T>(special[random.below(7)]);
    });
}

} // namespace

void keepToRules(Arguments& a, Random& random)
{
    for (int k = 0; k < a.f.ruleCount; ++k) {
        const ValueRule& r = a.f.rules[k];
        const double first = r.first ? r.first(a.values.data()) : 0, second = r.second ? r.second(a.values.data()) : 0;
        switch (r.rule) {
        case Rule::other:
            avoid(a, r.argument, Places(a, r), first);
            break;
        case Rule::below:
        case Rule::apart:
            countBelow(a, r.argument, static_cast<long long>(first), r.rule == Rule::apart, random);
            break;
        case Rule::within:
        case Rule::often_within:
            spread(a, r.argument, Places(a, r), first, second, r.rule == Rule::often_within, random);
            break;
        case Rule::selects:
            a.values[r.other].i = select(a, r.argument, random);
            break;
        case Rule::like:
            imitate(a, r.argument, r.other, random);
            break;
        }
    }
}

} // namespace registry

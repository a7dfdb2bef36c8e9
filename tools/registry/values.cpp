#include "values.h"
#include <cmath>
#include <cstring>
#include <limits>

namespace registry {
namespace {

template <class F> void anyBits(Random& r, F* to)
{
    const uint64_t bits = r.bits();
    std::memcpy(to, &bits, sizeof *to);
}

// Numbers are stored, not returned: the result register of 32-bit code would make signalling NaN quiet.
template <class F> void adversarialFloat(Random& r, F* to)
{
    using L = std::numeric_limits<F>;
    const F specials[] = {F(0),
                          -F(0),
                          F(1),
                          F(-1),
                          F(0.5),
                          F(-0.5),
                          F(1.5),
                          F(2.5),
                          F(-2.5),
                          L::min(),
                          -L::min(),
                          L::denorm_min(),
                          -L::denorm_min(),
                          L::max(),
                          L::lowest(),
                          L::infinity(),
                          -L::infinity(),
                          L::quiet_NaN(),
                          -L::quiet_NaN(),
                          L::epsilon(),
                          F(127.5),
                          F(255.5),
                          F(-128.5),
                          F(32767.5),
                          F(-32768.5),
                          F(2147483647),
                          F(-2147483648.0),
                          F(4294967296.0),
                          F(9.2233720368547758e18)};
    switch (r.below(4)) {
    case 0:
        *to = specials[r.below(sizeof specials / sizeof *specials)];
        return;
    case 1:
        *to = F(r.below(2001) - 1000) / F(2);
        return; // integers and halves
    case 2:
        *to = F((double(r.bits() >> 11) * 0x1p-53 - 0.5) * std::ldexp(1.0, int(r.below(60)) - 30));
        return;
    default:
        anyBits(r, to);
    }
}

template <class F> void floating(Random& r, Pattern p, F* to)
{
    using L = std::numeric_limits<F>;
    switch (p) {
    case Pattern::anyBits:
        return anyBits(r, to);
    case Pattern::adversarial:
        return adversarialFloat(r, to);
    case Pattern::tame:
        *to = F(double(r.bits() >> 11) * 0x1p-52 - 1.0);
        return;
    case Pattern::lowest:
        *to = L::lowest();
        return;
    default:
        *to = L::max();
    }
}

template <class F> double number(Random& r, Pattern p)
{
    F x;
    floating(r, p, &x);
    return x;
}

template <class F> void fillFloating(Random& r, Pattern p, uint8_t* bytes, size_t n)
{
    for (size_t i = 0; i < n; ++i) {
        F x;
        floating(r, p, &x);
        std::memcpy(bytes + i * sizeof x, &x, sizeof x);
    }
}

template <class I> I integer(Random& r, Pattern p)
{
    using L = std::numeric_limits<I>;
    switch (p) {
    case Pattern::anyBits:
        return static_cast<I>(r.bits());
    case Pattern::adversarial: {
        const I specials[] = {0,
                              1,
                              2,
                              3,
                              I(-1),
                              I(-2),
                              I(-3),
                              L::min(),
                              I(L::min() + 1),
                              L::max(),
                              I(L::max() - 1),
                              I(L::max() / 2),
                              I(L::max() / 2 + 1)};
        return r.oneIn(2) ? specials[r.below(sizeof specials / sizeof *specials)] : static_cast<I>(r.bits());
    }
    case Pattern::tame:
        return static_cast<I>(r.below(100));
    case Pattern::lowest:
        return L::min();
    default:
        return L::max();
    }
}

template <class T, class Make> void fillWith(uint8_t* bytes, size_t n, Make make)
{
    for (size_t i = 0; i < n; ++i) {
        const T x = make();
        std::memcpy(bytes + i * sizeof(T), &x, sizeof(T));
    }
}

template <class T> T special(Random& r, Special s)
{
    using L = std::numeric_limits<T>;
    switch (s) {
    case Special::nan:
        return L::has_quiet_NaN ? L::quiet_NaN() : L::lowest();
    case Special::infinite:
        if (!L::has_infinity) return L::max();
        return r.oneIn(2) ? L::infinity() : static_cast<T>(-L::infinity());
    case Special::zero:
        return L::has_infinity && r.oneIn(2) ? static_cast<T>(-T(0)) : T(0);
    default:
        return static_cast<T>(-3);
    }
}

template <class T> void plantParts(Random& r, Special s, uint8_t* at, int parts)
{
    const long long which = parts == 1 ? 1 : 1 + r.below(3); // the real part, the imaginary part, both
    for (int i = 0; i < parts; ++i) {
        const T x = special<T>(r, s);
        if (which >> i & 1) std::memcpy(at + static_cast<size_t>(i) * sizeof x, &x, sizeof x);
    }
}

} // namespace

int elementBytes(Element e)
{
    switch (e) {
    case Element::u8:
    case Element::i8:
    case Element::bits:
        return 1;
    case Element::u16:
    case Element::i16:
    case Element::f16:
        return 2;
    case Element::u24:
    case Element::i24:
        return 3;
    case Element::c16s:
    case Element::u32:
    case Element::i32:
    case Element::f32:
        return 4;
    case Element::c64s:
    case Element::c64f:
        return 16;
    default:
        return 8;
    }
}

bool isFloating(Element e)
{
    return e == Element::f32 || e == Element::f64 || e == Element::c32f || e == Element::c64f;
}

void fill(Random& r, Element e, Pattern p, uint8_t* bytes, size_t n)
{
    switch (e) {
    case Element::f32:
        return fillFloating<float>(r, p, bytes, n);
    case Element::c32f:
        return fillFloating<float>(r, p, bytes, 2 * n);
    case Element::f64:
        return fillFloating<double>(r, p, bytes, n);
    case Element::c64f:
        return fillFloating<double>(r, p, bytes, 2 * n);
    case Element::i16:
        return fillWith<int16_t>(bytes, n, [&] { return integer<int16_t>(r, p); });
    case Element::c16s:
        return fillWith<int16_t>(bytes, 2 * n, [&] { return integer<int16_t>(r, p); });
    case Element::i32:
        return fillWith<int32_t>(bytes, n, [&] { return integer<int32_t>(r, p); });
    case Element::c32s:
        return fillWith<int32_t>(bytes, 2 * n, [&] { return integer<int32_t>(r, p); });
    case Element::i64:
        return fillWith<int64_t>(bytes, n, [&] { return integer<int64_t>(r, p); });
    case Element::c64s:
        return fillWith<int64_t>(bytes, 2 * n, [&] { return integer<int64_t>(r, p); });
    case Element::i8:
        return fillWith<int8_t>(bytes, n, [&] { return integer<int8_t>(r, p); });
    case Element::u16:
        return fillWith<uint16_t>(bytes, n, [&] { return integer<uint16_t>(r, p); });
    case Element::u32:
        return fillWith<uint32_t>(bytes, n, [&] { return integer<uint32_t>(r, p); });
    default: // the unsigned rest, half floats and 24-bit integers: any bytes are values
        return fillWith<uint8_t>(bytes, n * static_cast<size_t>(elementBytes(e)),
                                 [&] { return integer<uint8_t>(r, p); });
    }
}

void plant(Random& r, Element e, Special s, uint8_t* at)
{
    switch (e) {
    case Element::f32:
        return plantParts<float>(r, s, at, 1);
    case Element::c32f:
        return plantParts<float>(r, s, at, 2);
    case Element::f64:
        return plantParts<double>(r, s, at, 1);
    case Element::c64f:
        return plantParts<double>(r, s, at, 2);
    case Element::i16:
        return plantParts<int16_t>(r, s, at, 1);
    case Element::c16s:
        return plantParts<int16_t>(r, s, at, 2);
    case Element::i32:
        return plantParts<int32_t>(r, s, at, 1);
    case Element::c32s:
        return plantParts<int32_t>(r, s, at, 2);
    case Element::i64:
        return plantParts<int64_t>(r, s, at, 1);
    case Element::c64s:
        return plantParts<int64_t>(r, s, at, 2);
    case Element::i8:
        return plantParts<int8_t>(r, s, at, 1);
    case Element::u16:
        return plantParts<uint16_t>(r, s, at, 1);
    case Element::u32:
        return plantParts<uint32_t>(r, s, at, 1);
    case Element::u64:
        return plantParts<uint64_t>(r, s, at, 1);
    case Element::f16: {
        static const uint16_t halves[] = {0x7E01, 0xFC00, 0x8000, 0xC200};
        std::memcpy(at, &halves[static_cast<int>(s)], sizeof halves[0]);
        return;
    }
    case Element::u24:
    case Element::i24: {
        static const uint32_t numbers[] = {0x800000, 0x7FFFFF, 0, 0xFFFFFD};
        std::memcpy(at, &numbers[static_cast<int>(s)], 3);
        return;
    }
    default:
        return plantParts<uint8_t>(r, s, at, 1); // also bits
    }
}

Value scalar(Random& r, Element e, Pattern p)
{
    Value v;
    switch (e) {
    case Element::f32:
        v.re = number<float>(r, p);
        break;
    case Element::f64:
        v.re = number<double>(r, p);
        break;
    case Element::c64f:
        v.re = number<double>(r, p);
        v.im = number<double>(r, p);
        break;
    case Element::u8:
        v.i = integer<uint8_t>(r, p);
        break;
    case Element::i8:
        v.i = integer<int8_t>(r, p);
        break;
    case Element::u16:
        v.i = integer<uint16_t>(r, p);
        break;
    case Element::i16:
        v.i = integer<int16_t>(r, p);
        break;
    case Element::c32s:
        v.i = integer<int32_t>(r, p);
        v.i2 = integer<int32_t>(r, p);
        break;
    case Element::i64:
    case Element::u64:
        v.i = integer<int64_t>(r, p);
        break;
    default:
        v.i = integer<int32_t>(r, p);
        break;
    }
    return v;
}

long long fitting(long long x, Element type)
{
    switch (type) {
    case Element::u8:
        return static_cast<uint8_t>(x);
    case Element::i16:
        return static_cast<int16_t>(x);
    case Element::u16:
        return static_cast<uint16_t>(x);
    case Element::u64:
    case Element::i64:
        return x;
    default:
        return static_cast<int32_t>(x);
    }
}

} // namespace registry

// Sizes of filter specifications and work buffers for any arguments: never less than the documented parts amount to in
// 128 bits, never smaller for more taps, refused only when they could not fit.
#include "fuzz.h"
#include "sig5d.h"
#include <climits>

namespace {

using Wide = __int128;

Wide align64(Wide x) { return (x + 63) / 64 * 64; }

struct Sizes {
    int status = 0, spec = -1, buffer = -1;
};

Sizes single(int taps, int type)
{
    Sizes s;
    s.status = ippsFIRSRGetSize(taps, type, &s.spec, &s.buffer);
    return s;
}
Sizes multi(int taps, int up, int down, int type)
{
    Sizes s;
    s.status = ippsFIRMRGetSize(taps, up, down, type, &s.spec, &s.buffer);
    return s;
}

int bytesOf(int type) { return type == 13 ? 4 : type == 20 ? 16 : 8; }

// Near the limits, near powers of two, and anything.
int length(fuzz::Input& in)
{
    switch (in.below(4)) {
    case 0:
        return in.any<int>();
    case 1:
        return static_cast<int>((1u << in.below(32)) + in.below(5) - 2u);
    case 2:
        return static_cast<int>(in.below(65536)) * 512;
    default:
        return static_cast<int>(in.below(5000));
    }
}
// Of the four, mostly.
int dataType(fuzz::Input& in)
{
    static const int types[] = {13, 14, 19, 20};
    return in.oneIn(8) ? in.any<int>() : types[in.below(4)];
}
bool known(int type) { return type == 13 || type == 14 || type == 19 || type == 20; }

void checkSingle(int taps, int type)
{
    const std::string said = "single rate, " + std::to_string(taps) + " taps of type " + std::to_string(type) + ": ";
    const Sizes s = single(taps, type);
    if (taps < 1)
        return fuzz::expect(s.status == ippStsSizeErr && s.spec == -1 && s.buffer == -1, said + "no taps are refused");
    if (!known(type))
        return fuzz::expect(s.status == ippStsDataTypeErr && s.spec == -1, said + "an unknown type is refused");
    const Wide e = bytesOf(type), t = taps;
    Wide n = 2;
    while (n <= 2 * t) n *= 2; // twice the smallest power of two above the taps
    const Wide spec = align64(t * e) + 127 + n * e;
    const Wide buffer = align64(2 * t * e) + 32768 + align64(2 * (t - 1) * e) + n * e;
    if (s.status == 0) {
        fuzz::expect(s.spec >= spec && s.buffer >= buffer, said + "too small");
        fuzz::expect(s.spec <= 4 * spec + 65536 && s.buffer <= 4 * buffer + 65536, said + "too large");
    } else {
        fuzz::expect(s.status == ippStsSizeErr && s.spec == -1 && s.buffer == -1, said + "refusal");
        fuzz::expect(4 * (spec + buffer) + 65536 > INT_MAX, said + "refused without need");
    }
    if (taps == INT_MAX) return;
    const Sizes next = single(taps + 1, type);
    if (s.status) return fuzz::expect(next.status == s.status, said + "one more tap is accepted again");
    fuzz::expect(next.status || (next.spec >= s.spec && next.buffer >= s.buffer), said + "one more tap asks for less");
}

void checkMulti(int taps, int up, int down, int type)
{
    const std::string said = "multi rate, " + std::to_string(taps) + " taps, " + std::to_string(up) + '/' +
                             std::to_string(down) + ", type " + std::to_string(type) + ": ";
    const Sizes s = multi(taps, up, down, type);
    if (s.status) {
        fuzz::expect(s.spec == -1 && s.buffer == -1, said + "a refusal that writes");
        const int first = taps < 1             ? ippStsFIRLenErr
                          : !known(type)       ? ippStsDataTypeErr
                          : up < 1 || down < 1 ? ippStsFIRMRFactorErr
                                               : 0;
        if (first) fuzz::expect(s.status == first, said + "another status: " + std::to_string(s.status));
        return;
    }
    fuzz::expect(taps >= 1 && up >= 1 && down >= 1 && known(type), said + "accepted");
    if (up == 1 && down == 1) {
        const Sizes one = single(taps, type);
        return fuzz::expect(one.spec == s.spec && one.buffer == s.buffer, said + "not those of a single rate");
    }
    const Wide e = bytesOf(type), l = (Wide(taps) - 1 + up) / up;
    fuzz::expect(s.spec >= align64(e * taps) + 127, said + "too small a specification");
    fuzz::expect(s.buffer >= (l * 32 + 126) / 128 * 128 + 65599 + align64(l * 16 + 16), said + "too small a buffer");
}

} // namespace

void fuzz::sizes(Input& in)
{
    while (!in.empty()) {
        const int taps = length(in), type = dataType(in);
        if (in.oneIn(2))
            checkSingle(taps, type);
        else if (in.oneIn(2))
            checkMulti(taps, length(in), length(in), type);
        else
            checkMulti(taps, static_cast<int>(in.below(400)), static_cast<int>(in.below(400)), type);
    }
}

// Values that find faults: random bits, limits, signed zeros, denormals, infinities, NaN, half-way cases.
#pragma once
#include "registry.h"
#include <random>
#include <vector>

namespace registry {

// The same numbers on every platform: the engine is specified, and no standard distribution is used.
class Random
{
public:
    explicit Random(uint64_t seed) : engine_(seed * 0x9E3779B97F4A7C15u + 0x632BE59BD9B4E019u) {}
    uint64_t bits() { return engine_(); }
    long long below(long long n) { return static_cast<long long>(engine_() % static_cast<uint64_t>(n)); }
    bool oneIn(int n) { return below(n) == 0; }

private:
    std::mt19937_64 engine_;
};

enum class Pattern { anyBits, adversarial, tame, lowest, highest, count };

// Elements of the type; tame: numbers of ordinary size, for results that stay finite.
void fill(Random& random, Element element, Pattern pattern, uint8_t* bytes, size_t elements);
Value scalar(Random& random, Element element, Pattern pattern);
// A value that functions treat unlike its neighbours; integers have their lowest and highest one for the first two.
enum class Special { nan, infinite, zero, negative, count };
void plant(Random& random, Element element, Special special, uint8_t* at);
// A number as an argument of the type: what does not fit would arrive as another number.
long long fitting(long long x, Element type);
int elementBytes(Element element);
bool isFloating(Element element);

} // namespace registry

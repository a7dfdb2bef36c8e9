// Phase and polar to Cartesian against MPFR: prints the largest errors in ulp. An argument sets the number of points of
// each kind (the test runs 2 * 10^5). MPFR sees the points where long double, whose functions are good for a hundredth
// of a double's last place, finds an error next to the largest.
#include "support/mpfr_ulps.h"
#include "support/bytes.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace support;

namespace {

constexpr int block = 1000;
using Block = double[block];

struct Worst {
    double error = 0, x = 0, y = 0;
    void see(double e, double atX, double atY)
    {
        if (!(e <= error)) *this = {e, atX, atY};
    }
};

// Whether an error may be the largest so far.
bool candidate(double got, long double right, const Worst& worst)
{
    int exponent;
    std::frexp(right, &exponent);
    const long double error = std::fabs(got - right) / std::ldexp(1.0L, std::max(exponent - 53, -1074));
    return !(error < worst.error - 0.02);
}

double unit(uint64_t r) { return double(r >> 11) * 0x1p-53; }
double finite(uint64_t bits)
{
    double x;
    std::memcpy(&x, &bits, sizeof x);
    return std::isfinite(x) ? x : 1.0;
}

bool report(const char* function, const char* kind, const Worst& w)
{
    std::printf("%-6s %-40s %.4f ulp at %a %a\n", function, kind, w.error, w.x, w.y);
    return w.error < 0.95;
}

template <class Point> bool phases(const char* kind, long points, Point point)
{
    static Block re, im, angle;
    Real x(53), y(53), exact(160);
    std::mt19937_64 random(1);
    Worst worst;
    for (; points > 0; points -= block) {
        for (int i = 0; i < block; ++i) point(random, re[i], im[i]);
        call("ippsPhase_64f", (const void*)re, (const void*)im, (void*)angle, block);
        for (int i = 0; i < block; ++i) {
            if (!candidate(angle[i], std::atan2(static_cast<long double>(im[i]), re[i]), worst)) continue;
            mpfr_set_d(x.v, re[i], MPFR_RNDN);
            mpfr_set_d(y.v, im[i], MPFR_RNDN);
            mpfr_atan2(exact.v, y.v, x.v, MPFR_RNDN);
            worst.see(ulps(angle[i], exact), re[i], im[i]);
        }
    }
    return report("phase", kind, worst);
}

template <class Argument> bool circle(const char* kind, long points, Argument argument)
{
    static Block one, angle, re, im;
    std::fill(one, one + block, 1.0);
    Real x(53), s(160), c(160);
    std::mt19937_64 random(2);
    Worst sine, cosine;
    for (; points > 0; points -= block) {
        for (double& a : angle) a = argument(random());
        call("ippsPolarToCart_64f", (const void*)one, (const void*)angle, (void*)re, (void*)im, block);
        for (int i = 0; i < block; ++i) {
            const long double a = angle[i];
            if (!candidate(im[i], std::sin(a), sine) && !candidate(re[i], std::cos(a), cosine)) continue;
            mpfr_set_d(x.v, angle[i], MPFR_RNDN);
            mpfr_sin_cos(s.v, c.v, x.v, MPFR_RNDN);
            sine.see(ulps(im[i], s), angle[i], 0);
            cosine.see(ulps(re[i], c), angle[i], 0);
        }
    }
    return report("sin", kind, sine) & report("cos", kind, cosine);
}

} // namespace

int main(int argc, char** argv)
{
    const long points = argc > 1 ? std::atol(argv[1]) : 200000;
    using Random = std::mt19937_64;
    bool good = phases("square", points, [](Random& r, double& x, double& y) {
        x = 2 * unit(r()) - 1;
        y = 2 * unit(r()) - 1;
    });
    good &= phases("exponents 40 apart", points, [](Random& r, double& x, double& y) {
        x = std::ldexp(unit(r()) - 0.5, int(r() % 40));
        y = std::ldexp(unit(r()) - 0.5, int(r() % 40));
    });
    good &= phases("slopes near 1/4 and 1", points, [](Random& r, double& x, double& y) {
        x = 1 + unit(r());
        y = x * (r() & 1 ? 1 : 0.25) * (1 + std::ldexp(unit(r()) - 0.5, -int(r() % 50)));
    });
    good &= phases("all bit patterns", points, [](Random& r, double& x, double& y) {
        x = finite(r());
        y = r() & 1 ? finite(r()) : std::clamp(x, -0x1p1022, 0x1p1022) * (2 * unit(r()));
    });
    good &= circle("[-pi, pi)", points, [](uint64_t r) { return 6.2831853 * unit(r) - 3.14159265; });
    good &= circle("[-2^15, 2^15)", points, [](uint64_t r) { return 65536 * unit(r) - 32768; });
    good &= circle("all bit patterns", points, [](uint64_t r) { return finite(r); });
    good &= circle("doubles next to multiples of pi/2", points, [](uint64_t r) {
        double x = double(1 + r % 20900) * 1.5707963267948966;
        for (int away = int(r >> 40 & 3); away > 0; --away) x = std::nextafter(x, r >> 63 ? HUGE_VAL : 0.0);
        return x;
    });
    return good ? 0 : 1;
}

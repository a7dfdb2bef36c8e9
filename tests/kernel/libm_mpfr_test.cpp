// The scalar functions against MPFR: prints the largest errors in ulp. An argument sets the number of points of each
// kind (10^7 takes a minute; the test runs 3 * 10^5).
#include "support/mpfr_ulps.h"
#include "kernel/libm.h"
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>

using namespace sig5d;
using support::Real;
using support::ulps;

namespace {

struct Worst {
    double error = 0, x = 0;
    void see(double e, double at)
    {
        if (!(e <= error)) *this = {e, at};
    }
};

bool report(const char* kind, const Worst& sine, const Worst& cosine)
{
    std::printf("%-34s sin %.4f ulp at %a, cos %.4f ulp at %a\n", kind, sine.error, sine.x, cosine.error, cosine.x);
    return sine.error <= 0.6 && cosine.error <= 0.6;
}

template <class Argument> bool radians(const char* kind, long points, Argument argument)
{
    Real x(53), s(160), c(160);
    Worst sine, cosine;
    std::mt19937_64 random(3);
    for (long i = 0; i < points; ++i) {
        const double a = argument(random());
        mpfr_set_d(x.v, a, MPFR_RNDN);
        mpfr_sin_cos(s.v, c.v, x.v, MPFR_RNDN);
        sine.see(ulps(libm::sin(a), s), a);
        cosine.see(ulps(libm::cos(a), c), a);
    }
    return report(kind, sine, cosine);
}

bool turns(const char* kind, long points, bool powersOfTwo)
{
    Real angle(220), s(160), c(160), twoPi(200);
    mpfr_const_pi(twoPi.v, MPFR_RNDN);
    mpfr_mul_2ui(twoPi.v, twoPi.v, 1, MPFR_RNDN);
    Worst sine, cosine;
    std::mt19937_64 random(4);
    for (long i = 0; i < points; ++i) {
        const uint64_t r = random();
        const int64_t n = powersOfTwo ? int64_t(1) << (1 + r % 32) : int64_t(r % ((uint64_t(1) << (1 + r % 53)))) + 1;
        const int64_t k = int64_t(random() % uint64_t(n));
        mpfr_mul_si(angle.v, twoPi.v, k, MPFR_RNDN);
        mpfr_div_si(angle.v, angle.v, n, MPFR_RNDN);
        mpfr_sin_cos(s.v, c.v, angle.v, MPFR_RNDN);
        const libm::CosSin a = libm::cosSinTurn(k, n);
        const bool quarters = 4 * k % n == 0; // where one of the exact values is 0 and MPFR's argument is not exact
        sine.see(quarters && a.sin == 0 ? 0 : ulps(a.sin, s), double(k) / double(n));
        cosine.see(quarters && a.cos == 0 ? 0 : ulps(a.cos, c), double(k) / double(n));
    }
    return report(kind, sine, cosine);
}

double unit(uint64_t r) { return double(r >> 11) * 0x1p-53; }

} // namespace

int main(int argc, char** argv)
{
    const long points = argc > 1 ? std::atol(argv[1]) : 300000;
    bool good = radians("[-0.8, 0.8)", points, [](uint64_t r) { return 1.6 * unit(r) - 0.8; });
    good &= radians("[-10^6, 10^6)", points, [](uint64_t r) { return 2e6 * unit(r) - 1e6; });
    good &=
        radians("all bit patterns", points, [](uint64_t r) { return std::isfinite(fromBits(r)) ? fromBits(r) : 1.0; });
    good &= radians("doubles next to multiples of pi/2", points, [](uint64_t r) {
        double x = double(1 + r % 4000000) * 1.5707963267948966;
        for (int away = int(r >> 40 & 3); away > 0; --away) x = std::nextafter(x, r >> 63 ? HUGE_VAL : 0.0);
        return x;
    });
    good &= turns("2 pi k / n, n a power of two", points / 3, true);
    good &= turns("2 pi k / n, any n", points / 3, false);
    return good ? 0 : 1;
}

// The logarithm of the kernels against MPFR: prints the largest errors in ulp. An argument sets the number of points of
// each kind.
#define SIG5D_VARIANT px
#define SIG5D_LEVEL 0
#include "kernel/log.h"
#include "support/mpfr_ulps.h"
#include <cstdio>
#include <cstdlib>
#include <random>

using namespace support;

namespace {

double unit(uint64_t r) { return double(r >> 11) * 0x1p-53; }

template <class Argument> bool check(const char* kind, long points, Argument argument)
{
    std::mt19937_64 random(1);
    Real x(53), exact(160);
    double worst = 0, at = 0;
    for (long i = 0; i < points; ++i) {
        const double a = argument(random());
        const double got = sig5d::px::whole_log(sig5d::px::half_log(a));
        mpfr_set_d(x.v, a, MPFR_RNDN);
        mpfr_log(exact.v, x.v, MPFR_RNDN);
        const double error = ulps(got, exact);
        if (!(error <= worst)) worst = error, at = a;
    }
    std::printf("%-24s %.4f ulp at %a\n", kind, worst, at);
    return worst < 0.9;
}

} // namespace

int main(int argc, char** argv)
{
    const long points = argc > 1 ? std::atol(argv[1]) : 300000;
    bool good = check("(0, 1)", points, [](uint64_t r) { return unit(r) + 0x1p-62; });
    good &= check("next to 1", points, [](uint64_t r) { return 1 + std::ldexp(unit(r) - 0.5, -int(r & 31)); });
    good &= check("next to sqrt(1/2)", points,
                  [](uint64_t r) { return std::sqrt(0.5) * (1 + std::ldexp(unit(r) - 0.5, -int(r & 31))); });
    good &= check("2^-62 to 1", points, [](uint64_t r) { return std::ldexp(1 + unit(r), -1 - int(r % 62)); });
    good &=
        check("all normal numbers", points, [](uint64_t r) { return std::ldexp(1 + unit(r), int(r % 2046) - 1022); });
    return good ? 0 : 1;
}

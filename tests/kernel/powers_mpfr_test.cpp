// Exponential, logarithm and complex powers against MPFR: prints the largest errors. An argument sets the number of
// points of each kind (the test runs 10^5).
#include "kernel/libm_exp.h"
#include "sig5d.h"
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mpfr.h>
#include <random>

using namespace sig5d;

namespace {

constexpr int precision = 2400; // squares of the smallest and the largest doubles side by side

struct Real {
    mpfr_t v;
    Real() { mpfr_init2(v, precision); }
    ~Real() { mpfr_clear(v); }
};

// |got - exact| in units of the last place of "size".
double ulps(double got, const Real& exact, const Real& size)
{
    static Real difference;
    mpfr_sub_d(difference.v, exact.v, got, MPFR_RNDN);
    const long place = mpfr_zero_p(size.v) ? -1074 : std::max(long(mpfr_get_exp(size.v)) - 53, -1074L);
    mpfr_mul_2si(difference.v, difference.v, -place, MPFR_RNDN);
    const double error = std::fabs(mpfr_get_d(difference.v, MPFR_RNDN));
    return error >= 0 ? error : HUGE_VAL;
}

double unit(uint64_t r) { return double(r >> 11) * 0x1p-53; }

template <class Argument, class Found, class Exact>
bool scalar(const char* kind, double bound, long points, Argument argument, Found found, Exact exactly)
{
    std::mt19937_64 random(5);
    Real exact;
    double worst = 0, at = 0;
    for (long i = 0; i < points; ++i) {
        const double x = argument(random);
        mpfr_set_d(exact.v, x, MPFR_RNDN);
        mpfr_prec_round(exact.v, 200, MPFR_RNDN);
        exactly(exact.v, exact.v, MPFR_RNDN);
        const double error = ulps(found(x), exact, exact);
        if (!(error <= worst)) worst = error, at = x;
    }
    std::printf("%-44s %.4f ulp at %a\n", kind, worst, at);
    return worst <= bound;
}

struct Power {
    Real log, angle, re, im, size, c, s, t;
    // a^b and its modulus. False where it is beyond the doubles.
    bool set(Ipp64fc a, Ipp64fc b)
    {
        mpfr_set_d(t.v, a.re, MPFR_RNDN);
        mpfr_sqr(log.v, t.v, MPFR_RNDN);
        mpfr_set_d(s.v, a.im, MPFR_RNDN);
        mpfr_sqr(c.v, s.v, MPFR_RNDN);
        mpfr_add(log.v, log.v, c.v, MPFR_RNDN); // exact
        for (Real* r : {&log, &angle, &re, &im, &size, &c, &s, &t})
            mpfr_prec_round(r->v, r == &log ? precision : 400, MPFR_RNDN);
        mpfr_log(re.v, log.v, MPFR_RNDN);
        mpfr_div_2ui(re.v, re.v, 1, MPFR_RNDN);
        mpfr_set_d(t.v, a.re, MPFR_RNDN);
        mpfr_set_d(s.v, a.im, MPFR_RNDN);
        mpfr_atan2(angle.v, s.v, t.v, MPFR_RNDN);
        mpfr_mul_d(size.v, re.v, b.re, MPFR_RNDN);
        mpfr_mul_d(t.v, angle.v, b.im, MPFR_RNDN);
        mpfr_sub(size.v, size.v, t.v, MPFR_RNDN);
        mpfr_mul_d(im.v, re.v, b.im, MPFR_RNDN);
        mpfr_mul_d(t.v, angle.v, b.re, MPFR_RNDN);
        mpfr_add(im.v, im.v, t.v, MPFR_RNDN);
        if (mpfr_cmp_d(size.v, 709.7) > 0 || mpfr_cmpabs(im.v, (mpfr_set_d(t.v, 0x1p40, MPFR_RNDN), t.v)) > 0)
            return false;
        mpfr_exp(size.v, size.v, MPFR_RNDN);
        mpfr_sin_cos(s.v, c.v, im.v, MPFR_RNDN);
        mpfr_mul(re.v, size.v, c.v, MPFR_RNDN);
        mpfr_mul(im.v, size.v, s.v, MPFR_RNDN);
        return true;
    }
};

template <class Operands> bool power(const char* kind, long points, Operands operands)
{
    std::mt19937_64 random(6);
    Power exact;
    double worst = 0;
    Ipp64fc at[2] = {};
    long counted = 0;
    for (long i = 0; i < points; ++i) {
        Ipp64fc a[2] = {}, b[2] = {}, d[2];
        operands(random, a[1], b[1]);
        if (!exact.set(a[1], b[1])) continue;
        ++counted;
        Powc(a, b, d, 2);
        const double error = std::max(ulps(d[1].re, exact.re, exact.size), ulps(d[1].im, exact.im, exact.size));
        if (!(error <= worst)) worst = error, at[0] = a[1], at[1] = b[1];
    }
    std::printf("%-44s %.4f ulp of the modulus at (%a, %a)^(%a, %a), %ld points\n", kind, worst, at[0].re, at[0].im,
                at[1].re, at[1].im, counted);
    return worst <= 3 && counted > points / 10;
}

using Generator = std::mt19937_64;
double near(Generator& r, double size) { return size * (2 * unit(r()) - 1); }
double anySize(Generator& r, int exponents)
{
    const double x = std::ldexp(near(r, 1), int(r() % (2 * exponents + 1)) - exponents);
    return std::isfinite(x) && x != 0 ? x : 1.0;
}

} // namespace

int main(int argc, char** argv)
{
    const long points = argc > 1 ? std::atol(argv[1]) : 100000;
    bool good = scalar(
        "exp, [-708, 709]", 0.501, points, [](Generator& r) { return -708 + 1417 * unit(r()); }, libm::exp, mpfr_exp);
    good &= scalar(
        "exp, subnormal results", 0.76, points, [](Generator& r) { return -745.1 + 37 * unit(r()); }, libm::exp,
        mpfr_exp);
    good &= scalar(
        "exp, all sizes", 0.501, points, [](Generator& r) { return anySize(r, 8) * (r() % 2 ? 1 : 0x1p-40); },
        libm::exp, mpfr_exp);
    good &= scalar(
        "log, all sizes", 0.501, points, [](Generator& r) { return std::fabs(anySize(r, 1074)); }, libm::log, mpfr_log);
    good &= scalar(
        "log, [0.5, 2]", 0.501, points, [](Generator& r) { return 0.5 + 1.5 * unit(r()); }, libm::log, mpfr_log);
    good &= scalar(
        "log next to 1", 0.501, points, [](Generator& r) { return 1 + std::ldexp(near(r, 1), -int(r() % 53)) / 2; },
        libm::log, mpfr_log);

    const long some = points / 10;
    good &= power("powers, parts within 2", some, [](Generator& r, Ipp64fc& a, Ipp64fc& b) {
        a = {near(r, 2), near(r, 2)};
        b = {near(r, 2), near(r, 2)};
    });
    good &= power("powers, exponents up to 500", some, [](Generator& r, Ipp64fc& a, Ipp64fc& b) {
        a = {near(r, 2), near(r, 2)};
        b = {near(r, 500), near(r, 200)};
    });
    good &= power("powers, bases of all sizes", some, [](Generator& r, Ipp64fc& a, Ipp64fc& b) {
        a = {anySize(r, 1020), anySize(r, 1020)};
        b = {anySize(r, 3), anySize(r, 3)};
    });
    good &= power("powers, bases next to the unit circle", some, [](Generator& r, Ipp64fc& a, Ipp64fc& b) {
        const double turn = near(r, 3.2), away = std::ldexp(near(r, 1), -int(r() % 50));
        a = {std::cos(turn) * (1 + away), std::sin(turn) * (1 + away)};
        b = {std::min(1e9, 20 / std::fabs(away)) * near(r, 1), near(r, 20)};
    });
    good &= power("powers, bases next to an axis", some, [](Generator& r, Ipp64fc& a, Ipp64fc& b) {
        a = {r() % 2 ? -near(r, 3) : 1, anySize(r, 1060)};
        if (r() % 2) std::swap(a.re, a.im);
        b = {double(int(r() % 40)) - 20, r() % 2 ? 0.0 : near(r, 3)};
    });
    return good ? 0 : 1;
}

// Distances from MPFR's values.
#pragma once
#include <algorithm>
#include <cmath>
#include <mpfr.h>

namespace support {

struct Real {
    mpfr_t v;
    explicit Real(int bits) { mpfr_init2(v, bits); }
    ~Real() { mpfr_clear(v); }
};

// |got - exact| in units of the last place of the exact value.
inline double ulps(double got, const Real& exact)
{
    if (mpfr_zero_p(exact.v)) return got == 0 ? 0 : HUGE_VAL;
    static Real difference(200);
    mpfr_sub_d(difference.v, exact.v, got, MPFR_RNDN);
    const long place = std::max(long(mpfr_get_exp(exact.v)) - 53, -1074L);
    mpfr_mul_2si(difference.v, difference.v, -place, MPFR_RNDN);
    const double error = std::fabs(mpfr_get_d(difference.v, MPFR_RNDN));
    return error >= 0 ? error : HUGE_VAL;
}

} // namespace support

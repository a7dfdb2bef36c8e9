#include "signal/processing/fft/body.h"

#define JOIN_(a, b) a##b
#define JOIN(a, b) JOIN_(a, b)
#define TEXT_(a) #a
#define TEXT(a) TEXT_(a)

namespace support {

using namespace sig5d::SIG5D_VARIANT;

const FftBody JOIN(fftBody_, SIG5D_VARIANT) = {
    TEXT(SIG5D_VARIANT),
    {fftForward, fftInverse, fftMultiply, fftMultiplyConj, fftConvolve},
    {fftForward, fftInverse, fftMultiply, fftMultiplyConj, fftConvolve},
};

} // namespace support

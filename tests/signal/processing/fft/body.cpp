#include "signal/processing/fft/body.h"
#include "signal/processing/fft/transforms.h"

#define TEXT_(a) #a
#define TEXT(a) TEXT_(a)

namespace {

using namespace sig5d::SIG5D_FFT_BODY;

const support::FftBody body = {
    TEXT(SIG5D_VARIANT),
    {fftForward, fftInverse, fftMultiply, fftMultiplyConj, fftMultiplyAdd, fftConvolve},
    {fftForward, fftInverse, fftMultiply, fftMultiplyConj, fftMultiplyAdd, fftConvolve},
};
const struct Listed {
    Listed() { support::allFftBodies().push_back(&body); }
} listed;

} // namespace

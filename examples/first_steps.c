/* Smooths two pulses with three taps. Link with libNumlab.Sig5d.dll.a or Numlab.Sig5d.lib; -lNumlab.Sig5d on Linux. */
#include "sig5d.h"
#include <stdio.h>
#include <stdlib.h>

int main(void)
{
    const Ipp64f taps[3] = {0.25, 0.5, 0.25}, x[8] = {4, 0, 0, 0, 8, 0, 0, 0};
    Ipp64f y[8];
    int specSize, bufferSize;
    ippsFIRSRGetSize(3, 19 /* double precision */, &specSize, &bufferSize);
    IppsFIRSpec_64f* filter = malloc(specSize);
    Ipp8u* buffer = malloc(bufferSize);
    ippsFIRSRInit_64f(taps, 3, 1 /* direct form */, filter);
    IppStatus status = ippsFIRSR_64f(x, y, 8, filter, NULL, NULL, buffer); /* no history */
    for (int i = 0; i < 8; ++i) printf(i < 7 ? "%g " : "%g\n", y[i]);
    free(buffer);
    free(filter);
    return status;
}

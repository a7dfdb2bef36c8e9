/* Smooths two pulses in place. Link with libNumlab.Sig5d.dll.a or Numlab.Sig5d.lib; -lNumlab.Sig5d on Linux. */
#include "sig5d.h"
#include <stdio.h>

int main(void)
{
    const Ipp64f taps[3] = {0.25, 0.5, 0.25};
    Ipp64f x[8] = {4, 0, 0, 0, 8, 0, 0, 0};
    IppsFIRHandle_64f* filter;
    IppStatus status = ippsFIRSRInitAlloc_64f_Idx(taps, 0, 3, 1, &filter); /* from index 0, direct form */
    if (status >= 0) status = ippsFIRSR_64f_I_Idx(x, 0, 8, filter);        /* the next call goes on with the stream */
    for (int i = 0; i < 8; ++i) printf("%g ", x[i]);
    puts(ippGetStatusString(status));
    ippsFIRSRFree_Idx(filter);
    return status;
}

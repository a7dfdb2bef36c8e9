// IIR filters a sample at a time, as an older interface has them.
#include "sig5d.h"
#include "frame/types.h"

namespace sig5d {
namespace {

Status one(f64 src, f64* pDstVal, IppsIIRState_64f* pState) { return ippsIIR_64f(&src, pDstVal, 1, pState); }
Status one(c64f src, c64f* pDstVal, IppsIIRState_64fc* pState) { return ippsIIR_64fc(&src, pDstVal, 1, pState); }

} // namespace
#include "entries/frame/compat/iir_one.inc"
} // namespace sig5d

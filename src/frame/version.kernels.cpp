// ippsGetLibVersion: every variant has a version record of its own, which tells who answers.
#include "frame/entry.h"
#include "frame/variants.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr Variant self = variants[SIG5D_LEVEL];
constexpr IppLibraryVersion record = {
    2017, 0, 0, 52494, {self.code[0], self.code[1], 0, 0}, self.title, "2017.0.0 (r52494)", "Jul 16 2016"};

const IppLibraryVersion* version() { return &record; }

} // namespace
#include "entries/frame/version.inc"
} // namespace sig5d::SIG5D_VARIANT

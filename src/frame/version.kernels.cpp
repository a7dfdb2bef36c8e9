// ippsGetLibVersion: every variant has a version record of its own, which tells who answers.
#include "frame/entry.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr struct {
    char code[4];
    const char* name;
} variants[] = {{"px", "ippSP PX (px)"},     {"w7", "ippSP SSE2 (w7)"}, {"s8", "ippSP Atom (s8)"},
                {"p8", "ippSP SSE4.2 (p8)"}, {"g9", "ippSP AVX (g9)"},  {"h9", "ippSP AVX2 (h9)"}};

constexpr auto& self = variants[SIG5D_LEVEL];
constexpr IppLibraryVersion record = {
    2017, 0, 0, 52494, {self.code[0], self.code[1], 0, 0}, self.name, "2017.0.0 (r52494)", "Jul 16 2016"};

const IppLibraryVersion* version() { return &record; }

} // namespace
#include "entries/frame/version.inc"
} // namespace sig5d::SIG5D_VARIANT

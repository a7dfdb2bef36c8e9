// Arrays against the pivots of a body.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace sorting {

// The sorting of 32-bit keys as a body has it.
struct Body {
    const char* name;
    std::vector<int32_t> (*misleading)(size_t n);
};
Body px();
Body p8();
Body h9();

} // namespace sorting

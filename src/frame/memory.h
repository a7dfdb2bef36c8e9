// Aligned blocks of the runtime heap: the only memory that the library allocates.
#pragma once

namespace sig5d {

// At least n bytes at a multiple of 64, or null: n < 1, n + 68 is no int, or the heap has none. Not cleared.
void* allocateAligned(int n);

void freeAligned(void* block); // null: nothing happens

} // namespace sig5d

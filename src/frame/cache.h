// When streaming stores pay: what kernels ask before they write past the caches.
#pragma once
#include "frame/types.h"
#include <stddef.h>

// A call that writes more bytes than this should write with streaming stores. Set when the variant is selected;
// before that the largest number: never.
extern "C" SIG5D_HIDDEN size_t sig5d_stream_bytes;

namespace sig5d {
namespace {

inline bool streamingPays(u64 bytesWritten)
{
    return bytesWritten > __atomic_load_n(&sig5d_stream_bytes, __ATOMIC_RELAXED);
}

} // namespace
} // namespace sig5d

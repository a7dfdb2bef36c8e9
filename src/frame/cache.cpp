#include "frame/cache.h"

size_t sig5d_stream_bytes = size_t(64) << 20;

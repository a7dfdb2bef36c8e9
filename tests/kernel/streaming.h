// Streaming stores on short arrays: the library's own objects, told to stream from the first byte on, which otherwise
// only arrays beyond the caches do.
#pragma once
#include "frame/cache.h"
#include "support/library.h"
#include <gtest/gtest.h>

namespace support {

class Streaming : public testing::TestWithParam<Variant>
{
protected:
    void SetUp() override
    {
        if (GetParam().index >= static_cast<int>(supported().size())) GTEST_SKIP() << "not on this processor";
        force(GetParam());
        streamAlways();
    }
    void TearDown() override { force(variants[0]); } // selecting a variant sets the threshold again

    static void streamAlways() { sig5d_stream_bytes = 0; }
    static void streamNever() { sig5d_stream_bytes = ~size_t(0); }
};

// px has no streaming stores.
inline auto streamingVariants() { return testing::ValuesIn(variants + 1, std::end(variants)); }

} // namespace support

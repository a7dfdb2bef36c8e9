// Arrays of bytes for tests of functions that only move or combine bits: reproducible noise, typed calls by name.
#pragma once
#include "support/library.h"
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace support {

using Bytes = std::vector<unsigned char>;

inline Bytes noise(size_t n, unsigned seed = 1)
{
    std::mt19937 random(seed);
    Bytes b(n);
    for (unsigned char& x : b) x = static_cast<unsigned char>(random() >> 7);
    return b;
}

// A function by its name, called with whatever it takes; arrays of any element type are passed as void*.
template <class... Args> IppStatus call(const std::string& name, Args... args)
{
    const Entry entry = find(name.c_str());
    if (!entry) {
        ADD_FAILURE() << name << " is not exported";
        return -9999;
    }
    return reinterpret_cast<IppStatus(SIG5D_STDCALL*)(Args...)>(entry)(args...);
}
template <class... Args> IppStatus callIndexed(const std::string& name, Args... args)
{
    const Entry entry = find(name.c_str());
    if (!entry) {
        ADD_FAILURE() << name << " is not exported";
        return -9999;
    }
    return reinterpret_cast<IppStatus(SIG5D_CDECL*)(Args...)>(entry)(args...);
}
// Functions without the prefix: they return nothing.
template <class... Args> void callOwn(const std::string& name, Args... args)
{
    const Entry entry = find(name.c_str());
    ASSERT_TRUE(entry) << name << " is not exported";
    reinterpret_cast<void(SIG5D_CDECL*)(Args...)>(entry)(args...);
}

// Arrays at odd addresses work, but the sanitizer that looks for them does not know that they are meant to.
inline bool mayStandAt(size_t offset, int elementBytes)
{
#ifdef __SANITIZE_ADDRESS__
    return offset % static_cast<size_t>(elementBytes < 8 ? elementBytes : 8) == 0;
#else
    (void)offset, (void)elementBytes;
    return true;
#endif
}

// Runs a test body once in every variant that this processor has.
template <class Body> void inEveryVariant(Body body)
{
    for (const Variant& v : supported()) {
        force(v);
        ASSERT_STREQ(current().code, v.code);
        SCOPED_TRACE(v.code);
        body();
        if (testing::Test::HasFatalFailure()) return;
    }
}

} // namespace support

// Calls of functions that return nothing and leave their arguments to the caller.
#pragma once
#include "support/bytes.h"

namespace support {

template <class... Args> void run(const char* name, Args... args)
{
    const Entry entry = find(name);
    if (!entry) {
        ADD_FAILURE() << name << " is not exported";
        return;
    }
    reinterpret_cast<void(SIG5D_CDECL*)(Args...)>(entry)(args...);
}

} // namespace support

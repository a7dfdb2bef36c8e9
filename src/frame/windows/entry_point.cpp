// The DLL's entry point in place of the compiler's start-up code, and the stack guard that code would bring along.
#include <windows.h>

extern "C" {
uintptr_t __stack_chk_guard = 0x5a6d21c3; // replaced when the library is loaded

// A local array was overrun: end the process at once, without running anything that relies on the stack.
[[noreturn]] void __stack_chk_fail()
{
    TerminateProcess(GetCurrentProcess(), 0xC0000409); // STATUS_STACK_BUFFER_OVERRUN
    __builtin_trap();
}

__attribute__((optimize("no-stack-protector"))) BOOL WINAPI sig5d_entry_point(HINSTANCE self, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(self);
        LARGE_INTEGER clock;
        QueryPerformanceCounter(&clock);
        __stack_chk_guard ^= clock.LowPart ^ reinterpret_cast<uintptr_t>(&clock) ^ (GetCurrentProcessId() << 16);
    }
    return TRUE;
}
}

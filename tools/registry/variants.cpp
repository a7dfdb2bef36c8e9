#include "variants.h"
#include <cpuid.h>
#include <cstring>
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace registry {

const Variant variants[7] = {
#include "variants.inc"
};

Entry exported(const char* name)
{
#ifdef _WIN32
    // A program that links the library's objects exports them itself.
    if (const FARPROC own = GetProcAddress(GetModuleHandleA(nullptr), name)) return reinterpret_cast<Entry>(own);
    static const HMODULE library = LoadLibraryA("Numlab.Sig5d.dll");
    return reinterpret_cast<Entry>(GetProcAddress(library, name));
#else
    return reinterpret_cast<Entry>(dlsym(RTLD_DEFAULT, name));
#endif
}

std::string nameOf(const Function& f) { return std::string(f.name) + (f.hasPlain() ? "" : "_Idx"); }

void force(const Variant& v) { ippSetCpuFeatures(v.features | Ipp64u(1) << 63); }

namespace {

bool hasAvx512()
{
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512cd") &&
           __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
           __builtin_cpu_supports("avx512vl");
}

// Half precision is bit 29 of ecx, which not every compiler's __builtin_cpu_supports knows by its name.
bool hasF16c()
{
    unsigned a, b, c = 0, d;
    return __get_cpuid(1, &a, &b, &c, &d) && c >> 29 & 1;
}

} // namespace

std::vector<Variant> supported()
{
    static const std::vector<Variant> list = [] {
        __builtin_cpu_init();
        std::vector<Variant> found;
        for (const Variant& v : variants) {
            const bool has[] = {true,
                                true,
                                __builtin_cpu_supports("ssse3") != 0,
                                __builtin_cpu_supports("sse4.2") != 0,
                                __builtin_cpu_supports("avx") != 0,
                                __builtin_cpu_supports("avx2") != 0 && hasF16c(),
                                hasAvx512()};
            if (has[v.index]) found.push_back(v);
        }
        return found;
    }();
    return list;
}

const Variant& current()
{
    // The body beyond the variants answers as the highest of them: that it runs tell its features.
    const Ipp64u enabled = ippGetEnabledCpuFeatures();
    const Variant* found = variants;
    for (const Variant& v : supported())
        if (!std::strncmp(ippsGetLibVersion()->targetCpu, v.answers, 4) && (enabled & v.features) == v.features)
            found = &variants[v.index];
    return *found;
}

std::vector<Variant> bodiesOf(const Function& f)
{
    std::vector<Variant> found;
    for (const Variant& v : supported())
        if (std::strstr(f.bodies, v.code)) found.push_back(v);
    return found;
}

} // namespace registry

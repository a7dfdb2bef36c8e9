#include "variants.h"
#include <cpuid.h>
#include <cstring>
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace registry {

const Variant variants[6] = {
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

const Variant& current()
{
    for (const Variant& v : variants)
        if (!std::strncmp(ippsGetLibVersion()->targetCpu, v.code, 4)) return v;
    return variants[0];
}

namespace {

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
        std::vector<Variant> found;
        for (const Variant& v : variants) {
            __builtin_cpu_init();
            const bool has[] = {true,
                                true,
                                __builtin_cpu_supports("ssse3") != 0,
                                __builtin_cpu_supports("sse4.2") != 0,
                                __builtin_cpu_supports("avx") != 0,
                                __builtin_cpu_supports("avx2") != 0 && hasF16c()};
            if (has[v.index]) found.push_back(v);
        }
        return found;
    }();
    return list;
}

std::vector<Variant> bodiesOf(const Function& f)
{
    std::vector<Variant> found;
    for (const Variant& v : supported())
        if (std::strstr(f.bodies, v.code)) found.push_back(v);
    return found;
}

} // namespace registry

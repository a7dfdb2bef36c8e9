// Numlab.Sig5d at run time: loaded by file name, functions found by their undecorated names in the export table.
#pragma once
#include "sig5d.h"
#include <filesystem>
#include <stdexcept>
#include <string>
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

// The header gives the types only, and with them each function's calling convention; nothing is linked.
class Library
{
public:
    Library()
    {
#ifdef _WIN32
        handle_ = LoadLibraryA(fileName); // looks in the program's own folder first
#else
        const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
        handle_ = dlopen((folder / fileName).c_str(), RTLD_NOW);
#endif
        if (!handle_) throw std::runtime_error(std::string("cannot load ") + fileName);
        find(ippsGetLibVersion, "ippsGetLibVersion");
        find(ippGetStatusString, "ippGetStatusString");
        find(ippGetCpuFeatures, "ippGetCpuFeatures");
        find(ippSetCpuFeatures, "ippSetCpuFeatures");
        find(ippsFIRSRGetSize, "ippsFIRSRGetSize");
        find(ippsFIRSRInit_64f, "ippsFIRSRInit_64f");
        find(ippsFIRSR_64f, "ippsFIRSR_64f");
        find(ippsFIRMRGetSize, "ippsFIRMRGetSize");
        find(ippsFIRMRInit_64f, "ippsFIRMRInit_64f");
        find(ippsFIRMR_64f, "ippsFIRMR_64f");
    }

    decltype(&::ippsGetLibVersion) ippsGetLibVersion;
    decltype(&::ippGetStatusString) ippGetStatusString;
    decltype(&::ippGetCpuFeatures) ippGetCpuFeatures;
    decltype(&::ippSetCpuFeatures) ippSetCpuFeatures;
    decltype(&::ippsFIRSRGetSize) ippsFIRSRGetSize;
    decltype(&::ippsFIRSRInit_64f) ippsFIRSRInit_64f;
    decltype(&::ippsFIRSR_64f) ippsFIRSR_64f;
    decltype(&::ippsFIRMRGetSize) ippsFIRMRGetSize;
    decltype(&::ippsFIRMRInit_64f) ippsFIRMRInit_64f;
    decltype(&::ippsFIRMR_64f) ippsFIRMR_64f;

    void check(IppStatus status, const char* function) const
    {
        if (status < 0) throw std::runtime_error(std::string(function) + ": " + ippGetStatusString(status));
    }

#ifdef _WIN32
    static constexpr const char* fileName = "Numlab.Sig5d.dll";
#else
    static constexpr const char* fileName = "libNumlab.Sig5d.so";
#endif

private:
    template <class Function> void find(Function& function, const char* name)
    {
#ifdef _WIN32
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
#else
        function = reinterpret_cast<Function>(dlsym(handle_, name));
#endif
        if (!function) throw std::runtime_error(std::string(fileName) + " does not export " + name);
    }

#ifdef _WIN32
    HMODULE handle_;
#else
    void* handle_;
#endif
};

#include "support/module.h"
#include "support/library.h"
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace support {
namespace {

[[noreturn]] void fail(const std::string& text)
{
    std::fprintf(stderr, "linker map: %s\n", text.c_str());
    std::abort();
}

// Objects of a static library among those of the test itself.
bool ofLibrary(const std::string& object)
{
#ifdef SIG5D_STATIC
    return object.find("libsig5d.a(") != std::string::npos;
#else
    (void)object;
    return true;
#endif
}

std::vector<Variable> readMap(const char* path)
{
    std::ifstream file(path);
    if (!file) fail(std::string("no file ") + path);
    std::vector<Variable> all;
    uintptr_t anchor = 0;
    bool writable = false;
    for (std::string line, pending; std::getline(file, line);) {
        if (!line.empty() && line[0] != ' ') writable = line.rfind(".data ", 0) == 0 || line.rfind(".bss ", 0) == 0;
        std::istringstream words(pending + line);
        pending.clear();
        std::string name, address, size, object;
        words >> name >> address >> size;
        if (address == "CumSum" || address == "_CumSum") anchor = std::strtoull(name.c_str(), nullptr, 16);
        if (!writable || line[0] != ' ' || line.size() < 3) continue;
        if (name[0] == '.' && address.empty()) pending = line; // a long name has a line to itself
        if (name[0] != '.' || size.rfind("0x", 0)) continue;
        std::getline(words, object);
        const size_t bytes = std::strtoull(size.c_str(), nullptr, 16);
        if (bytes && ofLibrary(object))
            all.push_back({name, reinterpret_cast<uint8_t*>(std::strtoull(address.c_str(), nullptr, 16)), bytes});
    }
    if (!anchor) fail("no function CumSum");
    const uintptr_t moved = reinterpret_cast<uintptr_t>(find("CumSum")) - anchor;
    for (Variable& v : all) v.at += moved;
    return all;
}

} // namespace

const std::vector<Variable>& libraryVariables()
{
    static const std::vector<Variable> all = readMap(SIG5D_MAP);
    return all;
}

const Variable& libraryVariable(const std::string& name)
{
    for (const Variable& v : libraryVariables())
        if (v.name.size() >= name.size() && !v.name.compare(v.name.size() - name.size(), name.size(), name)) return v;
    fail("no variable " + name);
}

} // namespace support

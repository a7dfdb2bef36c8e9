#include "case.h"
#include <regex>

namespace bench {
namespace {

struct NamedPeer {
    std::regex cases;
    std::string name;
    PeerMaker make;
};

std::vector<NamedPeer>& peers()
{
    static std::vector<NamedPeer> all;
    return all;
}

const registry::Function* functionOf(const std::string& name)
{
    for (const registry::Function& f : registry::functions())
        if (exportOf(f) == name) return &f;
    return nullptr;
}

} // namespace

std::string exportOf(const registry::Function& f) { return std::string(f.name) + (f.hasPlain() ? "" : "_Idx"); }

const char* nameOf(Level level)
{
    static const char* const names[] = {"?", "tiny", "L1", "L2", "L3", "mem"};
    return names[static_cast<int>(level)];
}

std::vector<Case>& cases()
{
    static std::vector<Case> all;
    return all;
}

void addCase(const std::string& name, std::vector<Size> sizes, std::function<void(Setup&)> prepare)
{
    const std::string function = name.substr(0, name.find(' '));
    Case c = {name, function, {}, std::move(sizes), std::move(prepare)};
    const registry::Function* f = functionOf(function);
    if (f) c.family = f->family;
    for (const registry::Variant& v : f ? registry::bodiesOf(*f) : registry::supported()) c.variants.push_back(v.code);
    if (c.variants.empty()) c.variants = {noVariant};
    cases().push_back(std::move(c));
}

void addPeer(const std::string& casePattern, const std::string& name, PeerMaker make)
{
    peers().push_back({std::regex(casePattern), name, std::move(make)});
}

void attachPeers(const std::string& caseName, Setup& setup)
{
    for (const NamedPeer& p : peers())
        if (std::regex_match(caseName, p.cases))
            if (Batch batch = p.make(setup)) setup.peers.push_back({p.name, std::move(batch)});
}

} // namespace bench

// bench: every function of the library against the machine's limits and open peers. docs/benchmark.md explains it.
#include "registry_cases.h"
#include "report.h"
#include "sizes.h"
#include <cstdlib>
#include <cstring>
#include <regex>
#include <set>
#include <sstream>

namespace {

using bench::Level;

const char usage[] =
    "bench [--filter regex] [--variants h9,px] [--levels tiny,L1,L2,L3,mem] [--rounds n] [--misalign bytes]\n"
    "      [--json file] [--summary] [--list]\n";

struct Options {
    bench::Selection selection;
    std::string filter = ".*";
    const char* json = nullptr;
    size_t misalignment = 0;
    bool list = false, summary = false;
};

std::vector<std::string> listed(const char* text)
{
    std::vector<std::string> all;
    std::istringstream in(text);
    for (std::string one; std::getline(in, one, ',');) all.push_back(one);
    return all;
}

[[noreturn]] void refuse(const std::string& what)
{
    std::fprintf(stderr, "bench: %s\n%s", what.c_str(), usage);
    std::exit(2);
}

void selectVariants(Options& o, const char* text)
{
    o.selection.variants = listed(text);
    for (const std::string& code : o.selection.variants) {
        bool known = false;
        for (const auto& v : registry::supported()) known |= code == v.code;
        if (!known) refuse("this processor has no variant " + code);
    }
}

void selectLevels(Options& o, const char* text)
{
    for (const std::string& name : listed(text)) {
        Level found = Level::automatic;
        for (Level level : {Level::tiny, Level::L1, Level::L2, Level::L3, Level::memory})
            if (name == bench::nameOf(level)) found = level;
        if (found == Level::automatic) refuse("no level " + name);
        o.selection.levels.push_back(found);
    }
}

Options parse(int argc, char** argv)
{
    Options o;
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        const auto value = [&] { return ++i < argc ? argv[i] : (refuse(option + " needs a value"), ""); };
        if (option == "--filter")
            o.filter = value();
        else if (option == "--variants")
            selectVariants(o, value());
        else if (option == "--levels")
            selectLevels(o, value());
        else if (option == "--rounds")
            o.selection.effort.rounds = std::max(1, std::atoi(value()));
        else if (option == "--misalign")
            o.misalignment = static_cast<size_t>(std::atoi(value())) % 64;
        else if (option == "--json")
            o.json = value();
        else if (option == "--list")
            o.list = true;
        else if (option == "--summary")
            o.summary = true;
        else
            refuse("no option " + option);
    }
    return o;
}

std::regex compiled(const std::string& text)
{
    try {
        return std::regex(text);
    } catch (const std::regex_error&) {
        refuse("not a regular expression: " + text);
    }
}

// The variants that some case has, in their order.
std::vector<std::string> columns(const bench::Selection& selection)
{
    std::set<std::string> used;
    for (const bench::Case& c : bench::cases()) used.insert(c.variants.begin(), c.variants.end());
    std::vector<std::string> all;
    for (const auto& v : registry::variants)
        if (selection.variants.empty() ? used.count(v.code) : selection.has(v.code)) all.push_back(v.code);
    if (used.count(bench::noVariant)) all.push_back(bench::noVariant);
    return all;
}

void list(const std::vector<bench::Skipped>& skipped)
{
    for (const bench::Case& c : bench::cases()) {
        std::printf("%-40s", c.name.c_str());
        for (const bench::Size& s : c.sizes) std::printf(" %s:%lld", bench::nameOf(s.level), s.n);
        std::puts("");
    }
    for (const bench::Skipped& s : skipped) std::printf("%-40s not measured: %s\n", s.name.c_str(), s.reason.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    const Options o = parse(argc, argv);
    const std::regex filter = compiled(o.filter);
    const auto wanted = [&](const std::string& name) { return std::regex_search(name, filter); };
    std::erase_if(bench::cases(), [&](const bench::Case& c) { return !wanted(c.name); });
    const auto skipped = addRegistryCases(o.selection, wanted);
    if (o.list) return list(skipped), 0;
    if (bench::cases().empty()) refuse("no case for --filter " + o.filter);

    bench::settle();
    bench::printMachine(o.selection.has(Level::memory));
    const std::vector<std::string> variants = columns(o.selection);
    bench::printHeading(variants);
    bench::Memory memory;
    memory.misalignment = o.misalignment;
    std::vector<bench::Result> results;
    for (const bench::Case& c : bench::cases())
        for (const bench::Size& size : c.sizes) {
            bench::Result r;
            if (!run(c, size, o.selection, memory, r)) continue;
            print(r, variants);
            results.push_back(std::move(r));
        }
    std::vector<double> clocks;
    for (const bench::Result& r : results) clocks.push_back(r.clock);
    std::printf("\n%zu rows, core clock %.2f GHz; %zu functions have no case (--list)\n", results.size(),
                bench::median(clocks) / 1e9, skipped.size());
    if (o.summary) printSummary(results);
    if (o.json && !writeJson(o.json, results)) refuse(std::string("cannot write ") + o.json);
    return results.empty() ? 1 : 0;
}

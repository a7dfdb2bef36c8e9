#include "report.h"
#include "sizes.h"
#include <cmath>
#include <cstdarg>
#include <map>

namespace bench {
namespace {

const char* platform()
{
#ifdef _WIN32
    return "32-bit Windows";
#else
    return sizeof(void*) == 8 ? "64-bit Linux" : "32-bit Linux";
#endif
}

std::string text(const char* format, ...)
{
    char line[256];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    return line;
}

std::string bytes(double n) { return n >= (1 << 20) ? text("%.0f MB", n / (1 << 20)) : text("%.0f KB", n / (1 << 10)); }

// Nanoseconds of a call where a call is what counts, otherwise cycles of an element.
std::string cost(const Result& r, double cyclesPerElement)
{
    return r.level == Level::tiny ? text("%.1fns", r.nanoseconds(cyclesPerElement)) : text("%.3g", cyclesPerElement);
}

} // namespace

void printMachine(bool withCurve)
{
    const Machine& m = machine();
    double clock = 0;
    for (int i = 0; i < 100; ++i) clock = std::max(clock, clockRate());
    std::printf("%s, %s, core clock %.2f GHz, L1d %s, L2 %s\n", m.processor.c_str(), platform(), clock / 1e9,
                bytes(static_cast<double>(m.l1)).c_str(), bytes(static_cast<double>(m.l2)).c_str());
    if (!withCurve) return;
    std::printf("load bandwidth, bytes a cycle:");
    for (const CurvePoint& p : Machine::loadCurve())
        std::printf(" %s %.1f", bytes(static_cast<double>(p.bytes)).c_str(), p.bytesPerCycle);
    std::printf("\neffective cache of one core: %s; level mem: %s of arrays\n",
                bytes(static_cast<double>(Machine::effectiveCache())).c_str(),
                bytes(static_cast<double>(roomAt(Level::memory).total)).c_str());
}

void printHeading(const std::vector<std::string>& variants)
{
    std::printf(
        "\ncycles an element (tiny: nanoseconds a call), and per cent of the limit at the variant's vector width;\n"
        "limit: what binds, its cost with 16 and 32 byte vectors; peers: how many times as fast the last variant "
        "is\n\n");
    std::printf("%-30s %-4s %9s", "case", "size", "n");
    for (const std::string& code : variants) std::printf("%10s     ", code.c_str());
    std::printf(" spread  limit; peers\n");
}

void print(const Result& r, const std::vector<std::string>& variants)
{
    std::string line = text("%-30s %-4s %9lld", r.name.c_str(), nameOf(r.level), r.size);
    double widest = 0;
    const auto cell = [&](const std::string& code) {
        for (const VariantFigure& v : r.variants) {
            if (v.code != code) continue;
            widest = std::max(widest, v.spread);
            return text("%10s%4.0f%%", cost(r, v.cycles).c_str(), 100 * v.share);
        }
        return text("%15s", "");
    };
    for (const std::string& code : variants) line += cell(code);
    line += text("%6.0f%%  %s", 100 * widest, nameOf(r.variants.back().bound));
    for (const LimitFigure& l : r.limits)
        if (l.kind == r.variants.back().bound) line += " " + cost(r, l.cycles);
    for (const PeerFigure& p : r.peers) line += text("; %s %.2f", p.name.c_str(), p.ratio);
    std::puts(line.c_str());
    std::fflush(stdout);
}

void printSummary(const std::vector<Result>& results)
{
    struct Mean {
        double logarithms = 0;
        int count = 0;
    };
    std::map<std::pair<std::string, Level>, std::map<std::string, Mean>> means;
    for (const Result& r : results)
        for (const VariantFigure& v : r.variants) {
            if (v.share <= 0) continue;
            Mean& m = means[{r.family, r.level}][v.code];
            m.logarithms += std::log(v.share);
            ++m.count;
        }
    std::printf("\nper cent of the limit, geometric mean of the family\n");
    for (const auto& [group, variants] : means) {
        std::printf("%-34s %-4s", group.first.c_str(), nameOf(group.second));
        const auto print = [&v = variants](const char* code) {
            if (const auto m = v.find(code); m != v.end())
                std::printf("  %s %4.0f%%", code, 100 * std::exp(m->second.logarithms / m->second.count));
        };
        for (const registry::Variant& v : registry::variants) print(v.code);
        print(noVariant);
        std::puts("");
    }
}

bool writeJson(const char* file, const std::vector<Result>& results)
{
    std::FILE* const out = std::fopen(file, "w");
    if (!out) return false;
    std::fprintf(out, "{\"processor\": \"%s\", \"platform\": \"%s\", \"results\": [", machine().processor.c_str(),
                 platform());
    const char* comma = "";
    for (const Result& r : results) {
        std::fprintf(out,
                     "%s\n {\"case\": \"%s\", \"family\": \"%s\", \"level\": \"%s\", \"n\": %lld, \"elements\": %.0f, "
                     "\"bytes\": %.0f, \"clock\": %.0f,\n  \"variants\": [",
                     comma, r.name.c_str(), r.family.c_str(), nameOf(r.level), r.size, r.elements, r.bytes, r.clock);
        comma = "";
        for (const VariantFigure& v : r.variants) {
            std::fprintf(
                out, "%s{\"code\": \"%s\", \"cycles\": %.6g, \"spread\": %.4f, \"ofLimit\": %.4f, \"bound\": \"%s\"}",
                comma, v.code.c_str(), v.cycles, v.spread, v.share, nameOf(v.bound));
            comma = ", ";
        }
        std::fprintf(out, "],\n  \"limits\": [");
        comma = "";
        for (const LimitFigure& l : r.limits) {
            std::fprintf(out, "%s{\"kind\": \"%s\", \"width\": %d, \"cycles\": %.6g}", comma, nameOf(l.kind), l.width,
                         l.cycles);
            comma = ", ";
        }
        std::fprintf(out, "],\n  \"peers\": [");
        comma = "";
        for (const PeerFigure& p : r.peers) {
            std::fprintf(out, "%s{\"name\": \"%s\", \"cycles\": %.6g, \"spread\": %.4f, \"ratio\": %.4f}", comma,
                         p.name.c_str(), p.cycles, p.spread, p.ratio);
            comma = ", ";
        }
        std::fprintf(out, "]}");
        comma = ",";
    }
    std::fprintf(out, "\n]}\n");
    return std::fclose(out) == 0;
}

} // namespace bench

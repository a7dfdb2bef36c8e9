// Spectrum values at one frequency and at two, against the recurrence as textbooks have it.
#include "case.h"
#include <cmath>

namespace {

using bench::Setup;

Ipp64fc recurrence(const double* x, int n, double frequency)
{
    const double angle = 6.283185307179586 * frequency, c = std::cos(angle), s = std::sin(angle);
    double a = 0, b = 0;
    for (int i = n - 1; i >= 0; --i) {
        const double next = x[i] + 2 * c * a - b;
        b = a;
        a = next;
    }
    return {a - b * c, -b * s};
}

// Five operations on each number of a sample where four rows are taken at once: of four, ten products and nine sums.
template <class T, class F> void addCases(const std::string& name, int frequencies, F run)
{
    bench::addCase(name, {{64, bench::Level::tiny}, 1024, 16384}, [=](Setup& s) {
        const int n = static_cast<int>(s.size);
        const T* x = s.input<T>(static_cast<size_t>(n));
        Ipp64fc* values = s.output<Ipp64fc>(2);
        s.elements = n;
        s.flops = 4.75 * frequencies * n * static_cast<double>(sizeof(T) / sizeof(double));
        s.run([=] { run(x, n, values); });
        if constexpr (sizeof(T) == sizeof(double))
            s.peer("recurrence", [=] {
                for (int i = 0; i < frequencies; ++i) values[i] = recurrence(x, n, 0.1 + 0.2 * i);
            });
    });
}

const bench::Cases goertzel([] {
    static const double both[] = {0.1, 0.3};
    addCases<Ipp64f>("ippsGoertz_64f at 0.1", 1,
                     [](const double* x, int n, Ipp64fc* v) { ippsGoertz_64f(x, n, v, 0.1); });
    addCases<Ipp64fc>("ippsGoertz_64fc at 0.1", 1,
                      [](const Ipp64fc* x, int n, Ipp64fc* v) { ippsGoertz_64fc(x, n, v, 0.1); });
    addCases<Ipp64f>("ippsGoertzTwo_64f_Idx", 2,
                     [](const double* x, int n, Ipp64fc* v) { ippsGoertzTwo_64f_Idx(x, 0, n, v, both); });
    addCases<Ipp64fc>("ippsGoertzTwo_64fc_Idx", 2,
                      [](const Ipp64fc* x, int n, Ipp64fc* v) { ippsGoertzTwo_64fc_Idx(x, 0, n, v, both); });
});

} // namespace

// Moves between arrays that overlap, one element up and one element down.
#include "case.h"
#include <cstring>

namespace {

void moveBy(bench::Setup& s, int source, int destination)
{
    const int n = static_cast<int>(s.size);
    double* const x = s.inout<double>(static_cast<size_t>(n) + 1);
    s.elements = n;
    s.run([=] { ippsMove_64f(x + source, x + destination, n); });
    s.peer("memmove", [=] { std::memmove(x + destination, x + source, sizeof(double) * static_cast<size_t>(n)); });
}

const bench::Cases overlapping([] {
    bench::addCase("ippsMove_64f one up", {1000, 30000}, [](bench::Setup& s) { moveBy(s, 0, 1); });
    bench::addCase("ippsMove_64f one down", {1000, 30000}, [](bench::Setup& s) { moveBy(s, 1, 0); });
});

} // namespace

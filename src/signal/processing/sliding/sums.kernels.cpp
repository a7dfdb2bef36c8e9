// Sliding sums as functions, and those at the ends of a signal.
#include "signal/processing/sliding/sums.h"
#include "signal/processing/sliding/blocks.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Ends of so many sums are computed one by one; longer ones by halves, each a rectangle, whose sums have as many
// products, and two shorter ends.
constexpr int shortEnd = 8;

// `count` products in one sum.
template <class T> inline void add(const T* x, const T* r, int count, T* y)
{
    using S = Side<T, 1>;
    auto sum = S::get(y);
    for (int k = 0; k < count; ++k) S::add(sum, S::tap(r[k]), S::signal(x + k));
    S::put(y, sum);
}

template <class T> void rising(const T* x, const T* end, T* y, int n)
{
    if (n <= shortEnd) {
        for (int i = 0; i < n; ++i) {
            y[i] = T{};
            add(x, end - i, i, y + i);
        }
        return;
    }
    const int half = n / 2;
    rising(x, end, y, half);
    rising(x, end - half, y + half, n - half);
    blocks(x, end - half, half, y + half, n - half, true);
}

template <class T> void falling(const T* x, const T* r, T* y, int n)
{
    if (n <= shortEnd) {
        for (int i = 0; i < n - 1; ++i) add(x + i, r, n - 1 - i, y + i);
        return;
    }
    const int half = n / 2, rest = n - half;
    blocks(x, r, rest, y, half, true);
    falling(x + rest, r + rest, y, half);
    falling(x + half, r, y + half, rest);
}

} // namespace

void slidingSums(const f64* x, const f64* r, int count, f64* y, int n, bool more) { blocks(x, r, count, y, n, more); }
void slidingSums(const c64f* x, const c64f* r, int count, c64f* y, int n, bool more)
{
    blocks(x, r, count, y, n, more);
}
void risingSums(const f64* x, const f64* end, f64* y, int n) { rising(x, end, y, n); }
void risingSums(const c64f* x, const c64f* end, c64f* y, int n) { rising(x, end, y, n); }
void fallingSums(const f64* x, const f64* r, f64* y, int n) { falling(x, r, y, n); }
void fallingSums(const c64f* x, const c64f* r, c64f* y, int n) { falling(x, r, y, n); }

} // namespace sig5d::SIG5D_VARIANT

// Running sums, of all elements or of every lag-th.
#include "frame/entry.h"
#include "kernel/map.h"
#include "vector/prefix_sum.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The definition, for lag 0 too: right however the arrays overlap.
template <class T> void plain_sum(size_t n, const T* a, T* d, size_t lag)
{
    for (size_t i = lag; i < n; ++i) d[i] = static_cast<T>(a[i] + *(d + i - lag));
}

// The destination begins inside the source, so that what is stored is loaded again.
template <class T> bool feeds_itself(size_t n, const T* a, const T* d)
{
    const uintptr_t distance = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(a);
    return distance > 0 && distance < n * sizeof(T);
}

#if SIG5D_LEVEL == 0

template <class T> void sum_apart(size_t n, const T* a, T* d, size_t lag) { plain_sum(n, a, d, lag); }

#else

// Doubles with a short lag: the last sums stay in registers.
template <int lag> [[gnu::noinline]] void sum_in_registers(size_t n, const f64* a, f64* d)
{
    f64 sum[lag];
    for (int k = 0; k < lag; ++k) sum[k] = d[k];
    size_t i = lag;
    for (; i + lag <= n; i += lag)
        for (int k = 0; k < lag; ++k) {
            sum[k] = a[i + k] + sum[k];
            d[i + k] = sum[k];
        }
    for (int k = 0; i < n; ++i, ++k) d[i] = a[i] + sum[k];
}

void sum_apart(size_t n, const f64* a, f64* d, size_t lag)
{
    switch (lag) {
    case 1:
        return sum_in_registers<1>(n, a, d);
    case 2:
        return sum_in_registers<2>(n, a, d);
    case 3:
        return sum_in_registers<3>(n, a, d);
    case 4:
        return sum_in_registers<4>(n, a, d);
    case 5:
        return sum_in_registers<5>(n, a, d);
    case 6:
        return sum_in_registers<6>(n, a, d);
    case 7:
        return sum_in_registers<7>(n, a, d);
    default:
        return sum_vectors<vectorBytes>(n, a, d, lag);
    }
}

template <class T> void shorter_lag(size_t n, const T* a, T* d, size_t lag)
{
    if constexpr (hasByteShuffle)
        if (n >= 64) return short_lag_sum(n, a, d, lag);
    plain_sum(n, a, d, lag);
}

template <class T> void sum_apart(size_t n, const T* a, T* d, size_t lag)
{
    const size_t bytes = lag * sizeof(T);
    if (lag == 1)
        prefix_sum(n, a, d);
    else if (bytes >= vectorBytes)
        sum_vectors<vectorBytes>(n, a, d, lag);
    else if (bytes >= 16)
        sum_vectors<16>(n, a, d, lag);
    else
        shorter_lag(n, a, d, lag);
}

#endif

// The elements behind the first "lag" ones.
template <class T> void add_lagged(size_t n, const T* a, T* d, size_t lag)
{
    if (lag >= n) return;
    if (feeds_itself(n, a, d))
        plain_sum(n, a, d, lag);
    else
        sum_apart(n, a, d, lag);
}

template <class T> void copy_first(size_t n, const T* a, T* d)
{
    if (a == d) return;
    if (feeds_itself(n, a, d))
        for (size_t i = 0; i < n; ++i) d[i] = a[i];
    else
        map(n, d, Same{}, a);
}

struct Sum {
    template <class V> V operator()(V x, V y) const { return static_cast<V>(x + y); }
};

template <class T> [[gnu::noinline]] void sum_with_lag(size_t n, const T* a, T* d, size_t lag)
{
    if (lag > 0) {
        copy_first(lag, a, d);
        add_lagged(n, a, d, lag);
    } else if (feeds_itself(n, a, d)) {
        plain_sum(n, a, d, 0);
    } else {
        map(n, d, Sum{}, a, static_cast<const T*>(d));
    }
}

// Elements as they are summed: integers that wrap around; complex numbers as twice as many parts, twice as far apart.
template <class T> struct SummedAs {
    using type = T;
};
template <> struct SummedAs<i32> {
    using type = u32;
};
template <> struct SummedAs<i16> {
    using type = u16;
};
template <> struct SummedAs<c64f> {
    using type = f64;
};

template <class T> void lagged_sum(const T* a, T* d, u32 n, u32 lag)
{
    using S = typename SummedAs<T>::type;
    constexpr size_t each = sizeof(T) / sizeof(S);
    sum_with_lag(each * n, reinterpret_cast<const S*>(a), reinterpret_cast<S*>(d), each * lag);
}

template <class T> void running_sum(const T* a, T* d, u32 n)
{
    if (n > 0) lagged_sum(a, d, n, 1);
}

} // namespace
#include "entries/vector/running_sum.inc"
} // namespace sig5d::SIG5D_VARIANT

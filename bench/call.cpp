#include "call.h"
#include "sig5d_types.h"
#include <cstring>
#include <utility>

namespace bench {
namespace {

using registry::CallWords;
using registry::Entry;

constexpr size_t maxWords = 24; // on the stack

template <size_t> using Word = uintptr_t;
template <size_t> using Pair = double;
template <size_t n> using Count = std::make_index_sequence<n>;

#ifdef __x86_64__

// Registers that the function does not read are loaded for nothing; what it returns is never looked at.
template <size_t... i> Batch batchOf(Entry entry, const CallWords& w, bool, bool, std::index_sequence<i...>)
{
    using R = uintptr_t;
    using D = double;
    const auto f = reinterpret_cast<void (*)(R, R, R, R, R, R, D, D, D, D, D, D, D, D, Word<i>...)>(entry);
    return [f, w](long long calls) {
        const uintptr_t* const r = w.integers;
        const double* const d = w.floats;
        [[maybe_unused]] const uintptr_t* const s = w.stack.data();
        for (long long k = 0; k < calls; ++k)
            f(r[0], r[1], r[2], r[3], r[4], r[5], d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], s[i]...);
    };
}

template <size_t n> Batch batchOf(Entry entry, const CallWords& w, bool pops, bool returnsDouble)
{
    return batchOf(entry, w, pops, returnsDouble, Count<n>());
}

#else

// The words in pairs, those before and behind by themselves.
template <size_t... lead, size_t... pair, size_t... tail>
Batch batchOf(Entry entry, const CallWords& w, bool pops, bool returnsDouble, std::index_sequence<lead...>,
              std::index_sequence<pair...>, std::index_sequence<tail...>)
{
    const auto batch = [w](auto f) -> Batch {
        return [f, w](long long calls) {
            [[maybe_unused]] const uintptr_t* const s = w.stack.data();
            double pairs[sizeof...(pair) + 1];
            std::memcpy(pairs, s + sizeof...(lead), sizeof...(pair) * sizeof(double));
            for (long long k = 0; k < calls; ++k)
                f(s[lead]..., pairs[pair]..., s[sizeof...(lead) + 2 * sizeof...(pair) + tail]...);
        };
    };
    if (pops && returnsDouble)
        return batch(reinterpret_cast<double(SIG5D_STDCALL*)(Word<lead>..., Pair<pair>..., Word<tail>...)>(entry));
    if (pops) return batch(reinterpret_cast<void(SIG5D_STDCALL*)(Word<lead>..., Pair<pair>..., Word<tail>...)>(entry));
    if (returnsDouble) return batch(reinterpret_cast<double (*)(Word<lead>..., Pair<pair>..., Word<tail>...)>(entry));
    return batch(reinterpret_cast<void (*)(Word<lead>..., Pair<pair>..., Word<tail>...)>(entry));
}

// A function that loads a double waits long for two halves that were stored apart; compiled callers store it whole.
template <size_t n> Batch batchOf(Entry entry, const CallWords& w, bool pops, bool returnsDouble)
{
    if (n > 0 && w.firstDouble > 0 && w.firstDouble % 2)
        return batchOf(entry, w, pops, returnsDouble, Count < n ? 1 : 0 > (), Count < n ? (n - 1) / 2 : 0 > (),
                       Count < n ? (n - 1) % 2 : 0 > ());
    return batchOf(entry, w, pops, returnsDouble, Count<0>(), Count<n / 2>(), Count<n % 2>());
}

#endif

template <size_t... n>
Batch select(Entry entry, const CallWords& w, bool pops, bool returnsDouble, std::index_sequence<n...>)
{
    using Make = Batch (*)(Entry, const CallWords&, bool, bool);
    static const Make makers[] = {batchOf<n>...};
    return w.stack.size() < sizeof...(n) ? makers[w.stack.size()](entry, w, pops, returnsDouble) : Batch();
}

} // namespace

Batch repeatedCall(Entry entry, const CallWords& words, bool pops, bool returnsDouble)
{
    return select(entry, words, pops, returnsDouble, Count<maxWords + 1>());
}

} // namespace bench

// Transposing in registers. A block is as many rows as elements fit a register, and 16 bytes of each: its columns
// become whole registers. Pointers are to bytes and steps between rows are in bytes; "size" is that of an element.
#pragma once
#include "kernel/partial.h"
#include <stddef.h>
#include <stdint.h>
#include <type_traits>
#include <utility>

namespace sig5d::SIG5D_VARIANT {
namespace {

// 32-byte registers need shuffles of the element: AVX has them for 4 bytes and more, AVX2 for all. Longer ones would
// serve only where memory is slower than they are, and squares of them would not fit the registers.
template <int size> constexpr int widest = integerBytes >= 32 || (vectorBytes >= 32 && size >= 4) ? 32 : 16;

template <int width> using Reg = Vec<u8, width>;

// Elements of the lower (half 0) or upper (half 1) eight bytes of each 16 of a and b in turn.
template <int half, class V, size_t... i> inline V interleaved_lanes(V a, V b, std::index_sequence<i...>)
{
    constexpr size_t L = sizeof...(i), inPiece = 16 / (sizeof(V) / L);
    return __builtin_shufflevector(a, b, (i / inPiece * inPiece + half * inPiece / 2 + i % inPiece / 2 + i % 2 * L)...);
}
// Elements as lanes. AVX has shuffles of numbers only for its longer registers; where there are those of integers,
// newer processors execute them at two places.
template <class Numbers, class Integers, class R>
using Fitting = std::conditional_t<(sizeof(R) > integerBytes), Numbers, Integers>;
template <int size, class R>
using Element = std::conditional_t<
    size == 1, u8,
    std::conditional_t<size == 2, u16, std::conditional_t<size == 4, Fitting<f32, u32, R>, Fitting<f64, u64, R>>>>;
template <int size, int half, class R> inline R interleaved(R a, R b)
{
    constexpr int n = sizeof(R) / size;
    using V = Vec<Element<size, R>, n>;
    return as<R>(interleaved_lanes<half>(as<V>(a), as<V>(b), std::make_index_sequence<n>{}));
}

// 16 bytes of a row; a wide register gets those of a second row into its upper half, without a shuffle.
template <int width> inline Reg<width> load_rows(const u8* p, [[maybe_unused]] size_t toSecond)
{
    if constexpr (width == 32) {
        using Half = Vec<f64, width / 16>;
        return as<Reg<width>>(joined(as<Half>(loadn<width / 2>(p)), as<Half>(loadn<width / 2>(p + toSecond))));
    } else {
        return loadn<width>(p);
    }
}

// Inverts the sign of the imaginary parts of 16-byte elements.
template <int width> inline Reg<width> conjugate(Reg<width> x)
{
    Vec<u64, width / 8> sign{};
    for (int k = 1; k < width / 8; k += 2) sign[k] = signBit;
    return x ^ as<Reg<width>>(sign);
}

// Interleaving the first half of the registers with the second, again and again, transposes squares of as many
// elements.
template <int size, int width, int n> inline void interleave(Reg<width> (&r)[n])
{
#pragma GCC unroll 4
    for (int done = 1; done < n; done *= 2) {
        Reg<width> t[n];
#pragma GCC unroll 8
        for (int k = 0; k < n / 2; ++k) {
            t[2 * k] = interleaved<size, 0>(r[k], r[k + n / 2]);
            t[2 * k + 1] = interleaved<size, 1>(r[k], r[k + n / 2]);
        }
#pragma GCC unroll 16
        for (int k = 0; k < n; ++k) r[k] = t[k];
    }
}

// Columns of a block that are made at a time: all, or half of them where there are eight registers only.
template <int size> constexpr int portion = sizeof(void*) == 4 && size == 1 ? 8 : 16 / size;

// r[k] becomes column k, or column k of the second half, of the block at a.
template <int size, int width, bool conj>
inline void load_columns(Reg<width> (&r)[portion<size>], const u8* a, size_t aStep, [[maybe_unused]] bool secondHalf)
{
    constexpr int n = 16 / size;
    if constexpr (portion<size> == n) {
#pragma GCC unroll 16
        for (int k = 0; k < n; ++k) r[k] = load_rows<width>(a + k * aStep, n * aStep);
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < n / 2; ++k) {
            const auto x = load_rows<width>(a + k * aStep, n * aStep);
            const auto y = load_rows<width>(a + (k + n / 2) * aStep, n * aStep);
            r[k] = secondHalf ? interleaved<size, 1>(x, y) : interleaved<size, 0>(x, y);
        }
    }
    if constexpr (n > 1)
        interleave<size, width>(r);
    else if constexpr (conj)
        r[0] = conjugate<width>(r[0]);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT

// How many sums a kernel of sliding sums has under way, which those who cut up its work want to know.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Measured: sums, taps and samples of a step fill the registers. Rows that lie 64 bytes apart are avoided in real
// signals, since all their loads would cross cache lines in the same steps.
constexpr bool manyRegisters = sizeof(void*) == 8;
template <class T> constexpr int groups = 0;
template <> constexpr int groups<f64> = manyRegisters ? (vectorBytes == 64 ? 4 : vectorBytes == 32 ? 3 : 2) : 1;
template <> constexpr int groups<c64f> = manyRegisters ? 2 : 1;
template <class T> constexpr int columns = 0;
template <> constexpr int columns<f64> = manyRegisters ? (vectorBytes == 64 ? 4 : vectorBytes == 32 ? 3 : 5) : 6;
template <> constexpr int columns<c64f> = 5;

template <class T>
constexpr int widest = vectorBytes > static_cast<int>(sizeof(T)) ? vectorBytes / static_cast<int>(sizeof(T)) : 1;
template <class T> constexpr int outputsOfBlock = groups<T>* columns<T>* widest<T>;

} // namespace
} // namespace sig5d::SIG5D_VARIANT

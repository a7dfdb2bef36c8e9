// The block that describes a FIR filter, and where everything lies in it and in the work buffer. The size queries and
// the Init functions use the same layout; all sizes are computed in 64 bits and refused when they are no int.
#pragma once
#include "signal/processing/fft/plan.h"
#include "signal/processing/sliding/memory.h"

namespace sig5d::SIG5D_VARIANT {

// The head of a specification, at the first multiple of 64 in the caller's block. What it refers to is told by offsets
// from the head, so that a block may lie in read-only memory and be moved by multiples of 64 bytes.
struct FirSpec {
    i32 tapsLen;
    u32 taps; // single rate: the taps in reversed order; multi-rate: a copy in the given order
    u32 mark;
    i32 algType;         // 0 automatic, 1 direct, 2 by FFT
    i32 singleRate;      // 1: made for the multi-rate filter with both factors 1
    u32 plan, spectrum;  // unless algType is 1
    u32 fftWork, values; // in the work buffer
    // multi-rate
    i32 upFactor, downFactor;
    i32 period, groups, width, rows;
};
static_assert(sizeof(FirSpec) <= 64);

namespace {

// What stands in the mark of a block: which filter it is for. A block of another kind has something else there.
enum FirMark : u32 { singleRate64f = 0x46495213, singleRate64fc, multiRate64f, multiRate64fc };

template <class T> constexpr u32 singleRateMark = !isComplex<T> ? singleRate64f : singleRate64fc;
template <class T> constexpr u32 multiRateMark = !isComplex<T> ? multiRate64f : multiRate64fc;

template <class T, class P> T* part(P* spec, u32 offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(spec) + offset);
}

struct FirSizes {
    i64 spec, work;
    bool fit() const { return spec <= maxInt && work <= maxInt; }
    void store(int* pSpecSize, int* pBufSize) const
    {
        *pSpecSize = static_cast<int>(spec);
        *pBufSize = static_cast<int>(work);
    }
};

// Samples of a block of an in-place call, and the bytes that the work buffer has for it: 4096 real ones or 2048
// complex.
constexpr int blockBytes = 32768;

// A single-rate filter: the taps, and for the method by FFT a transform of N values (twice the smallest power of two
// above the number of taps) with the spectrum of the taps.
struct SingleRateLayout {
    i64 tapsLen, e; // e: bytes of an element
    FftKind kind;
    int order;
    i64 n;

    SingleRateLayout(int taps, int elementBytes, bool complex)
        : tapsLen(taps), e(elementBytes), kind(complex ? FftKind::complex : FftKind::real),
          order(32 - __builtin_clz(static_cast<u32>(taps)) + 1), n(i64(1) << order)
    {
    }
    // Orders without a transform belong to sizes that are no int in any case.
    i64 planBytes() const { return order > fftMaxOrder ? maxInt : fftPlanBytes(kind, FftSpectrum::unordered, order); }
    // With 64 bytes for the start of the work buffer.
    i64 fftBytes() const { return order > fftMaxOrder ? maxInt : fftWorkBytes(kind, order) + 64; }

    // In the block, from the head. The work area serves to transform the taps.
    i64 taps() const { return 64; }
    i64 plan() const { return taps() + align64(tapsLen * e); }
    i64 planWork() const { return plan() + planBytes(); }
    i64 spectrum() const { return planWork() + fftBytes(); }

    // In the work buffer, from its first multiple of 64: the history and a block of an in-place call, the work area of
    // the transform, the values of a transform.
    i64 fftWork() const { return align64(2 * tapsLen * e) + blockBytes + align64(2 * (tapsLen - 1) * e); }
    i64 values() const { return fftWork() + fftBytes() - 64; }

    FirSizes sizes() const
    {
        return {align64(tapsLen * e) + 127 + n * e + planBytes() + fftBytes(), fftWork() + fftBytes() + n * e};
    }
};

constexpr int polyphaseTable = 64, groupBytes = 64; // where the descriptions of the groups start, what each takes

// A multi-rate filter. Output j is the sum of taps[q - i*up] * x[i] over all inputs i, q = j*down + downPhase -
// upPhase.
//
// Outputs are computed in groups that lie side by side, 32 bytes each. The windows of a group's outputs are moved
// against each other; a matrix of taps with a row for every input from the first of any window to the last turns the
// group into a sum of rows, each times one input. Where the windows have too little in common for that, a group is a
// single output. The groups repeat after `period` iterations.
struct MultiRateLayout {
    i64 tapsLen, up, down, e;
    bool complex;
    i64 history;                     // inputs of the delay line
    i64 width, rows, period, groups; // outputs of a group, rows of a matrix, iterations of a period, groups of a period

    MultiRateLayout(int taps, int upFactor, int downFactor, int elementBytes, bool complexTaps)
        : tapsLen(taps), up(upFactor), down(downFactor), e(elementBytes), complex(complexTaps),
          history((tapsLen - 1 + up) / up), width(complex ? 2 : 4), rows(rowsOf(width))
    {
        if (2 * rows > (width + 1) * history) {
            width = 1;
            rows = rowsOf(1);
        }
        // Few outputs an iteration: a period is as many iterations as fill whole groups. Otherwise one; its last group
        // overlaps the one before.
        period = up >= 16 || up % width == 0 ? 1 : up % 2 == 0 ? width / 2 : width;
        groups = (period * up + width - 1) / width;
    }
    i64 rowsOf(i64 outputs) const { return (tapsLen - 1 + (outputs - 1) * down) / up + 1; }
    i64 rowBytes() const { return width * (complex ? 32 : 8); }

    // In the block, from the head.
    i64 stateBytes() const { return groups * (groupBytes + rows * rowBytes()); }
    i64 matrices() const { return polyphaseTable + groups * groupBytes; }
    i64 taps() const { return polyphaseTable + align64(stateBytes()); }

    // In the work buffer, from its first multiple of 64: a copy of the history, the outputs of a period, then a line
    // with the history and the inputs of a block.
    i64 blockInputs() const { return history + (2 * period + 1) * down; }

    FirSizes sizes() const
    {
        return {align64(stateBytes()) + 127 + align64(e * tapsLen),
                (history * 32 + 126) / 128 * 128 + 65599 + align64((blockInputs() + history) * 16 + 16)};
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT

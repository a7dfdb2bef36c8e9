// Transposes of the sizes and strides that matter, against what a good engineer writes in an hour: blocks in registers,
// taken in tiles of 32 columns.
#include "case.h"
#include <algorithm>
#include <immintrin.h>
#include <utility>

namespace {

using Count = unsigned;

template <class T> void doubleLoop(const T* a, T* d, Count rows, Count cols, Count aStride, Count dStride)
{
    for (size_t i = 0; i < rows; ++i)
        for (size_t j = 0; j < cols; ++j) d[j * dStride + i] = a[i * aStride + j];
}

template <class T, bool high> __m128i interleaved(__m128i x, __m128i y)
{
    if constexpr (sizeof(T) == 1)
        return high ? _mm_unpackhi_epi8(x, y) : _mm_unpacklo_epi8(x, y);
    else if constexpr (sizeof(T) == 2)
        return high ? _mm_unpackhi_epi16(x, y) : _mm_unpacklo_epi16(x, y);
    else
        return high ? _mm_unpackhi_epi32(x, y) : _mm_unpacklo_epi32(x, y);
}

// A square of 16 bytes by 16 bytes.
template <class T> struct InRegisters {
    static constexpr size_t side = 16 / sizeof(T);
    [[gnu::target("avx")]] static void block(const T* a, size_t aStride, T* d, size_t dStride)
    {
        __m128i r[side], t[side];
#pragma GCC unroll 16
        for (size_t k = 0; k < side; ++k) r[k] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + k * aStride));
#pragma GCC unroll 4
        for (size_t done = 1; done < side; done *= 2) {
#pragma GCC unroll 8
            for (size_t k = 0; k < side / 2; ++k) {
                t[2 * k] = interleaved<T, false>(r[k], r[k + side / 2]);
                t[2 * k + 1] = interleaved<T, true>(r[k], r[k + side / 2]);
            }
#pragma GCC unroll 16
            for (size_t k = 0; k < side; ++k) r[k] = t[k];
        }
#pragma GCC unroll 16
        for (size_t k = 0; k < side; ++k) _mm_storeu_si128(reinterpret_cast<__m128i*>(d + k * dStride), r[k]);
    }
};

// Doubles four by four, with AVX.
template <> struct InRegisters<double> {
    static constexpr size_t side = 4;
    [[gnu::target("avx")]] static void block(const double* a, size_t aStride, double* d, size_t dStride)
    {
        const __m256d r0 = _mm256_loadu_pd(a), r1 = _mm256_loadu_pd(a + aStride);
        const __m256d r2 = _mm256_loadu_pd(a + 2 * aStride), r3 = _mm256_loadu_pd(a + 3 * aStride);
        const __m256d t0 = _mm256_unpacklo_pd(r0, r1), t1 = _mm256_unpackhi_pd(r0, r1);
        const __m256d t2 = _mm256_unpacklo_pd(r2, r3), t3 = _mm256_unpackhi_pd(r2, r3);
        _mm256_storeu_pd(d, _mm256_permute2f128_pd(t0, t2, 0x20));
        _mm256_storeu_pd(d + dStride, _mm256_permute2f128_pd(t1, t3, 0x20));
        _mm256_storeu_pd(d + 2 * dStride, _mm256_permute2f128_pd(t0, t2, 0x31));
        _mm256_storeu_pd(d + 3 * dStride, _mm256_permute2f128_pd(t1, t3, 0x31));
    }
};

template <class T>
[[gnu::target("avx")]] void blocks(const T* a, T* d, Count rows, Count cols, Count aStride, Count dStride)
{
    constexpr size_t side = InRegisters<T>::side, tile = 32 > side ? 32 : side;
    const size_t wholeRows = rows / side * side, wholeCols = cols / side * side;
    for (size_t tj = 0; tj < wholeCols; tj += tile)
        for (size_t i = 0; i < wholeRows; i += side)
            for (size_t j = tj; j < std::min(tj + tile, wholeCols); j += side)
                InRegisters<T>::block(a + i * aStride + j, aStride, d + j * dStride + i, dStride);
    for (size_t i = 0; i < rows; ++i)
        for (size_t j = i < wholeRows ? wholeCols : 0; j < cols; ++j) d[j * dStride + i] = a[i * aStride + j];
}

template <class T> using Function = void(SIG5D_CDECL*)(const T*, T*, Count, Count, Count, Count);

template <class T> void add(const char* name, Function<T> transpose, Count rows, Count cols, Count gap)
{
    const std::string title = std::string(name) + ' ' + std::to_string(rows) + 'x' + std::to_string(cols) +
                              (gap ? " gap " + std::to_string(gap) : "");
    bench::addCase(title, {static_cast<long long>(rows) * cols}, [=](bench::Setup& s) {
        const Count aStride = cols + gap, dStride = rows + gap;
        const T* a = s.input<T>(size_t(rows) * aStride);
        T* d = s.output<T>(size_t(cols) * dStride);
        s.elements = double(rows) * cols;
        s.run([=] { transpose(a, d, rows, cols, aStride, dStride); });
        if (__builtin_cpu_supports("avx")) s.peer("blocks", [=] { blocks(a, d, rows, cols, aStride, dStride); });
        if (rows < 300) s.peer("double loop", [=] { doubleLoop(a, d, rows, cols, aStride, dStride); });
    });
}

const bench::Cases transposes([] {
    const Count shapes[][3] = {{3, 3, 0},       {4, 4, 0},       {10, 10, 0},     {50, 50, 0},
                               {51, 53, 0},     {180, 180, 0},   {256, 256, 0},   {257, 255, 0},
                               {360, 360, 0},   {512, 512, 0},   {1000, 1500, 0}, {1001, 1501, 0},
                               {2048, 2048, 0}, {2048, 2048, 8}, {2049, 2047, 0}, {3000, 2000, 0}};
    for (const auto& [rows, cols, gap] : shapes) {
        add<double>("TransposeMatrix", TransposeMatrix, rows, cols, gap);
        add<Ipp32s>("TransposeMatrix_32s", TransposeMatrix_32s, rows, cols, gap);
        add<Ipp16s>("TransposeMatrix_16s", TransposeMatrix_16s, rows, cols, gap);
        add<Ipp8u>("TransposeMatrix_8u", TransposeMatrix_8u, rows, cols, gap);
    }
});

} // namespace

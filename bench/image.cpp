// Image filters: small and large kernels, with and without borders.
#include "case.h"
#include <cmath>
#include <string>

namespace {

using bench::Setup;

constexpr double kernelValue = 0.0625;

// As loops over rows are written: a row of results is updated for each tap. The compiler makes vectors of them.
template <class T> void rowByRow(const T* src, int srcStride, T* dst, int side, int size)
{
    for (int y = 0; y < side; ++y) {
        T* const row = dst + static_cast<ptrdiff_t>(y) * side;
        for (int x = 0; x < side; ++x) row[x] = 0;
        for (int t = 0; t < size; ++t)
            for (int s = 0; s < size; ++s) {
                const T* const from = src + static_cast<ptrdiff_t>(y + t) * srcStride + s;
                for (int x = 0; x < side; ++x) row[x] += static_cast<T>(kernelValue) * from[x];
            }
    }
}
__attribute__((target("avx"), optimize("O3"))) void rowByRowOfDoubles(const double* src, int stride, double* dst,
                                                                      int side, int size)
{
    rowByRow(src, stride, dst, side, size);
}
__attribute__((target("avx"), optimize("O3"))) void rowByRowOfFloats(const float* src, int stride, float* dst, int side,
                                                                     int size)
{
    rowByRow(src, stride, dst, side, size);
}

std::string titled(const char* function, int size)
{
    return std::string(function) + ' ' + std::to_string(size) + 'x' + std::to_string(size);
}

int sideOf(const Setup& s) { return static_cast<int>(std::lround(std::sqrt(static_cast<double>(s.size)))); }

// Pixels are doubles; a kernel that is square.
void inMemory(int size)
{
    bench::addCase(titled("ippiFilter_64f_C1R", size), {40 * 40, 200 * 200, 1024 * 1024}, [=](Setup& s) {
        const int side = sideOf(s), stride = side + size - 1, before = size / 2;
        const double* src = s.input<double>(static_cast<size_t>(stride) * stride);
        double* dst = s.output<double>(static_cast<size_t>(s.size));
        auto* kernel = reinterpret_cast<double*>(s.scratch(sizeof(double) * size * size));
        for (int i = 0; i < size * size; ++i) kernel[i] = kernelValue;
        int bytes = 0;
        ippiFilterGetBufSize_64f_C1R({size, size}, side, &bytes);
        Ipp8u* buffer = s.scratch(static_cast<size_t>(bytes));
        s.elements = static_cast<double>(s.size);
        s.flops = 2.0 * size * size * s.elements;
        const double* first = src + static_cast<ptrdiff_t>(before) * stride + before;
        s.run([=] {
            ippiFilter_64f_C1R(first, stride * 8, dst, side * 8, {side, side}, kernel, {size, size},
                               {size - 1 - before, size - 1 - before}, buffer);
        });
        if (__builtin_cpu_supports("avx"))
            s.peer("row by row", [=] { rowByRowOfDoubles(src, stride, dst, side, size); });
    });
}

// A vector has twice as many floats as doubles: an operation on one counts half. Sums in double precision count whole.
void withBorders(int size, int border, int hint)
{
    const std::string title = titled("ippiFilterBorder_32f_C1R", size) + (border == 0xF0 ? " in memory" : "") +
                              (hint == 2 ? " accurate" : "");
    bench::addCase(title, {56 * 56, 280 * 280, 1024 * 1024}, [=](Setup& s) {
        const int side = sideOf(s), stride = side + size - 1, before = size / 2;
        const float* src = s.input<float>(static_cast<size_t>(stride) * stride);
        float* dst = s.output<float>(static_cast<size_t>(s.size));
        const std::vector<float> kernel(static_cast<size_t>(size) * size, static_cast<float>(kernelValue));
        int specBytes = 0, bufferBytes = 0;
        ippiFilterBorderGetSize({size, size}, {side, side}, 13, 13, 1, &specBytes, &bufferBytes);
        auto* spec = reinterpret_cast<IppiFilterBorderSpec*>(s.scratch(static_cast<size_t>(specBytes)));
        Ipp8u* buffer = s.scratch(static_cast<size_t>(bufferBytes));
        ippiFilterBorderInit_32f(kernel.data(), {size, size}, 13, 1, 0, spec);
        ippiFilterBorderSetMode(hint, 0, spec);
        s.elements = static_cast<double>(s.size);
        s.flops = (hint == 2 ? 2.0 : 1.0) * size * size * s.elements;
        const float* first = src + static_cast<ptrdiff_t>(before) * stride + before;
        s.run([=] {
            ippiFilterBorder_32f_C1R(first, stride * 4, dst, side * 4, {side, side}, border, nullptr, spec, buffer);
        });
        if (__builtin_cpu_supports("avx") && hint != 2)
            s.peer("row by row", [=] { rowByRowOfFloats(src, stride, dst, side, size); });
    });
}

const bench::Cases image([] {
    for (int size : {3, 5, 11}) inMemory(size);
    for (int size : {3, 5, 11}) withBorders(size, 1, 0);
    withBorders(5, 0xF0, 0);
    withBorders(5, 1, 2);
    withBorders(11, 1, 2);
});

} // namespace

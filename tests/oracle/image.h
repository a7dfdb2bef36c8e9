// Filters of images by definition: the sum over a kernel, pixel by pixel, with the image as a function of column and
// row.
#pragma once
#include <cstddef>
#include <vector>

namespace oracle {

// A kernel of the convolution; (i, j) is column i of row j.
template <class T> struct Kernel {
    int width, height;
    std::vector<T> values;
    T operator()(int i, int j) const { return values[static_cast<size_t>(j) * width + i]; }
};

// The sum at (x, y) as a number of type S, image rows from the top down, in a row from left to right: exact enough in
// long double, in the type of the library's sums the same bits. `magnitude`: of the magnitudes of the products.
template <class S, class T, class Pixel>
S convolved(const Kernel<T>& kernel, int anchorX, int anchorY, int x, int y, Pixel pixel, S* magnitude = nullptr)
{
    S sum = 0, all = 0;
    for (int j = kernel.height - 1; j >= 0; --j)
        for (int i = kernel.width - 1; i >= 0; --i) {
            const S product = S(kernel(i, j)) * S(pixel(x + anchorX - i, y + anchorY - j));
            sum += product;
            all += product < 0 ? -product : product;
        }
    if (magnitude) *magnitude = all;
    return sum;
}

// Where a walk from 0 to i ends that stays within n pixels and turns at either end.
inline int mirrored(int i, int n)
{
    int at = 0, direction = 1;
    for (int left = i < 0 ? -i : i; left > 0 && n > 1; --left) {
        if (at + direction < 0 || at + direction >= n) direction = -direction;
        at += direction;
    }
    return at;
}

// Which of n pixels stands for pixel i outside of them, for a border type; -1: the constant.
inline int substitute(int i, int n, int type)
{
    if (i >= 0 && i < n) return i;
    if (type == 1) return i < 0 ? 0 : n - 1;
    return type == 3 ? mirrored(i, n) : -1;
}

} // namespace oracle

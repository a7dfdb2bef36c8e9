// ippiFilter_64f_C1R: pixels around the region come from memory.
#include "images.h"

using namespace images;
namespace {

int bufferSize(IppiSize kernel, int width)
{
    int size = -1;
    EXPECT_EQ(ippiFilterGetBufSize_64f_C1R(kernel, width, &size), ippStsNoErr);
    return size;
}

// One call on a random image; its result is compared with the definition.
void tryFilter(std::mt19937& g, int width, int height, int kernelWidth, int kernelHeight)
{
    const auto kernel = someKernel<double>(g, kernelWidth, kernelHeight);
    const int ax = below(g, kernelWidth), ay = below(g, kernelHeight);
    const Margins reach{kernelHeight - 1 - ay, ay, kernelWidth - 1 - ax, ax};
    Image<double> src(width, height, reach, 8 * below(g, 3), coin(g), coin(g));
    Image<double> dst(width, height, {}, 8 * below(g, 3), coin(g), coin(g));
    src.fill([&](int, int) { return number<double>(g); });
    const Block buffer(bufferSize({kernelWidth, kernelHeight}, width));
    inEveryVariant([&] {
        dst.fill([](int, int) { return -7.0; });
        ASSERT_EQ(ippiFilter_64f_C1R(src.data(), src.step(), dst.data(), dst.step(), {width, height},
                                     kernel.values.data(), {kernelWidth, kernelHeight}, {ax, ay}, buffer.data()),
                  ippStsNoErr);
        ASSERT_TRUE(dst.gapsAreIntact());
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                long double magnitude;
                const auto exact = oracle::convolved<long double>(kernel, ax, ay, x, y, src, &magnitude);
                ASSERT_LE(std::fabs(dst(x, y) - exact), kernelWidth * kernelHeight * 0x1p-53L * magnitude);
                ASSERT_TRUE(support::sameBits(dst(x, y), oracle::convolved<double>(kernel, ax, ay, x, y, src)))
                    << "at " << x << ", " << y << " of " << width << " x " << height << ", kernel " << kernelWidth
                    << " x " << kernelHeight;
            }
    });
}

} // namespace

TEST(Filter, IsTheConvolutionInItsDefinedOrder)
{
    std::mt19937 g(61);
    for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 40, 41, 97})
        for (const int height : {1, 2, 3, 4, 5, 9}) tryFilter(g, width, height, 1 + below(g, 7), 1 + below(g, 7));
    for (const int size : {1, 2, 3, 4, 5, 11}) {
        tryFilter(g, 131, 13, size, size);
        tryFilter(g, 50, 6, 1, size);
        tryFilter(g, 50, 6, size, 1);
    }
    tryFilter(g, 4, 4, 70, 3);
    tryFilter(g, 4, 4, 3, 70);
}

TEST(Filter, PixelsReachOnlyResultsWhoseKernelNamesThem)
{
    std::mt19937 g(62);
    const auto kernel = someKernel<double>(g, 5, 4);
    Image<double> src(60, 20, {3, 3, 4, 4}, 16, false, true), dst(60, 20, {}, 0, false, true);
    src.fill([&](int x, int y) {
        return (x * 7 + y * 3) % 97 == 0 ? (x % 2 ? HUGE_VAL : std::nan("")) : number<double>(g);
    });
    const Block buffer(bufferSize({5, 4}, 60));
    inEveryVariant([&] {
        ippiFilter_64f_C1R(src.data(), src.step(), dst.data(), dst.step(), {60, 20}, kernel.values.data(), {5, 4},
                           {1, 2}, buffer.data());
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 60; ++x)
                ASSERT_TRUE(support::sameBits(dst(x, y), oracle::convolved<double>(kernel, 1, 2, x, y, src)));
    });
}

// An image filtered piece by piece, by one buffer, is the image filtered at once.
TEST(Filter, RegionsMayBeCutAnywhereAndShareABuffer)
{
    std::mt19937 g(63);
    const auto kernel = someKernel<double>(g, 6, 3);
    Image<double> src(77, 31, {1, 1, 3, 2}, 0, false, true), whole(77, 31, {}, 8, false, true);
    src.fill([&](int, int) { return number<double>(g); });
    const Block buffer(bufferSize({6, 3}, 77));
    ASSERT_EQ(ippiFilter_64f_C1R(src.data(), src.step(), whole.data(), whole.step(), {77, 31}, kernel.values.data(),
                                 {6, 3}, {2, 1}, buffer.data()),
              ippStsNoErr);
    inEveryVariant([&] {
        std::vector<double> cut(77 * 31);
        for (int y = 0, h; y < 31; y += h) {
            h = std::min(1 + below(g, 9), 31 - y);
            for (int x = 0, w; x < 77; x += w) {
                w = std::min(1 + below(g, 30), 77 - x);
                const double* from = src.data() + y * (src.step() / 8) + x;
                ASSERT_EQ(ippiFilter_64f_C1R(from, src.step(), &cut[y * 77 + x], 77 * 8, {w, h}, kernel.values.data(),
                                             {6, 3}, {2, 1}, buffer.data()),
                          ippStsNoErr);
            }
        }
        for (int y = 0; y < 31; ++y)
            for (int x = 0; x < 77; ++x) ASSERT_TRUE(support::sameBits(cut[y * 77 + x], whole(x, y))) << x << ' ' << y;
    });
}

TEST(Filter, StatusesInTheirOrder)
{
    double x[9] = {}, y[9] = {7}, k[9] = {};
    Ipp8u buffer[512];
    inEveryVariant([&] {
        int size = -7;
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({0, 0}, 0, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({0, 0}, 0, &size), ippStsSizeErr);
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({1, 0}, 1, &size), ippStsMaskSizeErr);
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({0x7fffffff, 0x7fffffff}, 0x7fffffff, &size), ippStsSizeErr);
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({0x4000, 0x4000}, 1, &size), ippStsSizeErr);
        EXPECT_EQ(ippiFilterGetBufSize_64f_C1R({1, 0x7fffffff}, 1, &size), ippStsSizeErr);
        EXPECT_EQ(size, -7);

        const auto call = [&](int srcStep, int dstStep, IppiSize roi, IppiSize kernel, IppiPoint anchor) {
            return ippiFilter_64f_C1R(x, srcStep, y, dstStep, roi, k, kernel, anchor, buffer);
        };
        EXPECT_EQ(ippiFilter_64f_C1R(x, 0, y, 0, {0, 0}, nullptr, {0, 0}, {-1, 0}, buffer), ippStsNullPtrErr);
        EXPECT_EQ(call(0, 0, {3, 0}, {0, 0}, {-1, 0}), ippStsSizeErr);
        EXPECT_EQ(call(23, 24, {3, 1}, {0, 0}, {-1, 0}), ippStsSizeErr);
        EXPECT_EQ(call(24, -23, {3, 1}, {0, 0}, {-1, 0}), ippStsSizeErr);
        EXPECT_EQ(call(-24, 24, {3, 1}, {0, 1}, {-1, 0}), ippStsMaskSizeErr);
        EXPECT_EQ(call(24, 24, {3, 1}, {3, 1}, {3, 0}), ippStsBadArgErr);
        EXPECT_EQ(call(24, 24, {3, 1}, {3, 1}, {0, -1}), ippStsBadArgErr);
        EXPECT_EQ(call(24, 24, {3, 1}, {0x7fffffff, 0x7fffffff}, {0, 0}), ippStsSizeErr);
        EXPECT_EQ(call(-0x7fffffff - 1, 0x7fffffff, {0x10000000, 1}, {1, 1}, {0, 1}), ippStsSizeErr);
        EXPECT_EQ(call(-0x7fffffff - 1, 0x7fffffff, {0x0fffffff, 1}, {1, 1}, {0, 1}), ippStsBadArgErr);
        EXPECT_EQ(y[0], 7);
    });
}

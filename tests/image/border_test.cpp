// ippiFilterBorder_32f_C1R: what is outside the region lies in memory or follows from it.
#include "images.h"

using namespace images;
namespace {

using Kernel = oracle::Kernel<float>;

// A specification and a work buffer of the sizes that were told, at any address.
struct Filter {
    explicit Filter(const Kernel& k, IppiSize largest, int offset = 0)
        : kernel{k.width, k.height}, sizes(ask(kernel, largest))
    {
        block = std::make_unique<Block>(sizes.spec + offset);
        buffer = std::make_unique<Block>(sizes.buffer + offset);
        EXPECT_EQ(ippiFilterBorderInit_32f(k.values.data(), kernel, 13, 1, 0, spec()), ippStsNoErr);
    }
    struct Sizes {
        int spec = -1, buffer = -1;
    };
    static Sizes ask(IppiSize kernel, IppiSize roi)
    {
        Sizes s;
        EXPECT_EQ(ippiFilterBorderGetSize(kernel, roi, 13, 13, 1, &s.spec, &s.buffer), ippStsNoErr);
        return s;
    }
    IppiFilterBorderSpec* spec() const { return reinterpret_cast<IppiFilterBorderSpec*>(block->data()); }
    const IppiFilterBorderSpec* readOnly() const
    {
        return reinterpret_cast<const IppiFilterBorderSpec*>(block->readOnly());
    }

    IppiSize kernel;
    Sizes sizes;
    std::unique_ptr<Block> block, buffer;
};

// The pixels as the borders define them; those in memory lie in the image.
struct Bordered {
    const Image<float>& image;
    int width, height, type;
    float constant;

    float operator()(int x, int y) const
    {
        const bool left = x < 0 && type & 0x40, right = x >= width && type & 0x80;
        const bool above = y < 0 && type & 0x10, below = y >= height && type & 0x20;
        const int column = left || right ? x : oracle::substitute(x, width, type & 15);
        const int row = above || below ? y : oracle::substitute(y, height, type & 15);
        const bool outside = (column == -1 && !left) || (row == -1 && !above);
        return outside ? constant : image(column, row);
    }
};

void tryBorder(std::mt19937& g, int width, int height, int kernelWidth, int kernelHeight, int type)
{
    const auto kernel = someKernel<float>(g, kernelWidth, kernelHeight);
    const int ax = (kernelWidth - 1) / 2, ay = (kernelHeight - 1) / 2;
    const Margins inMemory{type & 0x10 ? kernelHeight - 1 - ay : 0, type & 0x20 ? ay : 0,
                           type & 0x40 ? kernelWidth - 1 - ax : 0, type & 0x80 ? ax : 0};
    Image<float> src(width, height, inMemory, 4 * below(g, 3), coin(g), coin(g));
    Image<float> dst(width, height, {}, 4 * below(g, 3), coin(g), coin(g));
    src.fill([&](int, int) { return number<float>(g); });
    const Bordered pixels{src, width, height, type, 0.375f};
    Filter filter(kernel, {width, height}, below(g, 9));
    for (const int hint : {0, 1, 2}) {
        ASSERT_EQ(ippiFilterBorderSetMode(hint, 0, filter.spec()), ippStsNoErr);
        inEveryVariant([&] {
            dst.fill([](int, int) { return -7.0f; });
            ASSERT_EQ(ippiFilterBorder_32f_C1R(src.data(), src.step(), dst.data(), dst.step(), {width, height}, type,
                                               (type & 15) == 6 ? &pixels.constant : nullptr, filter.readOnly(),
                                               filter.buffer->data()),
                      ippStsNoErr);
            ASSERT_TRUE(dst.gapsAreIntact());
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const float expected =
                        hint == 2 ? static_cast<float>(oracle::convolved<double>(kernel, ax, ay, x, y, pixels))
                                  : oracle::convolved<float>(kernel, ax, ay, x, y, pixels);
                    ASSERT_TRUE(support::sameBits(dst(x, y), expected))
                        << "at " << x << ", " << y << " of " << width << " x " << height << ", kernel " << kernelWidth
                        << " x " << kernelHeight << ", border " << type << ", hint " << hint;
                    long double magnitude;
                    const auto exact = oracle::convolved<long double>(kernel, ax, ay, x, y, pixels, &magnitude);
                    const long double steps = hint == 2 ? 0.5L + 0x1p-20L : kernelWidth * kernelHeight / 2.0L;
                    ASSERT_LE(std::fabs(dst(x, y) - exact), steps * 0x1p-23L * magnitude);
                }
        });
    }
}

constexpr int types[] = {1, 3, 6};

} // namespace

TEST(Border, IsTheConvolutionOfTheImageWithItsBorders)
{
    std::mt19937 g(71);
    for (const int type : types)
        for (int sides = 0; sides < 16; ++sides) {
            tryBorder(g, 1 + below(g, 40), 1 + below(g, 12), 1 + below(g, 7), 1 + below(g, 7), type + 16 * sides);
            tryBorder(g, 1 + below(g, 4), 1 + below(g, 4), 1 + below(g, 9), 1 + below(g, 9), type + 16 * sides);
        }
    tryBorder(g, 33, 7, 5, 4, 0xF0);
    for (const int width : {1, 2, 3, 4, 5, 8, 9, 15, 16, 17, 33, 79, 161}) tryBorder(g, width, 7, 3, 5, 3);
}

// Regions smaller than the kernel, of one pixel too: mirrors see each other.
TEST(Border, RegionsMayBeSmallerThanTheKernel)
{
    std::mt19937 g(72);
    for (const int type : types)
        for (const int n : {1, 2, 3, 5}) {
            tryBorder(g, n, 4, 24, 2, type);
            tryBorder(g, 4, n, 2, 25, type);
            tryBorder(g, n, n, 15, 16, type + 0x20);
        }
}

TEST(Border, SpecificationMayBeMovedAndServeEveryVariant)
{
    std::mt19937 g(73);
    const auto kernel = someKernel<float>(g, 5, 3);
    Image<float> src(50, 9, {}, 0, false, true), dst(50, 9, {}, 0, false, true);
    src.fill([&](int, int) { return number<float>(g); });
    const Bordered pixels{src, 50, 9, 3, 0};
    for (const auto& maker : support::supported()) {
        support::force(maker);
        const Filter filter(kernel, {50, 9});
        alignas(64) static Ipp8u room[4096];
        const size_t phase = reinterpret_cast<uintptr_t>(filter.block->data()) % 64;
        std::memcpy(room + 128 + phase, filter.block->data(), static_cast<size_t>(filter.sizes.spec));
        inEveryVariant([&] {
            ASSERT_EQ(ippiFilterBorder_32f_C1R(src.data(), src.step(), dst.data(), dst.step(), {50, 9}, 3, nullptr,
                                               reinterpret_cast<IppiFilterBorderSpec*>(room + 128 + phase),
                                               filter.buffer->data()),
                      ippStsNoErr);
            for (int y = 0; y < 9; ++y)
                for (int x = 0; x < 50; ++x)
                    ASSERT_EQ(dst(x, y), oracle::convolved<float>(kernel, 2, 1, x, y, pixels)) << maker.code;
        });
    }
}

TEST(Border, BufferServesEverySmallerRegion)
{
    std::mt19937 g(74);
    const auto kernel = someKernel<float>(g, 4, 6);
    const Filter filter(kernel, {64, 40});
    for (int attempt = 0; attempt < 60; ++attempt) {
        const int width = 1 + below(g, 64), height = 1 + below(g, 40);
        EXPECT_LE(Filter::ask({4, 6}, {width, height}).buffer, filter.sizes.buffer);
        Image<float> src(width, height, {}, 4, false, true), dst(width, height, {}, 4, false, true);
        src.fill([&](int, int) { return number<float>(g); });
        const Bordered pixels{src, width, height, 1, 0};
        inEveryVariant([&] {
            ASSERT_EQ(ippiFilterBorder_32f_C1R(src.data(), src.step(), dst.data(), dst.step(), {width, height}, 1,
                                               nullptr, filter.readOnly(), filter.buffer->data()),
                      ippStsNoErr);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    ASSERT_EQ(dst(x, y), oracle::convolved<float>(kernel, 1, 2, x, y, pixels));
        });
    }
}

TEST(Border, StatusesInTheirOrder)
{
    float x[9] = {}, y[9] = {7}, k[9] = {}, value = 0;
    const Filter filter({3, 3, std::vector<float>(9)}, {3, 3});
    auto* spec = filter.spec();
    Ipp8u* buffer = filter.buffer->data();
    const std::vector<Ipp8u> before(filter.block->data(), filter.block->data() + filter.block->size());
    alignas(64) static Ipp8u foreign[256];
    inEveryVariant([&] {
        int a = -7, b = -7;
        const auto sizes = [&](IppiSize kernel, IppiSize roi, int data, int type, int channels) {
            return ippiFilterBorderGetSize(kernel, roi, data, type, channels, &a, &b);
        };
        EXPECT_EQ(ippiFilterBorderGetSize({0, 0}, {0, 0}, 0, 0, 0, &a, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(sizes({0, 0}, {1, 0}, 0, 0, 0), ippStsSizeErr);
        EXPECT_EQ(sizes({0, 1}, {1, 1}, 0, 0, 0), ippStsMaskSizeErr);
        EXPECT_EQ(sizes({1, 1}, {1, 1}, 19, 13, 0), ippStsDataTypeErr);
        EXPECT_EQ(sizes({1, 1}, {1, 1}, 13, 7, 0), ippStsDataTypeErr);
        EXPECT_EQ(sizes({1, 1}, {1, 1}, 13, 13, 3), ippStsBadArgErr);
        EXPECT_EQ(sizes({0x7fffffff, 0x7fffffff}, {0x7fffffff, 0x7fffffff}, 13, 13, 1), ippStsSizeErr);
        EXPECT_EQ(sizes({1, 1}, {0x7fffffff, 1}, 13, 13, 1), ippStsSizeErr);
        EXPECT_EQ(sizes({1, 0x7fffffff}, {1, 1}, 13, 13, 1), ippStsSizeErr);
        EXPECT_EQ(sizes({100, 20000}, {20000, 1}, 13, 13, 1), ippStsSizeErr);
        EXPECT_EQ(a, -7);
        EXPECT_EQ(b, -7);

        EXPECT_EQ(ippiFilterBorderInit_32f(nullptr, {0, 0}, 0, 0, 9, spec), ippStsNullPtrErr);
        EXPECT_EQ(ippiFilterBorderInit_32f(k, {0, 0}, 0, 0, 9, spec), ippStsMaskSizeErr);
        EXPECT_EQ(ippiFilterBorderInit_32f(k, {1, 1}, 0, 0, 9, spec), ippStsDataTypeErr);
        EXPECT_EQ(ippiFilterBorderInit_32f(k, {1, 1}, 13, 0, 3, spec), ippStsRoundModeNotSupportedErr);
        EXPECT_EQ(ippiFilterBorderInit_32f(k, {1, 1}, 13, 3, 2, spec), ippStsBadArgErr);
        EXPECT_EQ(ippiFilterBorderInit_32f(k, {0x7fffffff, 0x7fffffff}, 13, 1, 2, spec), ippStsSizeErr);

        EXPECT_EQ(ippiFilterBorderSetMode(9, 0, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippiFilterBorderSetMode(3, 0, spec), ippStsBadArgErr);
        EXPECT_EQ(ippiFilterBorderSetMode(0, 1, spec), ippStsBadArgErr);
        EXPECT_EQ(ippiFilterBorderSetMode(0, 0, reinterpret_cast<IppiFilterBorderSpec*>(foreign)),
                  ippStsContextMatchErr);

        const auto call = [&](int srcStep, int dstStep, IppiSize roi, int type, const float* border, const void* s) {
            return ippiFilterBorder_32f_C1R(x, srcStep, y, dstStep, roi, type, border,
                                            static_cast<const IppiFilterBorderSpec*>(s), buffer);
        };
        EXPECT_EQ(call(0, 0, {0, 0}, 6, &value, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(call(0, 0, {0, 0}, 6, nullptr, foreign), ippStsNullPtrErr);
        EXPECT_EQ(call(0, 0, {0, 0}, 0xF6, nullptr, foreign), ippStsNullPtrErr);
        EXPECT_EQ(call(0, 0, {3, 0}, 0, nullptr, foreign), ippStsSizeErr);
        EXPECT_EQ(call(11, 12, {3, 3}, 0, nullptr, foreign), ippStsSizeErr);
        EXPECT_EQ(call(12, -11, {3, 3}, 0, nullptr, foreign), ippStsSizeErr);
        for (const int type : {0, 2, 4, 5, 7, 15, 0x10, 0xE0, 0xF2, 0x101, 0x1F0, -1})
            EXPECT_EQ(call(12, 12, {3, 3}, type, nullptr, foreign), ippStsNotSupportedModeErr) << type;
        EXPECT_EQ(call(12, 12, {3, 3}, 1, nullptr, foreign), ippStsContextMatchErr);
        EXPECT_EQ(call(0x7ffffff0, 0x7ffffff0, {0x1ffffff0, 1}, 1, nullptr, spec), ippStsSizeErr);
        EXPECT_EQ(y[0], 7);
        EXPECT_EQ(std::memcmp(filter.block->data(), before.data(), before.size()), 0);
    });
}

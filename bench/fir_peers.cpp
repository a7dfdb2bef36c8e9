#include "fir_peers.h"
#include "case.h"
#include <algorithm>
#include <cstring>
#include <memory>
#ifdef SIG5D_FFTW
#include <fftw3.h>
#endif

namespace bench {

std::vector<double> firTaps(int n)
{
    std::vector<double> h(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) h[static_cast<size_t>(i)] = (i * 37 % 101 - 50) / 64.0 / n;
    return h;
}

namespace {

int floorDivide(int a, int b) { return (a - (a % b + b) % b) / b; }

using V = double __attribute__((vector_size(32), aligned(8)));

// y[i] = sum over the taps of value * x[i], in blocks of 32 outputs.
template <class Term>
[[gnu::target("avx2"), gnu::always_inline]] inline void filterBlocks(Term term, int taps, double* y, int n)
{
    for (int i = 0; i < n; i += 32) {
        V sum[8] = {};
        for (int k = 0; k < taps; ++k) {
            const auto [value, x] = term(k);
            const V h = {value, value, value, value};
#pragma GCC unroll 8
            for (int j = 0; j < 8; ++j) sum[j] += h * *reinterpret_cast<const V*>(x + i + 4 * j);
        }
#pragma GCC unroll 8
        for (int j = 0; j < 8; ++j) *reinterpret_cast<V*>(y + i + 4 * j) = sum[j];
    }
}

} // namespace

Polyphase::Polyphase(int up, int down, int taps, int iterations)
    : up_(up), down_(down), iterations_(iterations), before_((taps + up - 1) / up / down + 2),
      phases_(static_cast<size_t>(up)),
      streams_(static_cast<size_t>(down), std::vector<double>(static_cast<size_t>(iterations + before_ + 64))),
      outputs_(static_cast<size_t>(iterations + 64))
{
    const std::vector<double> h = firTaps(taps);
    for (int p = 0; p < up; ++p)
        for (int k = 0; k < taps; ++k) {
            const int place = p * down - k; // in the input, up-sampled
            if (floorDivide(place, up) * up != place) continue;
            const int input = floorDivide(place, up), turn = floorDivide(input, down);
            phases_[static_cast<size_t>(p)].push_back({input - turn * down, turn + before_, h[static_cast<size_t>(k)]});
        }
}

[[gnu::target("avx2")]] void Polyphase::run(const double* x, double* y)
{
    for (int s = 0; s < down_; ++s) {
        double* d = streams_[static_cast<size_t>(s)].data() + before_;
        for (int i = 0; i < iterations_; ++i) d[i] = x[i * down_ + s];
    }
    for (int p = 0; p < up_; ++p) {
        const std::vector<Tap>& taps = phases_[static_cast<size_t>(p)];
        struct Product {
            double value;
            const double* x;
        };
        filterBlocks(
            [&](int k) __attribute__((always_inline, target("avx2"))) {
                const Tap& t = taps[static_cast<size_t>(k)];
                return Product{t.value, streams_[static_cast<size_t>(t.stream)].data() + t.offset};
            },
            static_cast<int>(taps.size()), outputs_.data(), iterations_);
        for (int i = 0; i < iterations_; ++i) y[i * up_ + p] = outputs_[static_cast<size_t>(i)];
    }
}

#ifdef SIG5D_FFTW
namespace {

// Overlap-save with blocks of `size` values: transform, product, inverse transform, by FFTW's measured plans.
class OverlapSave
{
public:
    OverlapSave(int taps, int n, int size) : taps_(taps), n_(n), size_(size), x_(static_cast<size_t>(n + taps + size))
    {
        block_ = fftw_alloc_real(static_cast<size_t>(size));
        spectrum_ = fftw_alloc_real(static_cast<size_t>(size + 2));
        h_ = fftw_alloc_real(static_cast<size_t>(size + 2));
        forward_ = fftw_plan_dft_r2c_1d(size, block_, reinterpret_cast<fftw_complex*>(spectrum_), FFTW_MEASURE);
        inverse_ = fftw_plan_dft_c2r_1d(size, reinterpret_cast<fftw_complex*>(spectrum_), block_, FFTW_MEASURE);
        const std::vector<double> taps_values = firTaps(taps);
        std::fill(block_, block_ + size, 0.0);
        for (int i = 0; i < taps; ++i) block_[i] = taps_values[static_cast<size_t>(i)] / size;
        fftw_execute(forward_);
        std::memcpy(h_, spectrum_, static_cast<size_t>(size + 2) * sizeof(double));
    }
    ~OverlapSave()
    {
        fftw_destroy_plan(forward_);
        fftw_destroy_plan(inverse_);
        for (double* p : {block_, spectrum_, h_}) fftw_free(p);
    }
    OverlapSave(const OverlapSave&) = delete;
    OverlapSave& operator=(const OverlapSave&) = delete;

    void run(const double* x, double* y)
    {
        std::memcpy(x_.data() + taps_ - 1, x, static_cast<size_t>(n_) * sizeof(double));
        const int advance = size_ - taps_ + 1;
        for (int i = 0; i < n_; i += advance) {
            std::memcpy(block_, x_.data() + i, static_cast<size_t>(size_) * sizeof(double));
            fftw_execute(forward_);
            multiply();
            fftw_execute(inverse_);
            std::memcpy(y + i, block_ + taps_ - 1, static_cast<size_t>(std::min(advance, n_ - i)) * sizeof(double));
        }
    }

private:
    [[gnu::target("avx2"), gnu::optimize("O3")]] void multiply()
    {
#pragma GCC ivdep
        for (int k = 0; k <= size_; k += 2) {
            const double re = spectrum_[k] * h_[k] - spectrum_[k + 1] * h_[k + 1];
            spectrum_[k + 1] = spectrum_[k] * h_[k + 1] + spectrum_[k + 1] * h_[k];
            spectrum_[k] = re;
        }
    }

    int taps_, n_, size_;
    std::vector<double> x_;
    double *block_, *spectrum_, *h_;
    fftw_plan forward_, inverse_;
};

const Cases fftw([] {
    for (int times : {2, 4, 8}) {
        addPeer("ippsFIRSR_64f 1024 taps by FFT", "FFTW " + std::to_string(times) + "T", [=](const Setup& s) -> Batch {
            const auto* x = reinterpret_cast<const double*>(s.memory().arrays()[0].data);
            auto* y = reinterpret_cast<double*>(s.memory().arrays()[1].data);
            auto filter = std::make_shared<OverlapSave>(1024, static_cast<int>(s.size), 1024 * times);
            return repeated([=] { filter->run(x, y); });
        });
    }
});

} // namespace
#endif

} // namespace bench

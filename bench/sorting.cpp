// Sorting, which changes its input: values at random, sorted, the other way round, few different ones.
#include "case.h"
#include <algorithm>
#include <cstring>
#include <memory>
#include <numeric>
#include <random>
#ifdef SIG5D_HIGHWAY
#include <hwy/contrib/sort/vqsort.h>
#include <hwy/targets.h>
#endif

namespace {

using bench::Setup;

const std::vector<bench::Size> sizes = {{16, bench::Level::tiny}, 1000, 10000, 100000, 1000000};

template <class T> T anyValue(std::mt19937_64& random)
{
    if constexpr (sizeof(T) == sizeof(double)) {
        static std::normal_distribution<> normal;
        return normal(random);
    } else {
        return static_cast<T>(random());
    }
}

// Arrays in turn, so that no branch is learnt by heart.
template <class T> class Inputs
{
public:
    Inputs(const std::string& kind, size_t n)
    {
        std::mt19937_64 random(n);
        inputs_.resize(kind == "random" ? std::max<size_t>(1, std::min<size_t>(256, 1000000 / n)) : 1);
        for (auto& x : inputs_) {
            x.resize(n);
            for (size_t i = 0; i < n; ++i) x[i] = kind == "few" ? static_cast<T>(random() % 10) : anyValue<T>(random);
            if (kind == "sorted" || kind == "reversed") std::sort(x.begin(), x.end());
            if (kind == "reversed") std::reverse(x.begin(), x.end());
        }
    }
    void next(T* to)
    {
        const auto& x = inputs_[turn_++ % inputs_.size()];
        std::memcpy(to, x.data(), x.size() * sizeof(T));
    }

private:
    std::vector<std::vector<T>> inputs_;
    size_t turn_ = 0;
};

#ifdef SIG5D_HIGHWAY
// Highway's, with AVX2 and with the best that the processor has.
void disable(int64_t targets)
{
    static int64_t disabled = -1;
    if (disabled != targets) hwy::DisableTargets(disabled = targets);
}
template <class T> void addVqsort(Setup& s, T* x, size_t n)
{
    if constexpr (sizeof(T) > 1) {
        const auto without = [=](int64_t targets) {
            return [=] {
                static const hwy::Sorter sort; // which allocates memory
                disable(targets);
                sort(x, n, hwy::SortAscending());
            };
        };
        s.peer("vqsort, AVX2", without(HWY_AVX3 | HWY_AVX3_DL));
        s.peer("vqsort", without(0));
    }
}
#else
template <class T> void addVqsort(Setup&, T*, size_t) {}
#endif

template <class T>
void addSort(const std::string& name, const std::string& kind, IppStatus(SIG5D_STDCALL* sort)(T*, int))
{
    bench::addCase(name + " " + kind, sizes, [=](Setup& s) {
        const size_t n = s.size;
        T* const x = s.output<T>(n);
        const auto inputs = std::make_shared<Inputs<T>>(kind, n);
        s.elements = n;
        s.restore([=] { inputs->next(x); });
        s.run([=] { sort(x, static_cast<int>(n)); });
        s.peer("std::sort", [=] { std::sort(x, x + n); });
        addVqsort(s, x, n);
    });
}
template <class T>
void addIndexed(const std::string& name, const std::string& kind, IppStatus(SIG5D_STDCALL* sort)(T*, Ipp32s*, int))
{
    bench::addCase(name + " " + kind, sizes, [=](Setup& s) {
        const size_t n = s.size;
        T* const x = s.output<T>(n);
        Ipp32s* const places = s.output<Ipp32s>(n);
        const auto inputs = std::make_shared<Inputs<T>>(kind, n);
        s.elements = n;
        s.restore([=] { inputs->next(x); });
        s.run([=] { sort(x, places, static_cast<int>(n)); });
        const auto records = std::make_shared<std::vector<std::pair<T, Ipp32s>>>(n);
        s.peer("std::sort of pairs", [=] {
            for (size_t i = 0; i < n; ++i) (*records)[i] = {x[i], static_cast<Ipp32s>(i)};
            std::sort(records->begin(), records->end());
            for (size_t i = 0; i < n; ++i) x[i] = (*records)[i].first, places[i] = (*records)[i].second;
        });
    });
}

const bool added = [] {
    for (const char* kind : {"random", "sorted", "reversed", "few"}) {
        addSort("ippsSortAscend_64f_I", kind, ippsSortAscend_64f_I);
        addSort("ippsSortAscend_32s_I", kind, ippsSortAscend_32s_I);
        addSort("ippsSortAscend_16s_I", kind, ippsSortAscend_16s_I);
        addSort("ippsSortAscend_8u_I", kind, ippsSortAscend_8u_I);
    }
    for (const char* kind : {"random", "few"}) {
        addIndexed("ippsSortIndexAscend_64f_I", kind, ippsSortIndexAscend_64f_I);
        addIndexed("ippsSortIndexAscend_32s_I", kind, ippsSortIndexAscend_32s_I);
        addIndexed("ippsSortIndexAscend_16s_I", kind, ippsSortIndexAscend_16s_I);
        addIndexed("ippsSortIndexAscend_8u_I", kind, ippsSortIndexAscend_8u_I);
    }
    return true;
}();

} // namespace

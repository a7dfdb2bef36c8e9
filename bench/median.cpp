// Median filters of all lengths, against two heaps, as they are commonly written.
#include "case.h"
#include <memory>
#include <utility>

namespace {

using bench::Setup;

template <class T> using Median = IppStatus(SIG5D_STDCALL*)(const T*, T*, int, int, const T*, T*, Ipp8u*);

// A heap of the samples below the median and one of those above it, which know their samples' places.
template <class T> class TwoHeaps
{
public:
    explicit TwoHeaps(int mask) : values_(static_cast<size_t>(mask)), slots_(values_.size()), places_(values_.size())
    {
        for (int i = 0; i < mask; ++i) put(i - mask / 2, i);
    }
    void run(const T* x, T* y, int n)
    {
        for (int i = 0; i < n; ++i) {
            const int at = next_;
            next_ = at + 1 == size() ? 0 : at + 1;
            values_[static_cast<size_t>(at)] = x[i];
            settle(places_[static_cast<size_t>(at)]);
            y[i] = values_[static_cast<size_t>(slot(0))];
        }
    }

private:
    // Places: 0 the median, k > 0 in the heap above it, k < 0 in that below.
    int size() const { return static_cast<int>(values_.size()); }
    int& slot(int place) { return slots_[static_cast<size_t>(place + size() / 2)]; }
    T value(int place) { return values_[static_cast<size_t>(slot(place))]; }
    void put(int place, int sample)
    {
        slot(place) = sample;
        places_[static_cast<size_t>(sample)] = place;
    }
    bool exchange(int low, int high) // if they are out of order
    {
        if (!(value(high) < value(low))) return false;
        const int a = slot(low), b = slot(high);
        put(low, b);
        put(high, a);
        return true;
    }
    void settle(int place)
    {
        int up = place; // towards the median and across it
        while (up > 0 && exchange(up / 2, up)) up /= 2;
        while (up < 0 && exchange(up, up / 2)) up /= 2;
        if (up == 0) {
            if (size() > 1 && exchange(-1, 0)) down(-1, -1);
            if (size() > 1 && exchange(0, 1)) down(1, 1);
        } else if (up == place) {
            down(place, place > 0 ? 1 : -1);
        }
    }
    void down(int place, int side)
    {
        for (;;) {
            int child = 2 * place;
            if (child * side > size() / 2) return;
            const int other = child + side;
            if (other * side <= size() / 2 && (side > 0 ? value(other) < value(child) : value(child) < value(other)))
                child = other;
            if (!(side > 0 ? exchange(place, child) : exchange(child, place))) return;
            place = child;
        }
    }

    std::vector<T> values_;
    std::vector<int> slots_, places_;
    int next_ = 0;
};

template <class T> void add(const std::string& name, Median<T> filter, int mask, std::vector<bench::Size> sizes)
{
    bench::addCase(name + " mask " + std::to_string(mask), std::move(sizes), [=](Setup& s) {
        const int n = static_cast<int>(s.size);
        T* x = s.input<T>(static_cast<size_t>(n));
        T* y = s.output<T>(static_cast<size_t>(n));
        uint32_t noise = 1;
        for (int i = 0; i < n; ++i)
            x[i] = static_cast<T>(static_cast<int32_t>(noise = 1664525 * noise + 1013904223) >> 8);
        auto* buffer = s.scratch(16 * static_cast<size_t>(mask));
        s.elements = n;
        if (sizeof(T) == sizeof(double) && mask <= 5) s.flops = (mask == 3 ? 4.0 : 10.0) * n; // minima and maxima
        s.run([=] { filter(x, y, n, mask, nullptr, nullptr, buffer); });
        const auto heaps = std::make_shared<TwoHeaps<T>>(mask);
        s.peer("two heaps", [=] { heaps->run(x, y, n); });
    });
}

const bench::Cases median([] {
    for (const int mask : {3, 5, 7, 15, 31, 63, 127, 255, 1023, 4095}) {
        add("ippsFilterMedian_64f", ippsFilterMedian_64f, mask, {1024, 4096});
        add("ippsFilterMedian_32s", ippsFilterMedian_32s, mask, {4096});
        add("ippsFilterMedian_16s", ippsFilterMedian_16s, mask, {4096});
        add("ippsFilterMedian_8u", ippsFilterMedian_8u, mask, {4096});
    }
    add("ippsFilterMedian_64f", ippsFilterMedian_64f, 16383, {65536});
    add("ippsFilterMedian_64f", ippsFilterMedian_64f, 65535, {262144});
});

} // namespace

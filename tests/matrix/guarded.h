// Arrays that end at an inaccessible page, and tests that run in every variant.
#pragma once
#include "support/arena.h"
#include "support/library.h"
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace matrix_tests {

// Guarded memory is mapped once and lent out.
class Loan
{
public:
    explicit Loan(size_t bytes)
    {
        auto& all = shelf();
        for (auto& r : all)
            if (r->size() >= bytes) {
                region_ = std::move(r);
                r = std::move(all.back());
                all.pop_back();
                return;
            }
        region_ = std::make_unique<support::GuardedRegion>(bytes);
    }
    Loan(const Loan&) = delete;
    ~Loan() { shelf().push_back(std::move(region_)); }
    uint8_t* begin() const { return region_->readWrite(); }
    uint8_t* end() const { return region_->readWrite() + region_->size(); }

private:
    static std::vector<std::unique_ptr<support::GuardedRegion>>& shelf()
    {
        static std::vector<std::unique_ptr<support::GuardedRegion>> all;
        return all;
    }
    std::unique_ptr<support::GuardedRegion> region_;
};

// A copy of the elements that ends "gap" bytes before an inaccessible page.
template <class T> class Guarded
{
public:
    explicit Guarded(const std::vector<T>& x, size_t gap = 0)
        : memory_(x.size() * sizeof(T) + gap + 1), size_(x.size()), data_(memory_.end() - gap - size_ * sizeof(T))
    {
        if (size_) std::memcpy(data_, x.data(), size_ * sizeof(T));
    }
    T* data() const { return reinterpret_cast<T*>(data_); } // at any address
    T* firstAccessible() const { return reinterpret_cast<T*>(memory_.begin()); }
    std::vector<T> now() const
    {
        std::vector<T> x(size_);
        if (size_) std::memcpy(x.data(), data_, size_ * sizeof(T));
        return x;
    }

private:
    Loan memory_;
    size_t size_;
    uint8_t* data_;
};

template <class Test> void inEveryVariant(Test test)
{
    for (const support::Variant& v : support::supported()) {
        support::force(v);
        SCOPED_TRACE(std::string("variant ") + v.code);
        test();
        if (::testing::Test::HasFailure()) return;
    }
}

} // namespace matrix_tests

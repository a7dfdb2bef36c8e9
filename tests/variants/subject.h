// A function under test in all its bodies: the same arguments again and again, and what each call left behind.
#pragma once
#include "support/stage.h"
#include <string>
#include <vector>

namespace variants {

using Outputs = std::vector<std::vector<uint8_t>>;

struct Result {
    registry::Answer answer;
    Outputs outputs;
};

class Subject
{
public:
    explicit Subject(const registry::Function& f);
    // Those whose arguments can be built and whose results can be compared.
    static bool suits(const registry::Function& f);

    const std::vector<support::Variant>& bodies() const { return bodies_; } // px first
    const registry::Function& function() const { return f_; }
    bool onIntegers() const { return onIntegers_; } // no floating-point number goes in or comes out

    // The body has to be selected before.
    Result call(registry::Arguments& a, support::Place place, const registry::InPlace* shared = nullptr);
    // How the results of two calls differ, or what the second one did that it must not; empty: nothing.
    std::string difference(const registry::Arguments& a, const Result& expected, const Result& found) const;

    long long calls() const { return calls_; }

private:
    const registry::Function& f_;
    registry::Entry entry_;
    std::vector<support::Variant> bodies_;
    bool onIntegers_;
    long long calls_ = 0;
};

// Puts numbers of the caller's choice in place of the floating-point ones that a call reads, single ones and whole
// arrays. Not where values keep to rules.
class Numbers
{
public:
    virtual ~Numbers() = default;
    virtual double next() = 0;
    void replaceIn(registry::Arguments& a);
};

} // namespace variants

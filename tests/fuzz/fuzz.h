// Inputs that nobody thought of. A target turns bytes into calls and says what is wrong with them; the bytes come from
// a fuzzing engine, or from the driver in main.cpp.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace fuzz {

// The bytes, from the front; zeros when none are left.
class Input
{
public:
    Input(const uint8_t* data, size_t size) : data_(data), left_(size) {}

    template <class T> T any()
    {
        T x = {};
        const size_t n = left_ < sizeof x ? left_ : sizeof x;
        if (n) std::memcpy(&x, data_, n);
        data_ += n;
        left_ -= n;
        return x;
    }
    // 0 to n - 1. Takes as few bytes as n needs, so that an engine that changes a byte changes a choice.
    size_t below(size_t n)
    {
        if (n <= 1) return 0;
        return n <= 256 ? any<uint8_t>() % n : n <= 65536 ? any<uint16_t>() % n : any<uint32_t>() % n;
    }
    bool oneIn(size_t n) { return below(n) == 0; }
    bool empty() const { return left_ == 0; }

private:
    const uint8_t* data_;
    size_t left_;
};

// Ends the program: the engine keeps the input.
[[noreturn]] void fail(const std::string& what);
inline void expect(bool holds, const std::string& what)
{
    if (!holds) fail(what);
}

void sizes(Input& in);
void features(Input& in);
void statusText(Input& in);

// Calls of the functions of one topic of the reference; false: there is no such topic.
bool calls(const std::string& topic, Input& in);
std::vector<std::string> callTopics();

} // namespace fuzz

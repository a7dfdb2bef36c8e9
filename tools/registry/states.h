// Calls that arguments need before a function can be called: those that give sizes, and those that make states.
#pragma once
#include "arguments.h"
#include "invoke.h"
#include <functional>
#include <memory>

namespace registry {

// The plain form, or the _Idx form (with indexes 0) where there is no other. These calls prepare others, which alone
// are in the surroundings that a test has chosen.
Answer call(const Function& f, const Value* values);

// Asks for sizes and stores them among the values; false: the function that gives them refuses.
bool ask(const Query& query, std::vector<Value>& values);

// All sizes again, when scalars have changed: 0 where they are refused now.
void askAgain(const Function& f, std::vector<Value>& values);

// A state, made by a call of its maker, until it is released. What is not kept is overwritten after the call: a state
// must hold copies.
class Made
{
public:
    using Room = std::function<uint8_t*(size_t bytes, bool kept)>; // memory for the maker's arguments
    Made(const Arguments& maker, const Room& room);
    ~Made();
    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;

    void* pointer() const { return pointer_; } // null: the maker refused
    long long status() const { return status_; }
    uint8_t* home() const { return home_; } // the caller's memory that it lives in; null: elsewhere
    size_t homeBytes() const { return homeBytes_; }
    void forget() { pointer_ = nullptr; } // released by a call

private:
    const Function& maker_;
    std::vector<std::unique_ptr<Made>> parts_; // states that the maker took
    void* pointer_ = nullptr;
    long long status_ = 0;
    uint8_t* home_ = nullptr;
    size_t homeBytes_ = 0;
};

// What a call with these values made and nobody else will release.
void releaseMade(const Function& f, const Value* values, const Answer& answer);

} // namespace registry

#include "states.h"
#include "variants.h"
#include <cstring>
#include <utility>

namespace registry {
namespace {

unsigned overwritten = 0; // each time with something else, so that results that depend on it differ

// What the call made: the block itself, or the address that it stored or returned.
void* product(const Function& f, const Value* values, const Answer& answer)
{
    if (f.result == Result::status && answer.status < 0) return nullptr;
    if (f.makes.what == f.argCount) return reinterpret_cast<void*>(static_cast<uintptr_t>(answer.status));
    void* made = values[f.makes.what].p;
    if (f.args[f.makes.what].kind == Kind::handle && made) std::memcpy(&made, made, sizeof made);
    return made;
}

void release(const Function& maker, void* made)
{
    if (!made || maker.makes.release < 0) return;
    Value v;
    v.p = made;
    call(begin()[maker.makes.release], &v);
}

} // namespace

Answer call(const Function& f, const Value* values)
{
    const Surroundings chosen = std::exchange(surroundings, {});
    const Entry entry = entryOf(f);
    const std::vector<int> zeros(static_cast<size_t>(f.argCount));
    const Answer answer =
        f.index == IndexForm::only ? invokeIndexed(entry, f, values, zeros.data()) : invoke(entry, f, values);
    surroundings = chosen;
    return answer;
}

bool ask(const Query& query, std::vector<Value>& values)
{
    const Function& f = begin()[query.function];
    std::vector<Value> given(static_cast<size_t>(f.argCount));
    std::vector<int> sizes(given.size());
    for (int i = 0; i < query.argCount; ++i)
        if (query.args[i].value)
            given[static_cast<size_t>(i)].i = query.args[i].value(values.data());
        else
            given[static_cast<size_t>(i)].p = &sizes[static_cast<size_t>(i)];
    if (call(f, given.data()).status < 0) return false;
    for (int i = 0; i < query.argCount; ++i)
        if (!query.args[i].value) values[static_cast<size_t>(query.args[i].named)].i = sizes[static_cast<size_t>(i)];
    return true;
}

void askAgain(const Function& f, std::vector<Value>& values)
{
    for (int i = 0; i < f.namedCount; ++i) {
        const Query* const query = f.named[i].query;
        if (!query || ask(*query, values)) continue;
        for (int k = 0; k < query->argCount; ++k)
            if (!query->args[k].value) values[static_cast<size_t>(query->args[k].named)].i = 0;
    }
}

Made::Made(const Arguments& maker, const Room& room) : maker_(maker.f)
{
    std::vector<Value> values = maker.values;
    std::vector<uint8_t*> memory(values.size());
    for (int i = 0; i < maker_.argCount; ++i) {
        const Arg& arg = maker_.args[i];
        if (arg.kind == Kind::scalar || arg.kind == Kind::index) continue;
        values[i].p = nullptr;
        if (arg.makers) {
            parts_.push_back(std::make_unique<Made>(*maker.made[i], room));
            values[i].p = parts_.back()->pointer();
        } else if (!maker.null[i]) {
            memory[i] = room(maker.bytes(i), i == maker_.makes.home);
            values[i].p = memory[i] + maker.lead(i);
            if (!maker.content[i].empty()) std::memcpy(memory[i], maker.content[i].data(), maker.content[i].size());
        }
    }
    const Answer answer = call(maker_, values.data());
    status_ = answer.status;
    pointer_ = product(maker_, values.data(), answer);
    if (maker_.makes.home >= 0) {
        home_ = memory[maker_.makes.home];
        homeBytes_ = maker.bytes(maker_.makes.home);
    }
    for (int i = 0; i < maker_.argCount; ++i)
        if (memory[i] && memory[i] != home_) std::memset(memory[i], ++overwritten & 0xFF, maker.bytes(i));
}

Made::~Made() { release(maker_, pointer_); }

void releaseMade(const Function& f, const Value* values, const Answer& answer)
{
    if (f.makes.release >= 0) release(f, product(f, values, answer));
}

} // namespace registry

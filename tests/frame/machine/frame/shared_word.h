// In place of the header of this name: each access is a place where the call of another thread may come in between, and
// all words can be set back to what they were when the process began.
#pragma once
#include "frame/types.h"
#include <vector>

namespace machine {
void comeInBetween(); // before a word is loaded or stored and before an identification instruction
}

namespace sig5d {

class SharedWord
{
public:
    SharedWord(u64 first) : first_(first), word_(first) { all().push_back(this); }
    u64 load() const
    {
        machine::comeInBetween();
        return word_;
    }
    void store(u64 word)
    {
        machine::comeInBetween();
        word_ = word;
    }
    bool replace(u64& expected, u64 word)
    {
        machine::comeInBetween();
        if (word_ != expected) {
            expected = word_;
            return false;
        }
        word_ = word;
        return true;
    }

    u64 now() const { return word_; }
    void reset() { word_ = first_; }
    static std::vector<SharedWord*>& all()
    {
        static std::vector<SharedWord*> words;
        return words;
    }

private:
    const u64 first_;
    u64 word_;
};

} // namespace sig5d

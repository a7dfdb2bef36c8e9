// Any number has a text: a printable one, and the same whenever it is asked for.
#include "fuzz.h"
#include "sig5d.h"

void fuzz::statusText(Input& in)
{
    while (!in.empty()) {
        const int code = in.oneIn(2) ? in.any<int>() : in.any<short>(); // most codes are small
        const char* const text = ippGetStatusString(code);
        const std::string said = "the text of " + std::to_string(code);
        expect(text, said + " is null");
        const size_t length = strnlen(text, 200);
        expect(length > 0 && length < 200, said + " has no end");
        for (size_t i = 0; i < length; ++i) expect(text[i] >= ' ' && text[i] <= '~', said + " is not printable");
        expect(ippGetStatusString(code) == text, said + " differs from call to call");
    }
}

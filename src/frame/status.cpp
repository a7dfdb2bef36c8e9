// ippGetStatusString: the message table and its lookup.
#include "frame/types.h"

namespace sig5d {
namespace {

struct Message {
    Status code;
    const char* text;
};
const Message messages[] = {
#include "status_table.inc" // generated from api/status.api
};

const char* lookUp(Status code)
{
    for (const Message& m : messages)
        if (m.code == code) return m.text;
    return nullptr;
}

const char* statusText(Status code)
{
    const char* text = lookUp(code);
    return text ? text : lookUp(StsUnknownStatusCodeErr);
}

} // namespace

#include "entries/frame/status.inc"
} // namespace sig5d

// Every function of the interface as data: what the tests, the benchmark and language bindings read.
// The table is generated from api/*.api.
#pragma once
#include <cstddef>
#include <cstdint>

namespace registry {

using Entry = void (*)(); // any function of the interface

// One argument's value. Which member counts follows from the argument's kind and type.
struct Value {
    long long i = 0; // int, unsigned, integer elements, the real part of an integer complex
    long long i2 = 0; // the imaginary part of an integer complex
    double re = 0, im = 0; // float elements and complex ones
    void* p = nullptr; // every pointer
};

enum class Kind { array, work, result, opaque, pointer, scalar, index };

enum class Element { none, u8, i8, u16, i16, c16s, f16, u24, i24, u32, i32, c32s, f32, c32f, u64, i64, c64s, f64, c64f, bits };

struct Arg {
    const char* name;
    Kind kind;
    Element element; // none: a plain int, or nothing that has elements
    int elementBytes; // of an array's element
    int indexBytes; // what one step of the _Idx index moves
    bool isConst; // the function only reads it
    bool inout; // read before it is written, or written in part
    bool optional; // null is allowed
    bool isUnsigned; // a count of the own half
    bool inExtent; // a scalar that decides how long arrays are
    long long (*extent)(const Value*); // elements of an array, bytes of a work buffer
    int stackBytes; // on the 32-bit argument stack
    double (*const* domain)(const Value*); // values worth trying, over the arguments before it; may be null
    int domainSize;
};

struct Check {
    int status;
    const char* text;
    bool afterWriting; // the outputs may be written by then
    bool (*fails)(const Value*);
};

struct InPlace {
    int destination, source; // argument numbers that may be one array
};

enum class Result { status, none, i32, u32, u64, f64, pointer };
enum class Half { ipp, own };
enum class IndexForm { automatic, none, only, same, written };

struct Function {
    const char* name; // of the plain form; the _Idx form appends "_Idx"
    const char* family;
    const char* topic;
    Half half;
    bool standardCall; // convention of the plain form on 32-bit Windows
    Result result;
    IndexForm index;
    bool dispatched; // through a variant table
    bool movesBits; // values are moved, never computed: NaN payloads survive
    const Arg* args;
    int argCount;
    const Check* checks;
    int checkCount;
    const int* failures; // statuses that the arguments do not tell, after all checks
    int failureCount;
    const int* warnings;
    int warningCount;
    const InPlace* inPlace;
    int inPlaceCount;
    const char* fixture; // who builds valid arguments; empty: they follow from the extents
    const char* bodies; // variant bodies: "px w7 h9"

    bool hasPlain() const { return index != IndexForm::only && index != IndexForm::written; }
    bool hasIndex() const { return index != IndexForm::none; }
};

const Function* begin();
const Function* end();

struct Functions {
    const Function* begin() const { return registry::begin(); }
    const Function* end() const { return registry::end(); }
};
inline Functions functions() { return {}; }

const Function* find(const char* name); // null: no such function

} // namespace registry

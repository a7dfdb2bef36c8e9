// Every function of the interface as data: what the tests, the benchmark and language bindings read.
// The table is generated from api/*.api.
#pragma once
#include <cstddef>
#include <cstdint>

namespace registry {

using Entry = void (*)(); // any function of the interface

// One argument's value. Which member counts follows from the argument's kind and type.
struct Value {
    long long i = 0;  // int, unsigned, integer elements, the real part of an integer complex; what a name stands for
    long long i2 = 0; // the imaginary part of an integer complex
    double re = 0, im = 0; // float elements and complex ones
    void* p = nullptr;     // every pointer
};

// opaque: a record that only the library looks into. handle: where a call stores the address of such a record.
enum class Kind { array, work, result, opaque, handle, pointer, scalar, index };

enum class Element {
    none,
    u8,
    i8,
    u16,
    i16,
    c16s,
    f16,
    u24,
    i24,
    u32,
    i32,
    c32s,
    f32,
    c32f,
    u64,
    i64,
    c64s,
    f64,
    c64f,
    bits
};

using Integer = long long (*)(const Value*);
using Number = double (*)(const Value*);

// A value worth trying, or all integers between two.
struct Choice {
    Number low, high; // over other arguments; high may be null
};

// An array whose rows have gaps between them, as they lie in memory, all in bytes; "lead" of them are in front of the
// pointer.
struct Rows {
    Integer count, width, step, lead;
};

// A function that makes the state that an argument takes.
struct Fixed {
    int argument; // of the maker
    long long value;
};
struct Maker {
    int function; // its place in the table
    const Fixed* fixed;
    int fixedCount;
};

struct Arg {
    const char* name;
    Kind kind;
    Element element;      // none: a plain int, or nothing that has elements
    int elementBytes;     // of an array's element
    int indexBytes;       // what one step of the _Idx index moves
    bool isConst;         // the function only reads it
    bool inout;           // read before it is written, or written in part
    bool optional;        // null is allowed
    bool isUnsigned;      // a count of the own half
    bool inExtent;        // a scalar that decides how long arrays are
    bool late;            // its extent depends on what other arrays contain
    Integer extent;       // elements of an array, bytes of a work buffer or record
    Integer room;         // elements that suffice, where the extent is what the call says; may be null
    const Rows* rows;     // may be null
    int stackBytes;       // on the 32-bit argument stack
    const Choice* domain; // may be null
    int domainSize;
    bool followsLater;   // the domain is over arguments behind this one
    bool joins;          // a member of a record by value, with the member before it
    const Maker* makers; // of a state: any of these; null: no state
    int makerCount;
};

struct Check {
    int status;
    const char* text;
    bool afterWriting; // the outputs may be written by then
    bool (*fails)(const Value*);
};

// A value that is no argument but that extents, domains and rules name. It stands behind the arguments' values.
enum class Source { chosen, computed, size, ofState, counted };
struct QueryArg {
    Integer value; // null: the call stores a size here
    int named;     // for which value
};
struct Query {
    int function; // its place in the table
    const QueryArg* args;
    int argCount;
};
struct Named {
    const char* name; // ofState: after the state's own name and a dot, that of the maker's argument or value
    Source source;
    const Choice* domain; // chosen
    int domainSize;
    Integer value;      // computed
    const Query* query; // size; null: the call of an earlier name stores it too
    int argument;       // the state that it is of, the array whose positive values it counts
};

// What the values of an argument keep to.
enum class Rule { other, below, apart, within, often_within, selects, like };
struct ValueRule {
    int argument;
    Rule rule;
    Number first, second; // limits
    int other;            // another argument or named value
    Integer place, step;  // the first element that it is about, how many further to the next; null: all; no next
};

// What a call makes for others; all -1: nothing.
struct Makes {
    int what;    // the argument that is filled or gets the address; argCount: the result
    int home;    // the argument whose memory holds it; -1: memory that the call allocated
    int release; // the function that gives it back; its place in the table
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
    bool movesBits;  // values are moved, never computed: NaN payloads survive
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
    const Named* named;
    int namedCount;
    const ValueRule* rules;
    int ruleCount;
    Makes makes;
    const char* untested; // why general tests do not call it; empty: they do
    const char* bodies;   // variant bodies: "px w7 h9"

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

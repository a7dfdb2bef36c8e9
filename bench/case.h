// A case: what is measured, at which sizes, and against what. The regular functions get theirs from the registry;
// others are added like this, in a file of their topic:
//
//     const bench::Cases fir([] {
//         bench::addCase("ippsFIRSR_64f 64 taps", {1024, 32768}, [](bench::Setup& s) {
//             const int n = static_cast<int>(s.size);
//             const double* x = s.input<double>(n);
//             double* y = s.output<double>(n);
//             auto filter = std::make_shared<Filter>(64);
//             s.elements = n;
//             s.flops = 2.0 * 64 * n;
//             s.run([=] { ippsFIRSR_64f(x, y, n, filter->spec(), nullptr, nullptr, nullptr); });
//             s.peer("Eigen", [=] { ... });
//         });
//     });
#pragma once
#include "arrays.h"
#include "timing.h"
#include "variants.h"
#include <type_traits>

namespace bench {

enum class Level { automatic, tiny, L1, L2, L3, memory };
const char* nameOf(Level level);

struct Size {
    Size(long long count, Level where = Level::automatic) : n(count), level(where) {}
    long long n;
    Level level; // automatic: where all arrays together fit
};

struct Peer {
    std::string name;
    Batch batch;
};

// One case at one size, as its author describes it.
class Setup
{
public:
    Setup(Memory& memory, long long n) : size(n), memory_(memory) {}

    const long long size;

    // Arrays that last as long as the setup. Their bytes make the bandwidth limit; what is updated is filled again
    // before each batch.
    template <class T> T* input(size_t n) { return array<T>(n, Access::read); }
    template <class T> T* output(size_t n) { return array<T>(n, Access::written); }
    template <class T> T* inout(size_t n) { return array<T>(n, Access::updated); }
    uint8_t* scratch(size_t bytes) { return memory_.scratch(bytes); } // states, work buffers

    double elements = 0; // of one call: cycles are given per element
    // Arithmetic on doubles in one call, where it may be the limit: additions and multiplications, divisions, roots.
    double flops = 0, divisions = 0, squareRoots = 0;
    // Operations that wait for one another: so many multiplications, then so many additions, again and again.
    struct Chain {
        int multiplications = 0, additions = 0;
        double times = 0;
    } chain;

    // The library's function, measured in each variant.
    template <class F> void run(F f) { batch = repeated(f); }
    // Runs before every call; its own time is measured and taken off. For what destroys its input, such as sorting.
    template <class F> void restore(F f) { restoring = f; }
    template <class F> void peer(const std::string& name, F f) { peers.push_back({name, repeated(f)}); }

    Batch batch;
    Work restoring;
    // The same call of another function, for the cost of a call alone.
    std::function<Batch(registry::Entry)> sameCall;
    size_t poppedBytes = 0; // that such a function takes off the stack
    std::vector<Peer> peers;
    const Memory& memory() const { return memory_; }
    Memory& memory() { return memory_; }

private:
    template <class T> static constexpr registry::Element elementOf()
    {
        using registry::Element;
        if constexpr (std::is_same_v<T, double>)
            return Element::f64;
        else if constexpr (std::is_same_v<T, Ipp64fc>)
            return Element::c64f;
        else if constexpr (std::is_same_v<T, float>)
            return Element::f32;
        else if constexpr (std::is_same_v<T, Ipp32fc>)
            return Element::c32f;
        else if constexpr (std::is_same_v<T, Ipp16s>)
            return Element::i16;
        else if constexpr (std::is_same_v<T, Ipp16sc>)
            return Element::c16s;
        else if constexpr (std::is_same_v<T, Ipp32s>)
            return Element::i32;
        else if constexpr (std::is_same_v<T, Ipp32sc>)
            return Element::c32s;
        else
            return Element::u8;
    }
    template <class T> T* array(size_t n, Access access)
    {
        const auto element = elementOf<T>();
        static_assert(element != registry::Element::u8 || sizeof(T) == 1, "say which element this type is");
        return reinterpret_cast<T*>(memory_.array("", n, element, access));
    }

    Memory& memory_;
};

struct Case {
    std::string name;                  // what --filter looks at
    std::string family;                // what --summary adds up
    std::vector<std::string> variants; // in which it is measured
    std::vector<Size> sizes;
    std::function<void(Setup&)> prepare;
};
inline constexpr const char* noVariant = "-"; // of a function that has one body for all processors

std::string exportOf(const registry::Function& f); // the name of its plain form, or of the only one it has

// A name starts with that of the function measured, whose family and variants are the case's.
void addCase(const std::string& name, std::vector<Size> sizes, std::function<void(Setup&)> prepare);
std::vector<Case>& cases();

// A peer of every case whose name matches: make it from the arrays (in argument order), or return nothing.
using PeerMaker = std::function<Batch(const Setup&)>;
void addPeer(const std::string& casePattern, const std::string& name, PeerMaker make);
void attachPeers(const std::string& caseName, Setup& setup);

// Adds what a file has when the program starts.
struct Cases {
    explicit Cases(void (*add)()) { add(); }
};

} // namespace bench

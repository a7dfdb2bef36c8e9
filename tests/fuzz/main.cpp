// The entry for a fuzzing engine (SIG5D_FUZZ_TOPIC names the target), and a driver for builds without one:
//   fuzz TOPIC [--seconds N] [--seed S]     as many inputs as fit; 0 seconds: for ever
//   fuzz TOPIC [--seed S] --input K         that input alone, in this process
//   fuzz --topics                           their names
#include "fuzz.h"
#include <cstdio>
#include <cstdlib>

namespace fuzz {

void fail(const std::string& what)
{
    std::fprintf(stderr, "FAULT: %s\n", what.c_str());
    std::abort();
}

namespace {

const struct {
    const char* name;
    void (*run)(Input&);
} others[] = {{"sizes", sizes}, {"features", features}, {"status-text", statusText}};

bool run(const std::string& topic, const uint8_t* data, size_t size)
{
    Input in(data, size);
    for (const auto& other : others)
        if (topic == other.name) {
            other.run(in);
            return true;
        }
    return calls(topic, in);
}

} // namespace
} // namespace fuzz

#ifdef SIG5D_FUZZING_ENGINE

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const char* const topic = std::getenv("SIG5D_FUZZ_TOPIC");
    fuzz::expect(topic && fuzz::run(topic, data, size), "no such topic");
    return 0;
}

#else

#include <chrono>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fuzz {
namespace {

// Some short, most long enough for all choices.
std::vector<uint8_t> input(unsigned long long seed, unsigned long long number)
{
    std::mt19937_64 random(seed * 0x9E3779B97F4A7C15u + number);
    std::vector<uint8_t> bytes(random() % (random() % 4 ? 400 : 40));
    for (uint8_t& b : bytes) b = static_cast<uint8_t>(random() >> 13);
    return bytes;
}

bool runNumber(const std::string& topic, unsigned long long seed, unsigned long long number)
{
    const std::vector<uint8_t> bytes = input(seed, number);
    return run(topic, bytes.data(), bytes.size());
}

// Whatever an input does to the process that runs it, this one lives on to say which input it was.
int drive(const std::string& topic, double seconds, unsigned long long seed)
{
    void* page = mmap(nullptr, sizeof(long long), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (page == MAP_FAILED) return 2;
    auto& number = *static_cast<volatile unsigned long long*>(page);
    const pid_t child = fork();
    if (child < 0) return 2;
    if (child == 0) {
        const auto start = std::chrono::steady_clock::now();
        for (unsigned long long k = 0;; ++k) {
            number = k;
            if (!runNumber(topic, seed, number)) fail("no such topic: " + topic);
            const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
            if (seconds > 0 && passed.count() >= seconds) break;
        }
        std::_Exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::printf("%s: %llu inputs, seed %llu\n", topic.c_str(), number + 1, seed);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return 0;
    std::printf("FAILED at: fuzz %s --seed %llu --input %llu\n", topic.c_str(), seed, number + 0);
    return 1;
}

} // namespace
} // namespace fuzz

int main(int argc, char** argv)
{
    const std::string topic = argc > 1 ? argv[1] : "";
    if (topic == "--topics") {
        for (const std::string& name : fuzz::callTopics()) std::printf("%s\n", name.c_str());
        for (const auto& other : fuzz::others) std::printf("%s\n", other.name);
        return 0;
    }
    double seconds = 2;
    unsigned long long seed = 1, only = 0;
    bool alone = false;
    for (int i = 2; i + 1 < argc; i += 2) {
        const std::string option = argv[i];
        if (option == "--seconds") seconds = std::atof(argv[i + 1]);
        if (option == "--seed") seed = std::strtoull(argv[i + 1], nullptr, 10);
        if (option == "--input") {
            only = std::strtoull(argv[i + 1], nullptr, 10);
            alone = true;
        }
    }
    if (alone) return fuzz::runNumber(topic, seed, only) ? 0 : 2;
    return fuzz::drive(topic, seconds, seed);
}

#endif

// The first call of a primitive, in processes of their own: what is selected, and that any number of threads may make
// it at the same time.
#include "sig5d.h"
#include "support/library.h"
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>
#ifdef _WIN32
#include <process.h>
#else
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

constexpr Ipp64u doNotCompare = Ipp64u(1) << 63;
std::string self; // this program

// Runs this program again with an argument; 0 is success.
int child(const char* task)
{
#ifdef _WIN32
    return static_cast<int>(_spawnl(_P_WAIT, self.c_str(), "first_call_test", task, nullptr));
#else
    const pid_t pid = fork();
    if (pid == 0) {
        execl("/proc/self/exe", "first_call_test", task, nullptr);
        _exit(126);
    }
    int state = -1;
    waitpid(pid, &state, 0);
    return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
#endif
}

int failures = 0;
void check(bool holds, const char* what)
{
    if (holds) return;
    std::fprintf(stderr, "first call: %s\n", what);
    ++failures;
}
#define CHECK(condition) check(condition, #condition)

// The first call of each thread is another primitive: arguments on the stack and in registers must survive selection.
bool callOne(int number)
{
    double a[5] = {1, 2, 3, 4, 5}, b[5] = {};
    switch (number % 6) {
    case 0:
        return ippsSet_64f(2.5, b, 5) == 0 && b[0] == 2.5 && b[4] == 2.5;
    case 1:
        return ippsCopy_64f(a, b, 5) == 0 && !std::memcmp(a, b, sizeof a);
    case 2:
        return ippsFlip_64f(a, b, 5) == 0 && b[0] == 5 && b[4] == 1;
    case 3:
        return ippsSet_64f_Idx(-1.5, b, 1, 3) == 0 && b[0] == 0 && b[1] == -1.5 && b[3] == -1.5 && b[4] == 0;
    case 4:
        return ippsZero_64f_Idx(a, 4, 1) == 0 && a[3] == 4 && a[4] == 0;
    default: {
        double* p = ippsMalloc_64f(3);
        const bool good = p && reinterpret_cast<uintptr_t>(p) % 64 == 0;
        ippsFree(p);
        return good;
    }
    }
}

// All threads leave the gate together.
void together(int threads, const std::function<void(int)>& run)
{
    std::atomic<int> waiting{threads};
    std::vector<std::thread> all;
    for (int t = 0; t < threads; ++t)
        all.emplace_back([&, t] {
            for (--waiting; waiting > 0;)
                if (threads > 2) std::this_thread::yield();
            run(t);
        });
    for (std::thread& t : all) t.join();
}

void race()
{
    constexpr int threads = 64;
    std::atomic<int> wrong{0};
    const void* answers[threads];
    together(threads, [&](int t) {
        if (!callOne(t)) ++wrong;
        answers[t] = ippsGetLibVersion();
    });
    CHECK(wrong == 0);
    for (const void* a : answers) CHECK(a == answers[0]);
    Ipp64u word = 0;
    CHECK(ippGetCpuFeatures(&word, nullptr) == 0);
    CHECK((ippGetEnabledCpuFeatures() & word & 7) == 7);
}

// What a caller selects while others make the first call stays selected.
void raceAgainstSelection()
{
    together(2, [](int t) {
        if (t == 1) // it is the first to leave
            ippSetCpuFeatures(7);
        else
            callOne(t);
    });
    CHECK(!std::strcmp(ippsGetLibVersion()->targetCpu, "w7"));
    CHECK(ippGetEnabledCpuFeatures() == 7);
}

// Whichever of several selections is the last one: variant and feature word are of one and the same.
void raceOfSelections()
{
    for (int round = 0; round < 300; ++round) {
        together(2, [](int t) {
            for (int i = 0; i < 50; ++i) ippSetCpuFeatures(support::variants[t + i % 2].features | doNotCompare);
        });
        const std::string code = ippsGetLibVersion()->targetCpu;
        const Ipp64u word = ippGetEnabledCpuFeatures();
        for (const support::Variant& v : support::variants)
            if (code == v.code) CHECK(word == v.features);
    }
}

void selection()
{
    CHECK(ippGetEnabledCpuFeatures() == 3);
    int size = 0;
    ippGetMaxCacheSizeB(&size);
    Ipp64u word = 0;
    CHECK(ippGetCpuFeatures(&word, nullptr) == 0);
    CHECK(ippGetEnabledCpuFeatures() == 3); // queries select nothing
    const std::string best = ippsGetLibVersion()->targetCpu;
    CHECK(best == support::supported().back().answers);
    CHECK((ippGetEnabledCpuFeatures() & ~Ipp64u(0x7F08100)) == (word & ~Ipp64u(0x7F08100)));
    if (word & 0x200) CHECK(ippGetEnabledCpuFeatures() == word);
}

// A selection before the first call is not replaced by the initialiser.
void selectionBefore()
{
    CHECK(ippSetCpuFeatures(7 | doNotCompare) == 0);
    CHECK(callOne(0));
    CHECK(!std::strcmp(ippsGetLibVersion()->targetCpu, "w7"));
    CHECK(ippGetEnabledCpuFeatures() == 7);
    Ipp64u word = 0;
    ippGetCpuFeatures(&word, nullptr);
    CHECK(word == 3); // what was enabled when the request came
}

// A selection compared with the processor keeps what detection found.
void selectionCompared()
{
    CHECK(ippSetCpuFeatures(7) == 0);
    CHECK(!std::strcmp(ippsGetLibVersion()->targetCpu, "w7"));
    Ipp64u word = 0;
    ippGetCpuFeatures(&word, nullptr);
    CHECK((word & 7) == 7);
    CHECK(word != 7 || support::supported().size() <= 2);
}

// Prints what the first call costs, in microseconds.
void cost()
{
    const auto start = std::chrono::steady_clock::now();
    ippsGetLibVersion();
    const auto between = std::chrono::steady_clock::now();
    ippsGetLibVersion();
    const auto end = std::chrono::steady_clock::now();
    std::printf("first call %.1f us, second %.2f us\n", std::chrono::duration<double>(between - start).count() * 1e6,
                std::chrono::duration<double>(end - between).count() * 1e6);
}

struct Task {
    const char* name;
    void (*run)();
};
const Task tasks[] = {{"race", race},
                      {"race-against-selection", raceAgainstSelection},
                      {"race-of-selections", raceOfSelections},
                      {"selection", selection},
                      {"selection-before", selectionBefore},
                      {"selection-compared", selectionCompared},
                      {"cost", cost}};

// The orders in which calls may meet are tested one by one elsewhere; here they meet as threads do. A process takes
// long to start under Wine and with a sanitizer.
#ifdef _WIN32
constexpr int processes = 4;
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int processes = 10;
#else
constexpr int processes = 40;
#endif

} // namespace

TEST(FirstCall, SelectsTheBestVariantOnce) { EXPECT_EQ(child("selection"), 0); }
TEST(FirstCall, KeepsASelectionMadeBefore) { EXPECT_EQ(child("selection-before"), 0); }
TEST(FirstCall, ComparesASelectionMadeBeforeWithTheProcessor) { EXPECT_EQ(child("selection-compared"), 0); }

TEST(FirstCall, ManyThreadsMayMakeItTogether)
{
    for (int i = 0; i < processes; ++i) ASSERT_EQ(child("race"), 0) << i;
}

TEST(FirstCall, ASelectionMadeAtTheSameTimeStays)
{
    for (int i = 0; i < processes; ++i) ASSERT_EQ(child("race-against-selection"), 0) << i;
}

TEST(FirstCall, SelectionsAtTheSameTimeLeaveOneOfThem)
{
    for (int i = 0; i < 3; ++i) ASSERT_EQ(child("race-of-selections"), 0) << i;
}

int main(int argc, char** argv)
{
    self = argv[0];
    for (const Task& task : tasks)
        if (argc == 2 && !std::strcmp(argv[1], task.name)) {
            task.run();
            return failures ? 1 : 0;
        }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// What a scroll, a tick, a paint, a mouse move and the folding cost, by the number of windows, each beside
// its bare platform calls; and a whole start and quit.
#include "deeds.h"
#include "running.h"

#include "core/main.h"
#include "core/quit.h"
#include "core/state.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <tuple>

namespace {

int CallsIn(void (*does)()) {
    const int before = Desk.calls;
    does();
    return Desk.calls - before;
}

void Measure(benchmark::State& state, const Deed& deed, void (*does)(), int windows) {
    RunWithWindows(windows);
    PrepareDeeds();
    const int made = CallsIn(deed.quorl);
    const int held = CallsIn(deed.bare);
    if (made != held) {
        const std::string error = std::to_string(made) + " calls held against " + std::to_string(held);
        state.SkipWithError(error.c_str());
        return;
    }
    for ([[maybe_unused]] const auto& round : state)
        does();
    state.counters["each"] = benchmark::Counter(static_cast<double>(state.iterations()) * deed.times,
                                                benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["calls"] = static_cast<double>(CallsIn(does)) / deed.times;
}

void EnrollPair(const Deed& deed, int windows) {
    const std::string name = std::string(deed.name) + '/' + std::to_string(windows);
    const auto enroll = [&](const char* who, void (*does)()) {
        benchmark::RegisterBenchmark((name + who).c_str(), [&deed, does, windows](benchmark::State& state) {
            Measure(state, deed, does, windows);
        })->Unit(benchmark::kMicrosecond);
    };
    enroll("/quorl", deed.quorl);
    enroll("/bare", deed.bare);
}

double SecondsOf(void (*does)()) {
    const auto start = std::chrono::steady_clock::now();
    does();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct LifeTimes {
    double start, quit; // seconds
    int startCalls, quitCalls;
};

void Quit() {
    Desk.answers = {IDYES};
    ConfirmQuit(MainWnd);
    ShutDown();
}

// A process has one life, so each is lived in a process of its own.
LifeTimes LiveOnce(int windows) {
    int ends[2];
    LifeTimes times{};
    if (pipe(ends) != 0)
        return times;
    const pid_t child = fork();
    if (child == 0) {
        for (int i = 0; i < windows; ++i)
            OpenWindow("program", {i % 500, i % 300, i % 500 + 300, i % 300 + 200});
        Desk.bTrace = 0;
        times.start = SecondsOf(RunQuorl);
        times.startCalls = Desk.calls;
        times.quit = SecondsOf(Quit);
        times.quitCalls = Desk.calls - times.startCalls;
        _exit(write(ends[1], &times, sizeof times) != sizeof times);
    }
    waitpid(child, nullptr, 0);
    if (read(ends[0], &times, sizeof times) != sizeof times)
        times = {};
    close(ends[0]);
    close(ends[1]);
    return times;
}

void MeasureLife(benchmark::State& state, double LifeTimes::*part, int LifeTimes::*calls) {
    LifeTimes times{};
    for ([[maybe_unused]] const auto& round : state) {
        times = LiveOnce(static_cast<int>(state.range(0)));
        if (times.start <= 0) {
            state.SkipWithError("the process did not live");
            break;
        }
        state.SetIterationTime(times.*part);
    }
    state.counters["calls"] = times.*calls;
}

void EnrollLives() {
    for (const auto& [name, part, calls] : {
             std::tuple{"start", &LifeTimes::start, &LifeTimes::startCalls},
             std::tuple{"quit",  &LifeTimes::quit,  &LifeTimes::quitCalls }
    })
        benchmark::RegisterBenchmark(name, MeasureLife, part, calls)
            ->Arg(10)
            ->Arg(100)
            ->Arg(1000)
            ->UseManualTime()
            ->Iterations(200)
            ->Unit(benchmark::kMicrosecond);
}

} // namespace

// The lives come first: a process that has one behind it cannot start another.
int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    EnrollLives();
    for (int deed = 0; deed < num_deeds; ++deed)
        if (Deeds[deed].bSameCalls)
            for (const int windows : {10, 100, 1000})
                EnrollPair(Deeds[deed], windows);
    EnrollMapMouse();
    EnrollSettings();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

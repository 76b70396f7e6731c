// The cost of each operation and of its bare platform calls by the number of windows, and of start and quit.
#include "operations.h"
#include "running.h"

#include "app/main.h"
#include "app/quit.h"
#include "core/state.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <tuple>

namespace {

int CallsIn(void (*run)()) {
    const int before = Desk.calls;
    run();
    return Desk.calls - before;
}

void Measure(benchmark::State& state, const Operation& operation, void (*run)(), int windows) {
    RunWithWindows(windows);
    PrepareOperations();
    operation.quorl(); // the first time it notes the foreground window
    const int made = CallsIn(operation.quorl);
    const int held = CallsIn(operation.bare);
    if (made != held) {
        const std::string error = std::to_string(made) + " calls compared with " + std::to_string(held);
        state.SkipWithError(error.c_str());
        return;
    }
    for ([[maybe_unused]] const auto& round : state)
        run();
    state.counters["each"] = benchmark::Counter(static_cast<double>(state.iterations()) * operation.times,
                                                benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["calls"] = static_cast<double>(CallsIn(run)) / operation.times;
}

void RegisterPair(const Operation& operation, int windows) {
    const std::string name = std::string(operation.name) + '/' + std::to_string(windows);
    const auto add = [&](const char* who, void (*run)()) {
        benchmark::RegisterBenchmark((name + who).c_str(), [&operation, run,
                                                            windows](benchmark::State& state) {
            Measure(state, operation, run, windows);
        })->Unit(benchmark::kMicrosecond);
    };
    add("/quorl", operation.quorl);
    add("/bare", operation.bare);
}

double SecondsOf(void (*run)()) {
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct RunTimes {
    double start, quit; // seconds
    int startCalls, quitCalls;
};

void Quit() {
    Desk.boxAnswers = {IDYES};
    ConfirmQuit(MainWnd);
    ShutDown();
}

// Quorl can start only once per process, so each run gets its own.
RunTimes RunOnce(int windows) {
    int pipes[2];
    RunTimes times{};
    if (pipe(pipes) != 0)
        return times;
    const pid_t child = fork();
    if (child == 0) {
        for (int i = 0; i < windows; ++i)
            OpenWindow("program", {i % 500, i % 300, i % 500 + 300, i % 300 + 200});
        Desk.recording = 0;
        times.start = SecondsOf(RunQuorl);
        times.startCalls = Desk.calls;
        times.quit = SecondsOf(Quit);
        times.quitCalls = Desk.calls - times.startCalls;
        _exit(write(pipes[1], &times, sizeof times) != sizeof times);
    }
    waitpid(child, nullptr, 0);
    if (read(pipes[0], &times, sizeof times) != sizeof times)
        times = {};
    close(pipes[0]);
    close(pipes[1]);
    return times;
}

void MeasureRun(benchmark::State& state, double RunTimes::*part, int RunTimes::*calls) {
    RunTimes times{};
    for ([[maybe_unused]] const auto& round : state) {
        times = RunOnce(static_cast<int>(state.range(0)));
        if (times.start <= 0) {
            state.SkipWithError("the process failed");
            break;
        }
        state.SetIterationTime(times.*part);
    }
    state.counters["calls"] = times.*calls;
}

void RegisterRuns() {
    for (const auto& [name, part, calls] : {std::tuple{"start", &RunTimes::start, &RunTimes::startCalls},
                                            std::tuple{"quit", &RunTimes::quit, &RunTimes::quitCalls}})
        benchmark::RegisterBenchmark(name, MeasureRun, part, calls)
            ->Arg(10)
            ->Arg(100)
            ->Arg(1000)
            ->UseManualTime()
            ->Iterations(200)
            ->Unit(benchmark::kMicrosecond);
}

} // namespace

// Runs come first: their child processes must not inherit a started Quorl.
int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    RegisterRuns();
    for (int operation = 0; operation < num_operations; ++operation)
        if (Operations[operation].sameCalls)
            for (const int windows : {10, 100, 1000})
                RegisterPair(Operations[operation], windows);
    RegisterMapMouse();
    RegisterSettings();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

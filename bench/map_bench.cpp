// What polling and painting cost beyond the platform calls themselves, by the number of windows.
#include "core/main.h"
#include "core/state.h"
#include "scroll/refresh.h"
#include "scroll/window_table.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int TICKS_BETWEEN_REFRESHES = 11;

// A running Quorl with so many windows of other programs. The process is shared, so it starts once.
void RunWithWindows(int count) {
    static std::vector<HWND> windows;
    Desk.bTrace = 0;
    if (!MainWnd)
        StartUp(reinterpret_cast<HINSTANCE>(0x400000));
    for (; static_cast<int>(windows.size()) > count; windows.pop_back())
        KillWindow(windows.back());
    while (static_cast<int>(windows.size()) < count) {
        const LONG at = static_cast<LONG>(windows.size()) * 3;
        windows.push_back(OpenWindow("program", {at, at / 2, at + 300, at / 2 + 200}));
    }
    Desk.foreground = windows.front();
    RebuildWindowTable();
    Repaint(MainWnd);
}

// Ticks in which nothing has moved. Every twelfth one rebuilds the table in any case; it is not measured
// here.
void QuietTick(benchmark::State& state) {
    RunWithWindows(static_cast<int>(state.range(0)));
    int calls = 0;
    for ([[maybe_unused]] const auto& round : state) {
        const int before = Desk.calls;
        for (int tick = 0; tick < TICKS_BETWEEN_REFRESHES; ++tick)
            RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
        calls = Desk.calls - before;
        state.PauseTiming();
        RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * TICKS_BETWEEN_REFRESHES);
    state.counters["calls"] = static_cast<double>(calls) / TICKS_BETWEEN_REFRESHES;
}

void Paint(benchmark::State& state) {
    RunWithWindows(static_cast<int>(state.range(0)));
    int calls = 0;
    for ([[maybe_unused]] const auto& round : state) {
        const int before = Desk.calls;
        Repaint(MainWnd);
        calls = Desk.calls - before;
    }
    state.counters["calls"] = calls;
}

BENCHMARK(QuietTick)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Paint)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace

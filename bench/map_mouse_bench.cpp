// What the mouse on the map costs: looking up a combination, and a move that only tells what lies under it,
// by the number of windows. Times contain those of the in-memory desktop's calls.
#include "core/main.h"
#include "core/state.h"
#include "mouse/map_buttons.h"
#include "mouse/map_hover.h"
#include "scroll/window_table.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

void StartOnce() {
    Desk.bTrace = 0;
    if (!MainWnd)
        StartUp(reinterpret_cast<HINSTANCE>(0x400000));
}

// The table holds so many windows, all missed by the cursor; each is asked for its place. Those of other
// benchmarks in this process stay out of it.
void ListWindows(int count) {
    StartOnce();
    static std::vector<HWND> windows;
    while (static_cast<int>(windows.size()) < count)
        windows.push_back(OpenWindow("some window", {0, 0, 20, 20}));
    num_windows = 0;
    for (int i = 0; i < count; ++i)
        AddWindowRow(windows[static_cast<std::size_t>(i)], 0);
}

void MatchCombination(benchmark::State& state) {
    StartOnce();
    const int flags = static_cast<int>(state.range(0));
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(MatchMouseAction(MainWnd, ACTION_MOUSE, flags, 0, nullptr, 0));
}

void ReadHeldFlags(benchmark::State& state) {
    StartOnce();
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(GetHeldFlags(KEYS_AND_BUTTONS));
}

void HoverMove(benchmark::State& state) {
    ListWindows(static_cast<int>(state.range(0)));
    int x = 60;
    for ([[maybe_unused]] const auto& round : state) {
        OnToolwinMouseMove(MainWnd, x, 60, 0);
        x ^= 1;
        Desk.strokes.clear();
    }
}

BENCHMARK(MatchCombination)->Arg(LBUTTON)->Arg(KEY_ALT | KEY_SHIFT); // bound; bound to nothing
BENCHMARK(ReadHeldFlags);
BENCHMARK(HoverMove)->Arg(10)->Arg(100)->Arg(1000);

} // namespace

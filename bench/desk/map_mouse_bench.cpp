// What the mouse on the map costs: looking up a combination, and a move that only tells what lies under it,
// by the number of windows. Times contain those of the in-memory desktop's calls.
#include "running.h"

#include "core/state.h"
#include "mouse/map_buttons.h"
#include "mouse/map_hover.h"
#include "scroll/window_table.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

namespace {

void MatchCombination(benchmark::State& state) {
    RunQuorl();
    const int flags = static_cast<int>(state.range(0));
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(MatchMouseAction(MainWnd, ACTION_MOUSE, flags, 0, nullptr, 0));
}

void ReadHeldFlags(benchmark::State& state) {
    RunQuorl();
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(GetHeldFlags(KEYS_AND_BUTTONS));
}

void HoverMove(benchmark::State& state) {
    RunWithWindows(static_cast<int>(state.range(0)));
    RebuildWindowTable();
    int x = 160; // beside all windows
    for ([[maybe_unused]] const auto& round : state) {
        OnToolwinMouseMove(MainWnd, x, 60, 0);
        x ^= 1;
        Desk.strokes.clear();
    }
}

} // namespace

void EnrollMapMouse() {
    benchmark::RegisterBenchmark("match-combination", MatchCombination)
        ->Arg(LBUTTON)
        ->Arg(KEY_ALT | KEY_SHIFT); // bound; bound to nothing
    benchmark::RegisterBenchmark("read-held-keys", ReadHeldFlags);
    benchmark::RegisterBenchmark("move-over-map", HoverMove)->Arg(10)->Arg(100)->Arg(1000);
}

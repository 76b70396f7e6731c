// The cost of the mouse on the map: looking up a binding, and hovering by the number of windows. Times
// include those of the in-memory desktop's calls.
#include "running.h"

#include "core/state.h"
#include "mouse/map_buttons.h"
#include "mouse/map_hover.h"
#include "windows/window_table.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

namespace {

void MatchCombination(benchmark::State& state) {
    RunQuorl();
    const int flags = static_cast<int>(state.range(0));
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(MatchMouseAction(flags, 0));
}

void ReadHeldFlags(benchmark::State& state) {
    RunQuorl();
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(GetHeldFlags());
}

void HoverMove(benchmark::State& state) {
    RunWithWindows(static_cast<int>(state.range(0)));
    RebuildWindowTable();
    int x = 160; // beside all windows
    for ([[maybe_unused]] const auto& round : state) {
        OnToolwinMouseMove(MainWnd, x, 60, 0);
        x ^= 1;
        Desk.drawCalls.clear();
    }
}

} // namespace

void RegisterMapMouse() {
    benchmark::RegisterBenchmark("match-combination", MatchCombination)
        ->Arg(LBUTTON)
        ->Arg(KEY_ALT | KEY_SHIFT); // bound; bound to nothing
    benchmark::RegisterBenchmark("read-held-keys", ReadHeldFlags);
    benchmark::RegisterBenchmark("move-over-map", HoverMove)->Arg(10)->Arg(100)->Arg(1000);
}

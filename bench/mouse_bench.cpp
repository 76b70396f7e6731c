// What a mouse move anywhere on the screen costs, and how much of it is the platform's own.
#include "actions/action_table.h"
#include "core/coordinates.h"
#include "core/keys.h"
#include "core/main.h"
#include "core/state.h"
#include "mouse/edge_scroll.h"
#include "mouse/hook_mouse.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

namespace {

// A running Quorl that follows the mouse. The process is shared, so it starts once.
void Follow() {
    Desk.bTrace = 0;
    Desk.fault.callsLeft = 0;
    if (!MainWnd)
        StartUp(reinterpret_cast<HINSTANCE>(0x400000));
    ActionTable[ROW_FOLLOW_MOUSE].value = 1;
    ActionTable[ROW_QUICK_REDRAW].value = 1;
    Desk.cursor = {512, 384};
    OnHookMouse(MainWnd, WM_MOUSEMOVE); // the first one only arms
}

void HookMoveWithNothingToDo(benchmark::State& state) {
    Follow();
    for ([[maybe_unused]] const auto& round : state)
        benchmark::DoNotOptimize(OnHookMouse(MainWnd, WM_MOUSEMOVE));
}

// What the move above asks the platform for: the difference is its own share.
void ItsPlatformCallsAlone(benchmark::State& state) {
    Follow();
    for ([[maybe_unused]] const auto& round : state) {
        POINT cursor{};
        RECT screen{};
        GetCursorPos(&cursor);
        MonitorUnion(&screen);
        benchmark::DoNotOptimize(IsHeld(VK_LBUTTON) | IsHeld(VK_MBUTTON) | IsHeld(VK_RBUTTON));
        benchmark::DoNotOptimize(cursor);
        benchmark::DoNotOptimize(screen);
    }
}

void EdgeDecision(benchmark::State& state) {
    Follow();
    POINT cursor{static_cast<LONG>(state.range(0)), 384};
    for ([[maybe_unused]] const auto& round : state) {
        benchmark::DoNotOptimize(cursor);
        benchmark::DoNotOptimize(EdgeStepAt(cursor, Options, VDesk, ScreenW(), ScreenH()));
    }
}

BENCHMARK(HookMoveWithNothingToDo);
BENCHMARK(ItsPlatformCallsAlone);
BENCHMARK(EdgeDecision)->Arg(512)->Arg(1023);

} // namespace

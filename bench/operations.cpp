// The table of measured operations.
#include "operations.h"

#include "bare.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "mouse/hook_mouse.h"
#include "regions/region_table.h"
#include "scroll/gather.h"
#include "scroll/refresh.h"
#include "scroll/scroll_view.h"

#include <initializer_list>
#include <iterator>

static void Scroll() {
    ScrollView(MainWnd, ScreenW(), 0, SV_RELATIVE, 0);
    ScrollView(MainWnd, -ScreenW(), 0, SV_RELATIVE, 0);
}

static void Ticks() {
    for (int tick = 0; tick < TICKS; ++tick)
        RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
}

static void Paint() {
    Repaint(MainWnd);
}

static void MouseMove() {
    OnHookMouse(MainWnd, WM_MOUSEMOVE);
}

static void Fold() {
    GatherWindows(FOLD_AT_EXIT);
}

// clang-format off
const Operation Operations[] = {
    // name                    quorl      bare           times  sameCalls
    {"scroll",                 Scroll,    BareScroll,    2,     true},
    {"scroll/ping-move-show",  Scroll,    PingMoveShow,  2,     false},
    {"tick",                   Ticks,     BareTicks,     TICKS, true},
    {"paint",                  Paint,     BarePaint,     1,     true},
    {"mouse-move",             MouseMove, BareMouseMove, 1,     true},
    {"fold",                   Fold,      BareFold,      1,     false},
};
// clang-format on

const int num_operations = static_cast<int>(std::size(Operations));

void PrepareOperations() {
    for (const ActionId action : {ACTION_TOOLTIP, ACTION_FOLLOW_ACTIVE, ACTION_SUPPRESS_SCROLL,
                                  ACTION_XWIN_MOUSE, ACTION_RESTORE_MAXIMIZED})
        ActionTable[action].value = 0;
    for (const ActionId action : {ACTION_FOLLOW_MOUSE, ACTION_QUICK_REDRAW})
        ActionTable[action].value = 1;
    num_regions = 0;
    MouseMove(); // the first one only arms edge scrolling
    PrepareBare();
}

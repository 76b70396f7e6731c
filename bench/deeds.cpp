// The frequent deeds of Quorl, each with the bare calls that it is measured against.
#include "deeds.h"

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
    FoldWindows(nullptr);
}

const Deed Deeds[] = {
    {"scroll",                Scroll,    BareScroll,    2,     1},
    {"scroll/ping-move-show", Scroll,    PingMoveShow,  2,     0},
    {"tick",                  Ticks,     BareTicks,     TICKS, 1},
    {"paint",                 Paint,     BarePaint,     1,     1},
    {"mouse-move",            MouseMove, BareMouseMove, 1,     1},
    {"fold",                  Fold,      BareFold,      1,     1},
};

const int num_deeds = static_cast<int>(std::size(Deeds));

void PrepareDeeds() {
    for (const ActionId row : {ROW_TOOLTIP, ROW_KEEP_ACTIVE_IN_VIEW, ROW_SUPPRESS_WHEN_DRAGGING,
                               ROW_XWIN_MOUSE, ROW_RESTORE_MAXIMIZED})
        ActionTable[row].value = 0;
    for (const ActionId row : {ROW_FOLLOW_MOUSE, ROW_QUICK_REDRAW})
        ActionTable[row].value = 1;
    num_regions = 0;
    MouseMove(); // the first one only arms
    PrepareBare();
}

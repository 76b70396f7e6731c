// Scrolling at the screen's edge.
#include "mouse/edge_scroll.h"

#include "actions/action_table.h"
#include "core/directions.h"
#include "core/keys.h"
#include "core/state.h"
#include "scroll/scroll_view.h"

static const UINT_PTR DELAY_TIMER = 2002;
static const int INSET = 3; // borders between the far edge and the cursor's landing place

// Options.mousescroll_delay; any other number scrolls at once
enum EdgeDelay { ON_LEFT_CLICK = 1, ON_RIGHT_CLICK = 2, AFTER_A_TIME = 3 };

static int edge_primed; // 1 after the first call
static int edge_busy;   // 1 while a call is at work
static int edge_dir;    // the edge that the last complete test found

namespace {

// The scroll that waits for its timer.
struct PendingRecord {
    UINT_PTR timer; // 0: nothing waits
    POINT view;     // desktop pixels
    POINT landing;  // screen pixels
};

} // namespace

static PendingRecord PendingScroll;

static SIZE EdgeAmount(const OptionsRecord& options, int screenW, int screenH) {
    switch (options.mousescroll_type) {
    case 0: return {options.minscroll, options.minscroll};
    case 1: return {options.maxscroll, options.maxscroll};
    case 2: return {options.mousescroll, options.mousescroll};
    case 3: return {screenW, screenH};
    default: return {10, 10};
    }
}

EdgeStep EdgeStepAt(POINT cursor, const OptionsRecord& options, const RECT& vdesk, int screenW, int screenH) {
    const int border = options.border;
    const int inset = INSET * border;
    const SIZE by = EdgeAmount(options, screenW, screenH);
    if (cursor.x > screenW - border)
        return {
            DIR_RIGHT, {vdesk.left + by.cx,      vdesk.top},
             {inset - by.cx + screenW, cursor.y }
        };
    if (cursor.x < border)
        return {
            DIR_LEFT, {vdesk.left - by.cx, vdesk.top},
             {by.cx - inset,      cursor.y }
        };
    if (cursor.y > screenH - border)
        return {
            DIR_DOWN, {vdesk.left, vdesk.top + by.cy      },
             {cursor.x,   inset - by.cy + screenH}
        };
    if (cursor.y < border)
        return {
            DIR_UP, {vdesk.left, vdesk.top - by.cy},
             {cursor.x,   by.cy - inset    }
        };
    return {
        DIR_NONE, {vdesk.left, vdesk.top},
         cursor
    };
}

int IsStillAtEdge(POINT cursor, int dir, int border, int screenW, int screenH) {
    switch (dir) {
    case DIR_UP: return cursor.y <= border;
    case DIR_DOWN: return cursor.y >= screenH - border;
    case DIR_LEFT: return cursor.x <= border;
    case DIR_RIGHT: return cursor.x >= screenW - border;
    default: return 0;
    }
}

static int ScrollsNow(int delay, int cause) {
    switch (delay) {
    case ON_LEFT_CLICK: return cause == CAUSE_LEFT_CLICK;
    case ON_RIGHT_CLICK: return cause == CAUSE_RIGHT_CLICK;
    case AFTER_A_TIME: return 0;
    default: return 1;
    }
}

// While Shift steers the jump, the left key alone asks for it.
static int MayJump() {
    if (!ActionTable[ROW_SHIFT_SUPPRESS].value)
        return 1;
    return !IsHeld(VK_RSHIFT) && IsHeld(VK_LSHIFT);
}

static int ScrollTo(HWND window, POINT view) {
    return ScrollView(window, view.x, view.y, SV_ABSOLUTE, ROW_FOLLOW_MOUSE);
}

static void ScrollAtEdge(HWND window, const EdgeStep& step, int cause) {
    if (Options.mousescroll_delay == AFTER_A_TIME)
        StartDelayedScroll(window, &step.view, &step.landing);
    if (!ScrollsNow(Options.mousescroll_delay, cause))
        return;
    if (ScrollTo(window, step.view) && MayJump())
        SetCursorPos(step.landing.x, step.landing.y);
    Repaint(window);
}

int EdgeScroll(HWND window, const POINT* cursor, int cause) {
    if (!edge_primed) {
        edge_primed = 1;
        return 0;
    }
    if (edge_busy)
        return 0;
    edge_busy = 1;
    const EdgeStep step = EdgeStepAt(*cursor, Options, VDesk, ScreenW(), ScreenH());
    edge_dir = step.dir;
    if (step.dir)
        ScrollAtEdge(window, step, cause);
    edge_busy = 0;
    return step.dir != DIR_NONE;
}

// The view is the one that was asked for when the wait began; the edge is the one that the mouse was seen at
// last. A cursor that slides along to another edge meanwhile scrolls the old way.
static void CALLBACK DelayedScrollTimer(HWND window, UINT, UINT_PTR, DWORD) {
    POINT cursor{};
    if (GetCursorPos(&cursor) && IsStillAtEdge(cursor, edge_dir, Options.border, ScreenW(), ScreenH()) &&
        ScrollTo(window, PendingScroll.view))
        SetCursorPos(PendingScroll.landing.x, PendingScroll.landing.y);
    Repaint(window);
    KillTimer(window, PendingScroll.timer);
    PendingScroll.timer = 0;
}

int StartDelayedScroll(HWND window, const POINT* view, const POINT* landing) {
    if (PendingScroll.timer)
        return 0;
    PendingScroll.view = *view;
    PendingScroll.landing = *landing;
    PendingScroll.timer =
        SetTimer(window, DELAY_TIMER, static_cast<UINT>(Options.mousescroll_delay_time), DelayedScrollTimer);
    if (!PendingScroll.timer)
        MessageBeep(0);
    return PendingScroll.timer != 0;
}

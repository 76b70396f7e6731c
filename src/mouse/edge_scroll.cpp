#include "mouse/edge_scroll.h"

#include "actions/action_table.h"
#include "core/rect.h"
#include "core/displays.h"
#include "core/keys.h"
#include "core/state.h"
#include "core/steps.h"
#include "scroll/scroll_view.h"
#include "windows/window_table.h"

#include <algorithm>

static const UINT_PTR DELAY_TIMER = 2002;
static const int INSET = 3; // the cursor lands this many borders inside the opposite edge

static bool edge_primed; // after the first call
static bool edge_busy;   // during a call
static int edge_dir;     // the edge that the last complete test found

namespace {

// The scroll that waits for its timer.
struct PendingRecord {
    UINT_PTR timer; // 0: nothing waits
    POINT view;     // desktop pixels
    POINT landing;  // screen pixels
    RECT displays;  // the union of all, in system coordinates: a change of the displays cancels the scroll
};

} // namespace

static PendingRecord PendingScroll;

static SIZE ScrollSize(const OptionsRecord& options, int screenW, int screenH) {
    switch (options.mousescroll_type) {
    case EDGE_BY_MIN: return {options.minscroll, options.minscroll};
    case EDGE_BY_MAX: return {options.maxscroll, options.maxscroll};
    case EDGE_BY_MOUSESCROLL: return {options.mousescroll, options.mousescroll};
    case EDGE_BY_SCREEN: return {screenW, screenH};
    default: return {10, 10};
    }
}

static int EdgeAt(POINT cursor, int border, const RECT& edges) {
    if (cursor.x > edges.right - border)
        return DIR_RIGHT;
    if (cursor.x < edges.left + border)
        return DIR_LEFT;
    if (cursor.y > edges.bottom - border)
        return DIR_DOWN;
    return cursor.y < edges.top + border ? DIR_UP : DIR_NONE;
}

EdgeStep EdgeStepAt(POINT cursor, const OptionsRecord& options, const RECT& vdesk, const RECT& edges) {
    const int inset = INSET * options.border;
    const SIZE by = ScrollSize(options, Width(vdesk), Height(vdesk));
    EdgeStep step{EdgeAt(cursor, options.border, edges), {vdesk.left, vdesk.top}, cursor};
    switch (step.dir) {
    case DIR_RIGHT:
        step.view.x = Wrap(0LL + vdesk.left + by.cx);
        step.landing.x = inset - by.cx + edges.right;
        break;
    case DIR_LEFT:
        step.view.x = Wrap(0LL + vdesk.left - by.cx);
        step.landing.x = by.cx - inset + edges.left;
        break;
    case DIR_DOWN:
        step.view.y = Wrap(0LL + vdesk.top + by.cy);
        step.landing.y = inset - by.cy + edges.bottom;
        break;
    case DIR_UP:
        step.view.y = Wrap(0LL + vdesk.top - by.cy);
        step.landing.y = by.cy - inset + edges.top;
        break;
    default: break;
    }
    return step;
}

// One pixel more tolerant than EdgeStepAt.
static bool IsStillAtEdge(POINT cursor, int dir, int border, const RECT& edges) {
    switch (dir) {
    case DIR_UP: return cursor.y <= edges.top + border;
    case DIR_DOWN: return cursor.y >= edges.bottom - border;
    case DIR_LEFT: return cursor.x <= edges.left + border;
    case DIR_RIGHT: return cursor.x >= edges.right - border;
    default: return false;
    }
}

// A game or a film: the user is not looking for another window.
static bool IsFullScreenProgramActive() {
    const HWND active = GetForegroundWindow();
    WindowFrame frame{};
    if (!IsManagedWindow(active, &frame) || (GetWindowLongPtrA(active, GWL_STYLE) & WS_CAPTION) == WS_CAPTION)
        return false;
    const RECT display = DisplayNear(frame.visible).rect;
    const RECT& rect = frame.visible;
    return rect.left <= display.left && rect.top <= display.top && rect.right >= display.right &&
           rect.bottom >= display.bottom;
}

static bool ScrollsNow(int delay, EdgeCause cause) {
    switch (delay) {
    case EDGE_ON_LEFT_CLICK: return cause == CAUSE_LEFT_CLICK;
    case EDGE_ON_RIGHT_CLICK: return cause == CAUSE_RIGHT_CLICK;
    case EDGE_AFTER_DELAY: return false;
    default: return true;
    }
}

// If Shift controls the cursor's jump, only the left Shift key allows it.
static bool MayJump() {
    if (!IsOn(ACTION_SHIFT_SUPPRESS))
        return true;
    return !IsHeld(VK_RSHIFT) && IsHeld(VK_LSHIFT);
}

// Windows keeps the cursor on the displays. Next to a smaller one it would move the landing to an edge, which
// scrolls back.
static POINT KeepOnDisplay(POINT landing, int border) {
    if (Displays.count < 2)
        return landing;
    const RECT display =
        DisplayNear({landing.x, landing.y, Wrap(1LL + landing.x), Wrap(1LL + landing.y)}).rect;
    return {std::max(display.left + border, std::min(landing.x, display.right - border)),
            std::max(display.top + border, std::min(landing.y, display.bottom - border))};
}

static bool ScrollTo(HWND window, POINT view) {
    return ScrollView(window, view.x, view.y, SV_ABSOLUTE, ACTION_FOLLOW_MOUSE);
}

// The target is that of the time when the delay started, but the edge is the latest one. If the cursor has
// moved to another edge, the view still scrolls in the first direction.
static void CALLBACK DelayedScrollTimer(HWND window, UINT, UINT_PTR, DWORD) {
    POINT cursor{};
    if (IsSameRect(PendingScroll.displays, Displays.all) && ReadCursor(&cursor) &&
        IsStillAtEdge(cursor, edge_dir, Options.border, OuterEdges(cursor)) && !IsFullScreenProgramActive() &&
        ScrollTo(window, PendingScroll.view))
        MoveCursor(PendingScroll.landing);
    Repaint(window);
    KillTimer(window, PendingScroll.timer);
    PendingScroll.timer = 0;
}

static void StartDelayedScroll(HWND window, const EdgeStep& step) {
    if (PendingScroll.timer)
        return;
    const UINT delay = static_cast<UINT>(Options.mousescroll_delay_time);
    PendingScroll = {SetTimer(window, DELAY_TIMER, delay, DelayedScrollTimer), step.view, step.landing,
                     Displays.all};
    if (!PendingScroll.timer)
        MessageBeep(0);
}

static void ScrollAtEdge(HWND window, const EdgeStep& step, EdgeCause cause) {
    if (Options.mousescroll_delay == EDGE_AFTER_DELAY)
        StartDelayedScroll(window, step);
    if (!ScrollsNow(Options.mousescroll_delay, cause))
        return;
    if (ScrollTo(window, step.view) && MayJump())
        MoveCursor(step.landing);
    Repaint(window);
}

bool EdgeScroll(HWND window, POINT cursor, EdgeCause cause) {
    if (!edge_primed) {
        edge_primed = true;
        return false;
    }
    if (edge_busy)
        return false;
    edge_busy = true;
    EdgeStep step = EdgeStepAt(cursor, Options, VDesk, OuterEdges(cursor));
    step.landing = KeepOnDisplay(step.landing, Options.border);
    edge_dir = step.dir;
    if (step.dir && !IsFullScreenProgramActive())
        ScrollAtEdge(window, step, cause);
    edge_busy = false;
    return step.dir != DIR_NONE;
}

// The rows that only move the view.
#include "actions/view_rows.h"

#include "core/arithmetic.h"
#include "core/state.h"
#include "scroll/follow.h"
#include "scroll/scroll_view.h"

static const int NEARLY_THERE = 100; // pixels short of a screen boundary that count as being on it

int GoToPoint(const ActionCall& call) {
    ActionPoint& point = *MapToDesktop(call.point);
    if (call.with == AT_CELL) {
        point.x = Quotient(point.x, ScreenW()) * ScreenW();
        point.y = Quotient(point.y, ScreenH()) * ScreenH();
    }
    return ScrollView(call.window, point.x, point.y, call.with == AT_CENTER ? SV_CENTER : SV_ABSOLUTE,
                      call.row);
}

POINT AskedStep(int kind, int minscroll, int maxscroll) {
    const int step = kind & BY_MIN ? minscroll : maxscroll;
    return {kind & STEP_LEFT    ? -step
            : kind & STEP_RIGHT ? step
                                : 0,
            kind & STEP_UP     ? -step
            : kind & STEP_DOWN ? step
                               : 0};
}

int StepView(const ActionCall& call) {
    const POINT step = AskedStep(call.with, Options.minscroll, Options.maxscroll);
    return ScrollView(call.window, step.x, step.y, SV_RELATIVE, call.row);
}

// In reading order, from wherever the view stands.
static POINT NextScreen(const RECT& vdesk, const RECT& quorl, int screenW, int screenH) {
    POINT corner{vdesk.left + screenW, vdesk.top};
    if (corner.x >= quorl.right) {
        corner = {0, vdesk.top + screenH};
        if (corner.y >= quorl.bottom)
            corner.y = 0;
    }
    return corner;
}

static POINT PreviousScreen(const RECT& vdesk, const RECT& quorl, int screenW, int screenH) {
    POINT corner{vdesk.left - screenW, vdesk.top};
    if (corner.x < 0) {
        corner = {quorl.right - screenW, vdesk.top - screenH};
        if (corner.y < 0)
            corner.y = quorl.bottom - screenH;
    }
    return corner;
}

// The near edge of the screen that is `screens` away from the one at `at`.
static int ScreenBoundary(int at, int screens, int screen) {
    return (Quotient(at + NEARLY_THERE, screen) + screens) * screen;
}

POINT AskedScreen(ScreenKind kind, const RECT& vdesk, const RECT& quorl, int screenW, int screenH) {
    const LONG left = vdesk.left;
    const LONG top = vdesk.top;
    switch (kind) {
    case NEXT_SCREEN: return NextScreen(vdesk, quorl, screenW, screenH);
    case PREVIOUS_SCREEN: return PreviousScreen(vdesk, quorl, screenW, screenH);
    case SCREEN_LEFT: return {ScreenBoundary(left, -1, screenW), top};
    case SCREEN_UP: return {left, ScreenBoundary(top, -1, screenH)};
    case SCREEN_RIGHT: return {ScreenBoundary(left, 1, screenW), top};
    case SCREEN_DOWN: return {left, ScreenBoundary(top, 1, screenH)};
    case TOP_EDGE: return {left, 0};
    case BOTTOM_EDGE: return {left, quorl.bottom - screenH};
    case LEFT_EDGE: return {0, top};
    case RIGHT_EDGE: return {quorl.right - screenW, 0}; // and up to the top, unlike the left edge
    }
    return {left, top};
}

int GoToScreen(const ActionCall& call) {
    const POINT corner = AskedScreen(static_cast<ScreenKind>(call.with), VDesk, Quorl, ScreenW(), ScreenH());
    return ScrollView(call.window, corner.x, corner.y, SV_ABSOLUTE, call.row);
}

int CenterOnActive(const ActionCall& call) {
    return CenterOnActiveWindow(call.window);
}

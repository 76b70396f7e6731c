#include "toolwin/placement.h"

#include "core/rect.h"
#include "core/state.h"
#include "core/steps.h"
#include "scroll/desktop_size.h"
#include "status/status_strip.h"

// One axis: the near edge first, then the far one.
static void SnapEdges(LONG& nearEdge, LONG& farEdge, int border, int screen) {
    const int size = Wrap(0LL + farEdge - nearEdge);
    if (nearEdge < border) {
        nearEdge = 0;
        farEdge = size;
    }
    if (farEdge > screen - border) {
        nearEdge = Wrap(0LL + nearEdge + screen - farEdge);
        farEdge = screen;
    }
}

RECT SnapRect(const RECT& rect, int border, int screenW, int screenH) {
    RECT snapped = rect;
    SnapEdges(snapped.left, snapped.right, border, screenW);
    SnapEdges(snapped.top, snapped.bottom, border, screenH);
    return snapped;
}

static bool MoveTo(const RECT& rect) {
    return MoveWindow(MainWnd, rect.left, rect.top, Width(rect), Height(rect), TRUE) != 0;
}

bool MoveToolwin(int dx, int dy) {
    RECT before{};
    if (!GetWindowRect(MainWnd, &before))
        return false;
    MeasureScreen(); // the displays may have changed since the last move
    RECT rect = Offset(before, dx, dy);
    if (IsOn(ACTION_SNAP))
        rect = SnapRect(rect, Options.border, ScreenW(), ScreenH());
    ShowTip("Toolwin: %d,%d - %d,%d", static_cast<int>(rect.left), static_cast<int>(rect.top),
            static_cast<int>(rect.right), static_cast<int>(rect.bottom));
    return MoveTo(rect);
}

int StepToolwin(const ActionCall& call) {
    const POINT step = StepDelta(call.argument);
    return MoveToolwin(step.x, step.y);
}

int ResizeToolwin(const ActionCall& call) {
    RECT rect{};
    if (!GetWindowRect(MainWnd, &rect))
        return 0;
    const POINT step = StepDelta(call.argument);
    rect.right = Wrap(0LL + rect.right + step.x);
    rect.bottom = Wrap(0LL + rect.bottom + step.y);
    return MoveTo(rect);
}

int ToggleToolwin(const ActionCall&) {
    int& bShown = ActionTable[ACTION_SHOW_TOOLWIN].value;
    bShown = !bShown;
    ShowWindow(MainWnd, bShown ? SW_SHOW : SW_HIDE);
    return 1;
}

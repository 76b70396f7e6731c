#include "toolwin/placement.h"

#include "core/dpi.h"
#include "core/rect.h"
#include "core/state.h"
#include "core/steps.h"
#include "scroll/display_change.h"
#include "status/status_strip.h"
#include "windows/other_window.h"

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

void ScaleToolwin() {
    WindowFrame frame{};
    const int dpi = DpiOf(MainWnd);
    if (dpi == DEFAULT_DPI || !ReadWindowFrame(MainWnd, &frame))
        return;
    const RECT& rect = frame.visible;
    MoveOwnWindow(MainWnd, frame,
                  {rect.left, rect.top, Wrap(0LL + rect.left + Scale(Width(rect), dpi, DEFAULT_DPI)),
                   Wrap(0LL + rect.top + Scale(Height(rect), dpi, DEFAULT_DPI))});
}

void MoveToolwin(int dx, int dy) {
    WindowFrame frame{};
    if (!ReadWindowFrame(MainWnd, &frame))
        return;
    CheckDisplays(); // the displays may have changed since the last move
    RECT rect = Offset(frame.visible, dx, dy);
    if (IsOn(ACTION_SNAP))
        rect = SnapRect(rect, Options.border, ScreenW(), ScreenH());
    ShowTip("Toolwin: %d,%d - %d,%d", static_cast<int>(rect.left), static_cast<int>(rect.top),
            static_cast<int>(rect.right), static_cast<int>(rect.bottom));
    MoveOwnWindow(MainWnd, frame, rect);
}

void StepToolwin(const ActionCall& call) {
    const POINT step = StepDelta(call.argument);
    MoveToolwin(step.x, step.y);
}

void ResizeToolwin(const ActionCall& call) {
    WindowFrame frame{};
    if (!ReadWindowFrame(MainWnd, &frame))
        return;
    const POINT step = StepDelta(call.argument);
    RECT rect = frame.visible;
    rect.right = Wrap(0LL + rect.right + step.x);
    rect.bottom = Wrap(0LL + rect.bottom + step.y);
    MoveOwnWindow(MainWnd, frame, rect);
}

void ToggleToolwin(const ActionCall&) {
    int& bShown = ActionTable[ACTION_SHOW_TOOLWIN].value;
    bShown = !bShown;
    ShowWindow(MainWnd, bShown ? SW_SHOWNA : SW_HIDE);
}

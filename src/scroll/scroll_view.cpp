#include "scroll/scroll_view.h"

#include "actions/action_table.h"
#include "core/rect.h"
#include "core/state.h"
#include "scroll/shift.h"
#include "status/status_strip.h"
#include "windows/other_window.h"

static int ScrollCount; // calls of ScrollView

namespace {

// The view after a scroll, and the distance by which it scrolled. If the old view did not have the size of
// the screen, as after a display change, the corners need not differ by that distance.
struct ViewStep {
    RECT view;  // desktop pixels
    int dx, dy; // pixels
};

// The window that IsLeftBehind describes; null if there is none.
struct LeftBehindRecord {
    HWND window;
    POINT corner; // desktop pixels
};

} // namespace

static LeftBehindRecord LeftBehind;

static POINT DesktopCorner(const RECT& rect) {
    return {Wrap(0LL + rect.left + VDesk.left), Wrap(0LL + rect.top + VDesk.top)};
}

// Pure: the distance from the current view to (x, y) in that mode, in pixels.
static POINT ScrollDistance(const RECT& vdesk, int x, int y, ScrollMode mode) {
    switch (mode) {
    case SV_ABSOLUTE: return {Wrap(0LL + x - vdesk.left), Wrap(0LL + y - vdesk.top)};
    case SV_CENTER:
    case SV_WINDOW:
        return {Wrap(0LL + x - Width(vdesk) / 2 - vdesk.left), Wrap(0LL + y - Height(vdesk) / 2 - vdesk.top)};
    case SV_RELATIVE: break;
    }
    return {x, y};
}

// One axis: the view's near and far edge on it, and the distance.
static void ClampAxis(LONG* nearEdge, LONG* farEdge, int* distance, int desktop, int screen) {
    if (*nearEdge < 0) {
        *distance = Wrap(0LL + *distance - *nearEdge);
        *nearEdge = 0;
        *farEdge = screen;
    }
    if (*farEdge > desktop) {
        *distance = Wrap(0LL + *distance + desktop - *farEdge);
        *farEdge = desktop;
        *nearEdge = Wrap(0LL + desktop - screen);
    }
}

// Pure: the step clamped to the desktop, whose near edges are at 0.
static ViewStep ClampStep(const RECT& vdesk, POINT distance, const RECT& quorl, int screenW, int screenH) {
    const int dx = distance.x;
    const int dy = distance.y;
    ViewStep step{Offset(vdesk, dx, dy), dx, dy};
    ClampAxis(&step.view.left, &step.view.right, &step.dx, quorl.right, screenW);
    ClampAxis(&step.view.top, &step.view.bottom, &step.dy, quorl.bottom, screenH);
    return step;
}

void SetView(POINT corner) {
    const RECT view{corner.x, corner.y, Wrap(0LL + corner.x + ScreenW()), Wrap(0LL + corner.y + ScreenH())};
    VDesk = ClampStep(view, {0, 0}, Quorl, ScreenW(), ScreenH()).view;
}

// Shown for every second call. The view's coordinates replace it, so it is seen only if windows respond
// slowly.
static void ShowCount(int id) {
    if (ScrollCount % 2 == 0)
        ShowTip("CTR: %d  ID: %d", ScrollCount, id);
    ++ScrollCount;
}

void ShowView() {
    ShowTip("VDesk: %d,%d - %d,%d", static_cast<int>(VDesk.left), static_cast<int>(VDesk.top),
            static_cast<int>(VDesk.right), static_cast<int>(VDesk.bottom));
}

// Windows denies the foreground to a process that did not receive the last input.
static void TakeForeground() {
    SetForegroundWindow(MainWnd);
    const HWND active = GetForegroundWindow();
    if (active) // null while the foreground changes
        LeftBehind.window = active != MainWnd ? active : nullptr;
}

// After the shift, which may have moved the window by a little more or less than the view.
static void RecordLeftBehind() {
    RECT rect{};
    if (LeftBehind.window && GetVisibleRect(LeftBehind.window, &rect))
        LeftBehind.corner = DesktopCorner(rect);
}

bool IsLeftBehind(HWND active) {
    RECT rect{};
    if (!active)
        return false; // the foreground is changing, perhaps back to the same window
    if (active == LeftBehind.window && GetVisibleRect(active, &rect)) {
        const POINT corner = DesktopCorner(rect);
        if (corner.x == LeftBehind.corner.x && corner.y == LeftBehind.corner.y)
            return true;
    }
    LeftBehind.window = nullptr;
    return false;
}

bool ScrollView(HWND window, int x, int y, ScrollMode mode, int id) {
    if (!MayScroll())
        return false;
    ShowCount(id);
    const RECT before = VDesk;
    // So that following does not scroll back. Not if a window is activated afterwards: losing the foreground
    // in between would close its open menu.
    const bool bTakes = IsOn(ACTION_FOLLOW_ACTIVE) && mode != SV_WINDOW;
    if (bTakes)
        TakeForeground();
    const ViewStep step = ClampStep(before, ScrollDistance(before, x, y, mode), Quorl, ScreenW(), ScreenH());
    VDesk = step.view;
    ShiftWindows(Wrap(0LL - step.dx), Wrap(0LL - step.dy));
    if (bTakes)
        RecordLeftBehind();
    ShowView();
    Repaint(window);
    return before.left != VDesk.left || before.top != VDesk.top;
}

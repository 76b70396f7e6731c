// News of the mouse from wherever it is.
#include "mouse/hook_mouse.h"

#include "actions/action_table.h"
#include "core/coordinates.h"
#include "core/foreground.h"
#include "core/keys.h"
#include "core/state.h"
#include "mouse/edge_scroll.h"
#include "toolwin/tip.h"

static const int TITLE_LIMIT = 1000;

static int IsOn(ActionId row) {
    return ActionTable[row].value != 0;
}

// Along the owners of dialogs and pop-ups too, up to the program's own window.
static HWND Outermost(HWND window) {
    while (const HWND parent = GetParent(window))
        window = parent;
    return window;
}

// Focus follows the mouse. A window without a title is left alone.
static void FocusUnder(POINT cursor) {
    const HWND under = WindowFromPoint(cursor);
    if (under == GetForegroundWindow())
        return;
    MessageBeep(0);
    const HWND window = Outermost(under);
    char title[TITLE_LIMIT];
    if (!GetWindowTextA(window, title, TITLE_LIMIT)) {
        MessageBeep(0);
        return;
    }
    Tell("%s", title);
    GiveForeground(window);
}

static int OnMove(HWND window, POINT cursor, int cause) {
    MeasureScreen(); // a change of display is noticed here
    const int bEdge = IsOn(ROW_FOLLOW_MOUSE);
    if (bEdge && !(IsOn(ROW_SUPPRESS_WHEN_DRAGGING) && (IsHeld(VK_LBUTTON) || IsHeld(VK_RBUTTON))))
        EdgeScroll(window, &cursor, cause);
    if (IsOn(ROW_QUICK_REDRAW) && (IsHeld(VK_LBUTTON) || IsHeld(VK_MBUTTON) || IsHeld(VK_RBUTTON)))
        Repaint(MainWnd);
    if (IsOn(ROW_XWIN_MOUSE))
        FocusUnder(cursor);
    return 0;
}

static int OnClick(HWND window, POINT cursor, int cause) {
    const int result = IsOn(ROW_FOLLOW_MOUSE) && EdgeScroll(window, &cursor, cause);
    Repaint(MainWnd);
    return result;
}

static int OnRelease(HWND, POINT, int) {
    MeasureScreen();
    Repaint(MainWnd);
    return 0;
}

namespace {

struct MousePath {
    UINT message;
    int (*does)(HWND window, POINT cursor, int cause);
    int cause;
};

} // namespace

// The most frequent first.
static const MousePath MousePaths[] = {
    {WM_MOUSEMOVE,     OnMove,    CAUSE_MOVE       },
    {WM_NCMOUSEMOVE,   OnMove,    CAUSE_MOVE       },
    {WM_LBUTTONDOWN,   OnClick,   CAUSE_LEFT_CLICK },
    {WM_NCLBUTTONDOWN, OnClick,   CAUSE_LEFT_CLICK },
    {WM_RBUTTONDOWN,   OnClick,   CAUSE_RIGHT_CLICK},
    {WM_NCRBUTTONDOWN, OnClick,   CAUSE_RIGHT_CLICK},
    {WM_LBUTTONUP,     OnRelease, 0                },
    {WM_RBUTTONUP,     OnRelease, 0                },
};

int OnHookMouse(HWND window, UINT mouseMessage) {
    POINT cursor{};
    if (!GetCursorPos(&cursor))
        return 0; // another desktop, as while the station is locked
    for (const MousePath& path : MousePaths)
        if (path.message == mouseMessage)
            return path.does(window, cursor, path.cause);
    return 0;
}

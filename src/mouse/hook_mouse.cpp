#include "mouse/hook_mouse.h"

#include "actions/action_table.h"
#include "core/displays.h"
#include "core/keys.h"
#include "core/state.h"
#include "mouse/edge_scroll.h"
#include "scroll/display_change.h"
#include "status/status_strip.h"
#include "windows/other_window.h"

static const int TITLE_LIMIT = 1000;

// Follows the owners of dialogs and pop-ups, up to the program's main window.
static HWND Outermost(HWND window) {
    while (const HWND parent = GetParent(window))
        window = parent;
    return window;
}

// Focus follows the mouse. A window without a title is left alone.
static void ActivateWindowUnderCursor() {
    POINT cursor{};
    GetCursorPos(&cursor);
    const HWND under = WindowFromPoint(cursor);
    if (under == GetForegroundWindow())
        return;
    MessageBeep(0);
    const HWND window = Outermost(under);
    WCHAR title[TITLE_LIMIT];
    if (!GetWindowTextW(window, title, TITLE_LIMIT)) {
        MessageBeep(0);
        return;
    }
    ShowTitleTip("", title, "");
    ActivateWindow(window);
}

static int OnMove(HWND window, POINT cursor, EdgeCause cause) {
    CheckDisplays(); // notices a change of display
    if (IsOn(ACTION_FOLLOW_MOUSE) &&
        !(IsOn(ACTION_SUPPRESS_SCROLL) && (IsHeld(VK_LBUTTON) || IsHeld(VK_RBUTTON))))
        EdgeScroll(window, cursor, cause);
    if (IsOn(ACTION_QUICK_REDRAW) && IsAnyButtonHeld())
        Repaint(MainWnd);
    if (IsOn(ACTION_XWIN_MOUSE))
        ActivateWindowUnderCursor();
    return 0;
}

static int OnClick(HWND window, POINT cursor, EdgeCause cause) {
    const int result = IsOn(ACTION_FOLLOW_MOUSE) && EdgeScroll(window, cursor, cause);
    Repaint(MainWnd);
    return result;
}

static int OnRelease(HWND, POINT, EdgeCause) {
    CheckDisplays();
    Repaint(MainWnd);
    return 0;
}

namespace {

struct MouseHandler {
    UINT message;
    int (*handler)(HWND window, POINT cursor, EdgeCause cause);
    EdgeCause cause;
};

} // namespace

// The most frequent first.
static const MouseHandler MouseHandlers[] = {
    {WM_MOUSEMOVE, OnMove, CAUSE_MOVE},           {WM_NCMOUSEMOVE, OnMove, CAUSE_MOVE},
    {WM_LBUTTONDOWN, OnClick, CAUSE_LEFT_CLICK},  {WM_NCLBUTTONDOWN, OnClick, CAUSE_LEFT_CLICK},
    {WM_RBUTTONDOWN, OnClick, CAUSE_RIGHT_CLICK}, {WM_NCRBUTTONDOWN, OnClick, CAUSE_RIGHT_CLICK},
    {WM_LBUTTONUP, OnRelease, CAUSE_MOVE},        {WM_RBUTTONUP, OnRelease, CAUSE_MOVE},
};

int OnHookMouse(HWND window, UINT mouseMessage) {
    POINT cursor{};
    if (!ReadCursor(&cursor))
        return 0; // another desktop, for example while the workstation is locked
    for (const MouseHandler& row : MouseHandlers)
        if (row.message == mouseMessage)
            return row.handler(window, cursor, row.cause);
    return 0;
}

// The map's window procedure: a table of messages and their handlers.
#include "app/main_window.h"

#include "actions/dispatch.h"
#include "actions/hotkeys.h"
#include "app/create.h"
#include "app/quit.h"
#include "core/rect.h"
#include "core/state.h"
#include "hook/hook_message.h"
#include "menus/tray.h"
#include "mouse/hook_mouse.h"
#include "mouse/map_buttons.h"
#include "mouse/map_hover.h"
#include "scroll/display_change.h"
#include "toolwin/map.h"
#include "toolwin/placement.h"
#include "windows/foreground.h"

static LRESULT OnCreateMessage(HWND window, UINT, WPARAM, LPARAM) {
    OnCreate(window);
    return 0;
}

static LRESULT OnDisplayMessage(HWND, UINT, WPARAM, LPARAM) {
    OnDisplayChange();
    return 0;
}

// WM_CLOSE does not destroy the window: it ends with the process.
static LRESULT OnQuitMessage(HWND window, UINT, WPARAM, LPARAM) {
    ConfirmQuit(window);
    return 0;
}

// wParam is 0 if another program cancelled the end of the session.
static LRESULT OnSessionEnd(HWND window, UINT, WPARAM wParam, LPARAM) {
    if (wParam)
        EndSession(window);
    return 0;
}

// The map is used without taking the focus from the program that the user works with.
static LRESULT OnMouseActivate(HWND, UINT, WPARAM, LPARAM) {
    NoteForeground();
    return MA_NOACTIVATE;
}

static LRESULT OnColorsChanged(HWND window, UINT, WPARAM, LPARAM) {
    BackBrush = GetSysColorBrush(COLOR_BACKGROUND);
    Repaint(window);
    return 0;
}

static LRESULT OnSettingChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (wParam == SPI_SETWORKAREA)
        OnDisplayChange();
    return OnColorsChanged(window, message, wParam, lParam);
}

static LRESULT OnSizeLimits(HWND, UINT, WPARAM, LPARAM lParam) {
    MINMAXINFO& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    limits.ptMinTrackSize = {MIN_TOOLWIN.cx, MIN_TOOLWIN.cy};
    limits.ptMaxTrackSize = {MAX_TOOLWIN.cx, MAX_TOOLWIN.cy};
    return 0;
}

static LRESULT OnHookMessage(HWND window, UINT, WPARAM wParam, LPARAM) {
    return OnHookMouse(window, static_cast<UINT>(wParam));
}

static LRESULT OnHotkey(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const DWORD time = static_cast<DWORD>(GetMessageTime()); // the action can handle other messages
    DoAction(window, static_cast<int>(wParam), GetForegroundWindow());
    DropKeyRepeats(window, wParam, lParam, time);
    return DefWindowProcA(window, message, wParam, lParam);
}

static LRESULT OnMouseMove(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    const POINT point = MousePosition(lParam);
    OnToolwinMouseMove(window, point.x, point.y, wParam);
    return 0;
}

static LRESULT OnTray(HWND window, UINT, WPARAM, LPARAM lParam) {
    OnTrayMessage(window, lParam);
    return 0;
}

static LRESULT OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PaintMap(window);
    return 0;
}

// WM_PAINT draws the background too.
static LRESULT OnEraseBackground(HWND, UINT, WPARAM, LPARAM) {
    return 1;
}

static LRESULT OnDesktopSizeQuery(HWND, UINT, WPARAM, LPARAM lParam) {
    if (auto* limits = reinterpret_cast<MINMAXINFO*>(lParam))
        limits->ptMaxTrackSize = {Quorl.right, Quorl.bottom};
    return 0;
}

namespace {

struct MessageHandler {
    UINT message;
    LRESULT (*handler)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

} // namespace

// A query for the desktop's size that Quorl itself never sends. lParam is not validated: it must point to a
// MINMAXINFO of this process.
static const UINT DESKTOP_SIZE_MESSAGE = 1134;

static const MessageHandler MessageHandlers[] = {
    {HOOK_MOUSE_MESSAGE, OnHookMessage}, // up to hundreds per second
    {WM_PAINT, OnPaint},
    {WM_ERASEBKGND, OnEraseBackground},
    {WM_HOTKEY, OnHotkey},
    {WM_MOUSEMOVE, OnMouseMove},
    {WM_LBUTTONDOWN, OnMapLeftPress},
    {WM_LBUTTONUP, OnMapRelease},
    {WM_RBUTTONDOWN, OnMapRightPress},
    {WM_RBUTTONUP, OnMapRelease},
    {WM_MBUTTONDOWN, OnMapMiddlePress},
    {WM_MBUTTONUP, OnMapMiddleRelease},
    {WM_GETMINMAXINFO, OnSizeLimits},
    {WM_CREATE, OnCreateMessage},
    {WM_DESTROY, OnQuitMessage},
    {WM_CLOSE, OnQuitMessage},
    {WM_QUIT, OnQuitMessage},
    {WM_ENDSESSION, OnSessionEnd},
    {WM_MOUSEACTIVATE, OnMouseActivate},
    {WM_SYSCOLORCHANGE, OnColorsChanged},
    {WM_SETTINGCHANGE, OnSettingChange},
    {WM_DISPLAYCHANGE, OnDisplayMessage},
    {WM_DEVMODECHANGE, OnColorsChanged},
    {TRAY_MESSAGE, OnTray},
    {DESKTOP_SIZE_MESSAGE, OnDesktopSizeQuery},
};

LRESULT CALLBACK MainWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    for (const MessageHandler& row : MessageHandlers)
        if (row.message == message)
            return row.handler(window, message, wParam, lParam);
    if (IsTaskbarCreated(message)) {
        AddTrayIcon(window);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

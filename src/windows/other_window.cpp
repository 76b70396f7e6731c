#include "windows/other_window.h"

#include <cstring>

bool GetOtherWindowRect(HWND window, RECT* rect) {
    return GetWindowRect(window, rect) != 0;
}

// A send that hangs would hang Quorl, so every message to another program goes through here.
static bool SendBounded(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT timeout) {
    DWORD_PTR result = 0;
    SetLastError(0); // some systems leave the error unchanged after a timeout
    return SendMessageTimeoutA(window, message, wParam, lParam, SMTO_ABORTIFHUNG, timeout, &result) != 0;
}

bool IsAlive(HWND window) {
    return SendBounded(window, WM_NULL, 0, 0, SCROLL_TIMEOUT);
}

static bool PingWithPosition(HWND window, WindowPosition* position, UINT timeout) {
    return SendBounded(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(position), timeout);
}

static void Move(HWND window, const WindowPosition& position) {
    MoveWindow(window, position.x, position.y, position.width, position.height, TRUE);
}

// The error after a timeout: 0 on the oldest systems, ERROR_TIMEOUT on all others.
static bool IsTimeout(DWORD error) {
    return error == 0 || error == ERROR_TIMEOUT;
}

MoveResult PingAndMove(HWND window, WindowPosition position, UINT timeout) {
    if (!PingWithPosition(window, &position, timeout))
        return IsTimeout(GetLastError()) ? MOVE_TIMED_OUT : MOVE_REFUSED;
    Move(window, position);
    return MOVED;
}

void PingMoveAndShow(HWND window, const WindowPosition& position) {
    if (PingAndMove(window, position, SCROLL_TIMEOUT) == MOVED)
        ShowWindow(window, SW_SHOW);
}

void MoveIfAlive(HWND window, const WindowPosition& position) {
    if (IsAlive(window))
        Move(window, position);
}

bool RestoreIfZoomed(HWND window) {
    if (!IsZoomed(window))
        return true;
    if (!IsAlive(window))
        return false;
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, SW_RESTORE);
    return true;
}

bool IsListView(HWND window) {
    static const char listViewClass[] = "SysListView32";
    char name[256] = "";
    GetClassNameA(window, name, 255);
    return !std::strncmp(name, listViewClass, sizeof listViewClass - 1);
}

bool ScrollListView(HWND window, int dx, int dy) {
    return SendBounded(window, LVM_SCROLL, static_cast<WPARAM>(dx), dy, SCROLL_TIMEOUT);
}

bool RaiseWindow(HWND window) {
    SetActiveWindow(window);
    BringWindowToTop(window);
    return SetForegroundWindow(window) != 0;
}

// SetFocus and SetActiveWindow act on our own windows, the other two on any.
bool ActivateWindow(HWND window) {
    if (!IsAlive(window))
        return false;
    SetFocus(window);
    return RaiseWindow(window);
}

void FocusOtherWindow(HWND window) {
    if (!IsAlive(window))
        return;
    SetForegroundWindow(window);
    SetFocus(window);
    SetActiveWindow(window);
}

// Hidden meanwhile, because some windows change their position in the z-order only when they are shown again.
void ToggleTopmost(HWND window) {
    if (!IsAlive(window))
        return;
    const bool bTopmost = (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    ShowWindow(window, SW_HIDE);
    SetWindowPos(window, bTopmost ? HWND_NOTOPMOST : HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    ShowWindow(window, SW_SHOW);
}

void TileOtherWindows(UINT how, const RECT& rect, const HWND* windows, UINT count) {
    TileWindows(nullptr, how, &rect, count, windows);
}

bool BroadcastScreenSaver() {
    return SendBounded(HWND_BROADCAST, WM_SYSCOMMAND, SC_SCREENSAVE, 0, SCROLL_TIMEOUT);
}

// Moving all windows together.
#include "scroll/shift.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/window_table.h"

#include <cstring>

WindowPlace ShiftedPlace(const RECT& window, int dx, int dy, const RECT& vdesk, const RECT& quorl,
                         int border) {
    const LONG width = window.right - window.left;
    const LONG height = window.bottom - window.top;
    WindowPlace place{window.left + dx, window.top + dy, width, height};
    if (place.x > quorl.right)
        place.x = quorl.right - border - width;
    if (place.x + vdesk.left < 0)
        place.x = -vdesk.left;
    if (place.y > quorl.bottom)
        place.y = quorl.bottom - border - height;
    if (place.y + vdesk.top < 0)
        place.y = -vdesk.top;
    return place;
}

int AcceptsPlace(HWND window, WindowPlace* place, UINT patience) {
    DWORD_PTR result = 0;
    SetLastError(0); // a send that is given up leaves the error alone on some systems
    return SendMessageTimeoutA(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(place), SMTO_ABORTIFHUNG,
                               patience, &result) != 0;
}

static int IsListView(HWND window) {
    static const char listViewClass[] = "SysListView32";
    char name[256] = "";
    GetClassNameA(window, name, 255);
    return !std::strncmp(name, listViewClass, sizeof listViewClass - 1);
}

int IsAlive(HWND window) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, SCROLL_PATIENCE, &result) != 0;
}

void PlaceWindow(HWND window, WindowPlace place) {
    if (!AcceptsPlace(window, &place, SCROLL_PATIENCE))
        return;
    MoveWindow(window, place.x, place.y, place.width, place.height, TRUE);
    ShowWindow(window, SW_SHOW);
}

// A list view that is a window of its own scrolls its contents as well. Bounded like the ping: a plain send
// would wait for a hung program for ever. 0: it did not answer.
static int ScrollListView(HWND window, int dx, int dy) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutA(window, LVM_SCROLL, static_cast<WPARAM>(dx), dy, SMTO_ABORTIFHUNG,
                               SCROLL_PATIENCE, &result) != 0;
}

// 0: it should be restored and does not answer.
static int RestoreIfZoomed(HWND window) {
    if (!ActionTable[ROW_RESTORE_MAXIMIZED].value || !IsZoomed(window))
        return 1;
    if (!IsAlive(window))
        return 0;
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, SW_RESTORE);
    return 1;
}

static void ShiftWindow(HWND window, const RECT& before, int dx, int dy) {
    if (RestoreIfZoomed(window))
        PlaceWindow(window, ShiftedPlace(before, dx, dy, VDesk, Quorl, Options.border));
}

void ShiftWindows(int dx, int dy) {
    if (bQuitting)
        return;
    for (int row = 0; row < num_windows; ++row) {
        const HWND window = WindowTable[row].hwnd;
        if (IsListView(window) && !ScrollListView(window, dx, dy))
            continue; // the ping would wait a second time for the same program
        RECT before{};
        if (IsManagedWindow(window, &before) && !IsLockedWindow(window))
            ShiftWindow(window, before, dx, dy);
    }
}

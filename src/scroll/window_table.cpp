// The snapshot of all top-level windows, and which of them Quorl may touch.
#include "scroll/window_table.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "toolwin/tip.h"

#include <cstring>

WindowRow WindowTable[MAX_WINDOWS];
int num_windows;

constexpr DWORD DWMWA_CLOAKED = 14; // the compositor's header is no part of the plain Windows ones

// Windows that belong to the desktop itself, or to Quorl: they stay in sight. Since Windows 7 the wallpaper
// can have a host of its own, WorkerW, and each further display has its task bar.
static const char* const FixedClasses[] = {"Progman", "Shell_TrayWnd", TIP_CLASS, "WorkerW",
                                           "Shell_SecondaryTrayWnd"};

// Tool bars that programs keep as windows of their own.
static const char* const ToolbarClasses[] = {"BaseBar", "ToolbarWindow32", "ReBarWindow32"};

BOOL CALLBACK AddWindowRow(HWND window, LPARAM) {
    if (num_windows >= MAX_WINDOWS)
        return FALSE;
    RECT place{}; // a window that has gone meanwhile has a row without area until the next refresh
    GetWindowRect(window, &place);
    WindowTable[num_windows++] = {window, 0, place.left, place.top, place.right, place.bottom};
    return TRUE;
}

void RebuildWindowTable() {
    const int before = num_windows;
    num_windows = 0;
    if (!EnumWindows(AddWindowRow, 0) && num_windows == 0)
        num_windows = before; // the old rows are whole, and better than none
}

template <std::size_t Count>
static int IsOneOf(const char* name, const char* const (&names)[Count]) {
    for (const char* candidate : names)
        if (!std::strcmp(name, candidate))
            return 1;
    return 0;
}

static int HasFixedClass(HWND window) {
    char name[128] = "";
    if (!GetClassNameA(window, name, 127) || IsOneOf(name, FixedClasses))
        return 1; // a window without a name has just gone
    return ActionTable[ROW_IGNORE_TOOLWINS].value && IsOneOf(name, ToolbarClasses);
}

// Since Windows 8 the compositor keeps windows out of sight that all calls tell to be visible, as those of
// suspended programs and of other virtual desktops.
static int IsCloaked(HWND window) {
    DWORD reasons = 0;
    return pDwmGetWindowAttribute &&
           pDwmGetWindowAttribute(window, DWMWA_CLOAKED, &reasons, sizeof reasons) >= 0 && reasons;
}

int IsManagedPlace(const RECT& place, const RECT& quorl) {
    return place.left != place.right && place.top != place.bottom && place.left <= quorl.right &&
           place.top <= quorl.bottom;
}

// The cheap tests come first; most windows of a system are invisible.
int IsManagedWindow(HWND window, RECT* place) {
    if (!window || !IsWindowEnabled(window) || !IsWindowVisible(window) || window == GetDesktopWindow() ||
        IsIconic(window) || HasFixedClass(window) || window == MainWnd || window == TipWnd ||
        IsCloaked(window))
        return 0;
    RECT now{};
    if (!GetWindowRect(window, &now) || !IsManagedPlace(now, Quorl))
        return 0;
    if (place)
        *place = now;
    return 1;
}

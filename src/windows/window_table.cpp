#include "windows/window_table.h"

#include "actions/action_table.h"
#include "core/rect.h"
#include "core/state.h"

#include <cstring>

WindowRow WindowTable[MAX_WINDOWS];
int num_windows;
POINT WindowTableView;
DisplayLayout WindowTableDisplays;

constexpr DWORD DWMWA_CLOAKED = 14; // declared in a header of its own, which the in-memory desktop lacks

// The shell's windows stay on the screen. Since Windows 7 WorkerW can host the wallpaper, and each further
// display has a taskbar.
static const char* const ShellClasses[] = {"Progman", "Shell_TrayWnd", "WorkerW", "Shell_SecondaryTrayWnd"};

// Start, the task switcher and the overflow of the notification area: they are in the foreground while they
// are open, and a command then means no window.
static const char* const ShellPopupClasses[] = {"Windows.UI.Core.CoreWindow", "XamlExplorerHostIslandWindow",
                                                "MultitaskingViewFrame", "NotifyIconOverflowWindow",
                                                "TopLevelWindowForOverflowXamlIsland"};

// Tool bars that programs keep as top-level windows.
static const char* const ToolbarClasses[] = {"BaseBar", "ToolbarWindow32", "ReBarWindow32"};

// The callback of EnumWindows; FALSE ends the enumeration when the table is full.
static BOOL CALLBACK AddWindowRow(HWND window, LPARAM) {
    if (num_windows >= MAX_WINDOWS)
        return FALSE;
    WindowRow& row = WindowTable[num_windows++];
    row = {window, {}, false}; // a window that has just gone keeps the empty rectangle until the next rebuild
    row.bShown = GetWindowRect(window, &row.rect) && IsWindowVisible(window) && !IsIconic(window);
    return TRUE;
}

void RebuildWindowTable() {
    const int before = num_windows;
    num_windows = 0;
    WindowTableView = {VDesk.left, VDesk.top};
    WindowTableDisplays = Displays;
    if (!EnumWindows(AddWindowRow, 0) && num_windows == 0)
        num_windows = before; // old rows are better than none
}

bool HasAnyWindowMoved() {
    for (int i = 0; i < num_windows; ++i) {
        RECT now{};
        if (!GetWindowRect(WindowTable[i].hwnd, &now) || !IsSameRect(now, WindowTable[i].rect))
            return true;
    }
    return false;
}

template <std::size_t Count>
static bool IsOneOf(const char* name, const char* const (&names)[Count]) {
    for (const char* candidate : names)
        if (!std::strcmp(name, candidate))
            return true;
    return false;
}

static bool HasFixedClass(HWND window) {
    char name[128] = "";
    if (!GetClassNameA(window, name, 127) || IsOneOf(name, ShellClasses) || !std::strcmp(name, TIP_CLASS))
        return true; // every class has a name: this window has just gone
    return IsOn(ACTION_IGNORE_TOOLWINS) && IsOneOf(name, ToolbarClasses);
}

// Since Windows 8 the compositor can cloak windows that IsWindowVisible still reports as visible: those of
// suspended programs and of other virtual desktops.
static bool IsCloaked(HWND window) {
    DWORD reasons = 0;
    return pDwmGetWindowAttribute &&
           pDwmGetWindowAttribute(window, DWMWA_CLOAKED, &reasons, sizeof reasons) >= 0 && reasons;
}

// Screen pixels are compared with the desktop's size, without the view's corner: a window beyond it is not
// managed.
static bool IsManagedRect(const RECT& rect) {
    return rect.left != rect.right && rect.top != rect.bottom && rect.left <= Quorl.right &&
           rect.top <= Quorl.bottom;
}

static bool HasBoth(LONG_PTR style, LONG_PTR first, LONG_PTR second) {
    return (style & first) && (style & second);
}

// The styles of overlays, as of games and recorders. These would cover the map, and dragging on it would hit
// them. A tool window that belongs to a program has an owner.
static bool IsOverlay(HWND window) {
    const LONG_PTR style = GetWindowLongPtrA(window, GWL_EXSTYLE);
    const bool bOverlayStyle = HasBoth(style, WS_EX_NOACTIVATE, WS_EX_TOOLWINDOW) ||
                               HasBoth(style, WS_EX_LAYERED, WS_EX_TRANSPARENT);
    return bOverlayStyle && !GetWindowLongPtrA(window, GWLP_HWNDPARENT);
}

bool IsUserWindow(HWND window) {
    return window && IsWindowVisible(window) && window != GetDesktopWindow() && window != MainWnd &&
           !HasFixedClass(window) && !IsOverlay(window);
}

// The cheap tests come first; most windows of a system are invisible.
bool IsManagedWindow(HWND window, WindowFrame* frame) {
    if (!window || !IsWindowEnabled(window) || !IsUserWindow(window) || IsIconic(window) || IsCloaked(window))
        return false;
    WindowFrame now{};
    if (!ReadWindowFrame(window, &now) || !IsManagedRect(now.visible))
        return false;
    if (frame)
        *frame = now;
    return true;
}

bool IsShellWindow(HWND window) {
    char name[128] = "";
    GetClassNameA(window, name, 127);
    return IsOneOf(name, ShellClasses) || IsOneOf(name, ShellPopupClasses);
}

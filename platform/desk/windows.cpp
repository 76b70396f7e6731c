// Classes, creation and end, enumeration, titles, styles.
#include "ground.h"

#include <algorithm>

static auto ClassNamed(LPCSTR name) {
    return std::find_if(
        Desk.classes.begin(), Desk.classes.end(),
        [wanted = LowerCase(name)](const auto& row) { return LowerCase(row.first) == wanted; });
}

ATOM RegisterClassA(const WNDCLASSA* description) {
    if (Fails("RegisterClassA"))
        return 0;
    if (ClassNamed(description->lpszClassName) != Desk.classes.end()) {
        Desk.lastError = ERROR_CLASS_ALREADY_EXISTS;
        return 0;
    }
    Desk.classes.emplace(description->lpszClassName, *description);
    return static_cast<ATOM>(0xC000 + Desk.classes.size());
}

// The procedure is asked for its limits before it hears that the window exists. WM_CREATE runs inside the
// creation; -1 from it undoes the window.
static int Announce(HWND handle) {
    ApplyLimits(RowOf(handle));
    if (CallProcedure(handle, WM_NCCREATE, 0, 0) && CallProcedure(handle, WM_CREATE, 0, 0) != -1) {
        TellSize(handle);
        TellPlace(handle);
        return Living(handle) != nullptr;
    }
    CallProcedure(handle, WM_NCDESTROY, 0, 0);
    if (Living(handle))
        KillWindow(handle);
    return 0;
}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU, HINSTANCE instance, LPVOID) {
    if (Fails("CreateWindowExA"))
        return nullptr;
    const auto found = ClassNamed(className);
    if (found == Desk.classes.end())
        return nullptr;
    const RECT place{x, y, x + std::max(width, 0), y + std::max(height, 0)};
    const HWND handle = OpenWindow(title ? title : "", place, found->first.c_str());
    DeskWindow& window = RowOf(handle);
    window.style = style & ~WS_VISIBLE;
    window.exStyle = exStyle;
    window.owner = parent;
    window.instance = instance;
    window.procedure = found->second.lpfnWndProc;
    Raise(handle);
    if (!Announce(handle))
        return nullptr;
    if (style & WS_VISIBLE)
        ShowWindow(handle, SW_SHOW);
    return handle;
}

BOOL DestroyWindow(HWND window) {
    const DeskWindow* row = Fails("DestroyWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    if (!row->procedure) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return FALSE;
    }
    CallProcedure(window, WM_DESTROY, 0, 0);
    CallProcedure(window, WM_NCDESTROY, 0, 0);
    if (Living(window))
        KillWindow(window);
    return TRUE;
}

BOOL IsWindow(HWND window) {
    return !Fails("IsWindow") && Named(window);
}

HWND FindWindowA(LPCSTR className, LPCSTR title) {
    if (Fails("FindWindowA"))
        return nullptr;
    for (const HWND handle : Desk.order) {
        const DeskWindow& window = RowOf(handle);
        if (LowerCase(window.className) == LowerCase(className) &&
            LowerCase(window.title) == LowerCase(title))
            return handle;
    }
    return nullptr;
}

// The order is copied first, as Windows does: windows may come and go while the callback runs.
BOOL EnumWindows(WNDENUMPROC callback, LPARAM parameter) {
    if (Fails("EnumWindows"))
        return FALSE;
    static std::vector<HWND> order;
    order.assign(Desk.order.begin(), Desk.order.end());
    for (const HWND handle : order)
        if (Living(handle) && !callback(handle, parameter))
            return FALSE;
    return TRUE;
}

HWND GetDesktopWindow() {
    static HWND desktop;
    if (Fails("GetDesktopWindow"))
        return nullptr;
    if (!desktop) {
        desktop = OpenWindow("", Desk.monitors.front(), "#32769");
        std::erase(Desk.order, desktop);
    }
    return desktop;
}

// The parent of a child, the owner of a pop-up; any other window has neither to show.
HWND GetParent(HWND window) {
    const DeskWindow* row = Fails("GetParent") ? nullptr : Named(window);
    return row && (row->style & (WS_CHILD | WS_POPUP)) ? row->owner : nullptr;
}

int GetClassNameA(HWND window, LPSTR text, int limit) {
    const DeskWindow* row = Fails("GetClassNameA") ? nullptr : Named(window);
    return row ? CopyText(row->className, text, limit) : 0;
}

int GetWindowTextA(HWND window, LPSTR text, int limit) {
    const DeskWindow* row = Fails("GetWindowTextA") ? nullptr : Named(window);
    return CopyText(row ? row->title : "", text, limit);
}

LONG_PTR GetWindowLongPtrA(HWND window, int index) {
    const DeskWindow* row = Fails("GetWindowLongPtrA") ? nullptr : Named(window);
    if (!row)
        return 0;
    switch (index) {
    case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(row->instance);
    case GWLP_HWNDPARENT: return reinterpret_cast<LONG_PTR>(row->owner);
    case GWL_STYLE: return static_cast<LONG_PTR>(row->style);
    case GWL_EXSTYLE: return static_cast<LONG_PTR>(row->exStyle);
    default: return 0;
    }
}

ULONG_PTR GetClassLongPtrA(HWND window, int index) {
    const DeskWindow* row = Fails("GetClassLongPtrA") ? nullptr : Named(window);
    if (!row || index != GCLP_HBRBACKGROUND)
        return 0;
    const auto found = Desk.classes.find(row->className);
    return found == Desk.classes.end() ? 0 : reinterpret_cast<ULONG_PTR>(found->second.hbrBackground);
}

BOOL IsWindowEnabled(HWND window) {
    const DeskWindow* row = Fails("IsWindowEnabled") ? nullptr : Named(window);
    return row && !(row->style & WS_DISABLED);
}

BOOL EnableWindow(HWND window, BOOL enable) {
    DeskWindow* row = Fails("EnableWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    const BOOL wasDisabled = (row->style & WS_DISABLED) != 0;
    row->style = enable ? row->style & ~WS_DISABLED : row->style | WS_DISABLED;
    return wasDisabled;
}

BOOL SetLayeredWindowAttributes(HWND window, COLORREF, BYTE alpha, DWORD flags) {
    DeskWindow* row = Fails("SetLayeredWindowAttributes") ? nullptr : Named(window);
    if (!row || !(row->exStyle & WS_EX_LAYERED))
        return FALSE;
    if (flags & LWA_ALPHA)
        row->alpha = alpha;
    return TRUE;
}

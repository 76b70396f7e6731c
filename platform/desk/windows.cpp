// Classes, creation and end, enumeration, titles, styles.
#include "controls.h"

#include <algorithm>
#include <utility>

static auto ClassNamed(LPCSTR name) {
    return std::find_if(
        Desk.classes.begin(), Desk.classes.end(),
        [wanted = LowerCase(name)](const auto& row) { return LowerCase(row.first) == wanted; });
}

static ATOM Register(const WNDCLASSA* description) {
    if (ClassNamed(description->lpszClassName) != Desk.classes.end()) {
        Desk.lastError = ERROR_CLASS_ALREADY_EXISTS;
        return 0;
    }
    Desk.classes.emplace(description->lpszClassName, *description);
    return static_cast<ATOM>(0xC000 + Desk.classes.size());
}

ATOM RegisterClassA(const WNDCLASSA* description) {
    return Fails("RegisterClassA") ? ATOM{0} : Register(description);
}

ATOM RegisterClassExA(const WNDCLASSEXA* description) {
    if (Fails("RegisterClassExA") || description->cbSize != sizeof *description)
        return 0;
    const WNDCLASSEXA& from = *description;
    const WNDCLASSA plain{from.style,        from.lpfnWndProc,  from.cbClsExtra, from.cbWndExtra,
                          from.hInstance,    from.hIcon,        from.hCursor,    from.hbrBackground,
                          from.lpszMenuName, from.lpszClassName};
    return Register(&plain);
}

// Tells no more than the style and the procedure, which is all that tells one class from another here.
BOOL GetClassInfoExA(HINSTANCE, LPCSTR name, WNDCLASSEXA* description) {
    const auto found = Fails("GetClassInfoExA") ? Desk.classes.end() : ClassNamed(name);
    if (found == Desk.classes.end())
        return FALSE;
    description->style = found->second.style;
    description->lpfnWndProc = found->second.lpfnWndProc;
    return TRUE;
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

// Name and procedure, of the program's own classes or the system's.
static SystemClass ClassFor(LPCSTR name) {
    const auto found = ClassNamed(name);
    if (found != Desk.classes.end())
        return {found->first.c_str(), found->second.lpfnWndProc};
    const SystemClass* system = SystemClassNamed(name);
    return system ? *system : SystemClass{nullptr, nullptr};
}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID) {
    if (Fails("CreateWindowExA"))
        return nullptr;
    const SystemClass found = ClassFor(className);
    const int bChild = (style & WS_CHILD) != 0;
    if (!found.procedure || (bChild && !Named(parent)))
        return nullptr;
    const POINT corner = bChild ? OnScreen(parent, x, y) : POINT{x, y};
    DeskWindow window;
    window.className = found.name;
    window.title = title ? title : "";
    window.place = {corner.x, corner.y, corner.x + std::max(width, 0), corner.y + std::max(height, 0)};
    window.style = style & ~WS_VISIBLE;
    window.exStyle = exStyle;
    window.owner = parent;
    window.id = reinterpret_cast<LONG_PTR>(menu);
    window.instance = instance;
    window.procedure = found.procedure;
    const HWND handle = NewWindow(std::move(window));
    if (!Announce(handle))
        return nullptr;
    if (style & WS_VISIBLE)
        ShowWindow(handle, SW_SHOW);
    return handle;
}

// A window hears of its end before what stands in it.
static void AnnounceEnd(HWND window) {
    CallProcedure(window, WM_DESTROY, 0, 0);
    const DeskWindow* row = Living(window);
    for (const HWND child : row ? row->children : std::vector<HWND>{})
        AnnounceEnd(child);
}

static void Vanish(HWND window) {
    const DeskWindow* row = Living(window);
    for (const HWND child : row ? row->children : std::vector<HWND>{})
        Vanish(child);
    CallProcedure(window, WM_NCDESTROY, 0, 0);
    if (Living(window))
        KillWindow(window);
}

static std::vector<HWND> OwnedBy(HWND window) {
    std::vector<HWND> owned;
    for (const HWND other : Desk.order)
        if (RowOf(other).owner == window)
            owned.push_back(other);
    return owned;
}

void EndWindow(HWND window) {
    for (const HWND owned : OwnedBy(window))
        EndWindow(owned);
    AnnounceEnd(window);
    Vanish(window);
}

BOOL DestroyWindow(HWND window) {
    const DeskWindow* row = Fails("DestroyWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    if (!row->procedure) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return FALSE;
    }
    EndWindow(window);
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
    case GWLP_ID: return row->id;
    case GWLP_USERDATA: return row->userData;
    case GWL_STYLE: return static_cast<LONG_PTR>(row->style);
    case GWL_EXSTYLE: return static_cast<LONG_PTR>(row->exStyle);
    default: return 0;
    }
}

// What stood there before.
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    DeskWindow* row = Fails("SetWindowLongPtrA") ? nullptr : Named(window);
    if (!row)
        return 0;
    switch (index) {
    case GWL_STYLE: return static_cast<LONG_PTR>(std::exchange(row->style, static_cast<DWORD>(value)));
    case GWLP_USERDATA: return std::exchange(row->userData, value);
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(std::exchange(row->owner, reinterpret_cast<HWND>(value)));
    default: return 0;
    }
}

BOOL SetWindowTextA(HWND window, LPCSTR text) {
    if (Fails("SetWindowTextA") || !Named(window))
        return FALSE;
    return CallProcedure(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
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

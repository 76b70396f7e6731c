// Window classes, creation, destruction, enumeration, titles, styles.
#include "controls.h"

#include <algorithm>
#include <utility>

static auto ClassNamed(LPCSTR name) {
    return std::find_if(
        Desk.classes.begin(), Desk.classes.end(),
        [wanted = LowerCase(name)](const auto& record) { return LowerCase(record.first) == wanted; });
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
    return CallFails("RegisterClassA") ? ATOM{0} : Register(description);
}

ATOM RegisterClassExA(const WNDCLASSEXA* description) {
    if (CallFails("RegisterClassExA") || description->cbSize != sizeof *description)
        return 0;
    const WNDCLASSEXA& from = *description;
    const WNDCLASSA plain{from.style,        from.lpfnWndProc,  from.cbClsExtra, from.cbWndExtra,
                          from.hInstance,    from.hIcon,        from.hCursor,    from.hbrBackground,
                          from.lpszMenuName, from.lpszClassName};
    return Register(&plain);
}

// Only style and procedure are filled in.
BOOL GetClassInfoExA(HINSTANCE, LPCSTR name, WNDCLASSEXA* description) {
    const auto found = CallFails("GetClassInfoExA") ? Desk.classes.end() : ClassNamed(name);
    if (found == Desk.classes.end())
        return FALSE;
    description->style = found->second.style;
    description->lpfnWndProc = found->second.lpfnWndProc;
    return TRUE;
}

// WM_GETMINMAXINFO comes before WM_NCCREATE. A WM_CREATE that returns -1 undoes
// the creation.
static bool SendCreate(HWND handle) {
    ClampSize(WindowOf(handle));
    if (CallWndProc(handle, WM_NCCREATE, 0, 0) && CallWndProc(handle, WM_CREATE, 0, 0) != -1) {
        SendSize(handle);
        SendMove(handle);
        return LiveWindow(handle) != nullptr;
    }
    CallWndProc(handle, WM_NCDESTROY, 0, 0);
    if (LiveWindow(handle))
        KillWindow(handle);
    return false;
}

// The program's class of that name, else the predefined one.
static SystemClass ClassFor(LPCSTR name) {
    const auto found = ClassNamed(name);
    if (found != Desk.classes.end())
        return {found->first.c_str(), found->second.lpfnWndProc};
    const SystemClass* system = FindSystemClass(name);
    return system ? *system : SystemClass{nullptr, nullptr};
}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID) {
    if (CallFails("CreateWindowExA"))
        return nullptr;
    const SystemClass found = ClassFor(className);
    const bool isChild = (style & WS_CHILD) != 0;
    if (!found.procedure || (isChild && !ResolveHandle(parent)))
        return nullptr;
    const POINT corner = isChild ? ToScreen(parent, x, y) : POINT{x, y};
    DeskWindow window;
    window.className = found.name;
    window.title = title ? FromAnsi(title) : "";
    window.rect = RectAt(corner.x, corner.y, std::max(width, 0), std::max(height, 0));
    window.style = style & ~WS_VISIBLE;
    window.exStyle = exStyle;
    window.owner = parent;
    window.id = reinterpret_cast<LONG_PTR>(menu);
    window.instance = instance;
    window.procedure = found.procedure;
    const HWND handle = AddWindow(std::move(window));
    if (!SendCreate(handle))
        return nullptr;
    if (style & WS_VISIBLE)
        ShowWindow(handle, SW_SHOW);
    return handle;
}

// Parents receive WM_DESTROY before their children.
static void SendDestroy(HWND window) {
    CallWndProc(window, WM_DESTROY, 0, 0);
    const DeskWindow* record = LiveWindow(window);
    for (const HWND child : record ? record->children : std::vector<HWND>{})
        SendDestroy(child);
}

static void RemoveTree(HWND window) {
    const DeskWindow* record = LiveWindow(window);
    for (const HWND child : record ? record->children : std::vector<HWND>{})
        RemoveTree(child);
    CallWndProc(window, WM_NCDESTROY, 0, 0);
    if (LiveWindow(window))
        KillWindow(window);
}

static std::vector<HWND> OwnedBy(HWND window) {
    std::vector<HWND> owned;
    for (const HWND other : Desk.zOrder)
        if (WindowOf(other).owner == window)
            owned.push_back(other);
    return owned;
}

void DestroyTree(HWND window) {
    for (const HWND owned : OwnedBy(window))
        DestroyTree(owned);
    SendDestroy(window);
    RemoveTree(window);
}

BOOL DestroyWindow(HWND window) {
    const DeskWindow* record = CallFails("DestroyWindow") ? nullptr : ResolveHandle(window);
    if (!record)
        return FALSE;
    if (!record->procedure) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return FALSE;
    }
    DestroyTree(window);
    return TRUE;
}

BOOL IsWindow(HWND window) {
    return !CallFails("IsWindow") && ResolveHandle(window);
}

HWND FindWindowA(LPCSTR className, LPCSTR title) {
    if (CallFails("FindWindowA"))
        return nullptr;
    for (const HWND handle : Desk.zOrder) {
        const DeskWindow& window = WindowOf(handle);
        if (LowerCase(window.className) == LowerCase(className) &&
            LowerCase(window.title) == LowerCase(FromAnsi(title)))
            return handle;
    }
    return nullptr;
}

// Enumerates a copy as Windows does: windows may come and go while the callback runs.
BOOL EnumWindows(WNDENUMPROC callback, LPARAM parameter) {
    if (CallFails("EnumWindows"))
        return FALSE;
    static std::vector<HWND> order;
    order.assign(Desk.zOrder.begin(), Desk.zOrder.end());
    for (const HWND handle : order)
        if (LiveWindow(handle) && !callback(handle, parameter))
            return FALSE;
    return TRUE;
}

HWND GetDesktopWindow() {
    HWND& desktop = Desk.desktop;
    if (CallFails("GetDesktopWindow"))
        return nullptr;
    if (!desktop) {
        desktop = OpenWindow("", Desk.displays.front().rect, "#32769");
        std::erase(Desk.zOrder, desktop);
    }
    return desktop;
}

// The parent of a child, the owner of a popup, null for others.
HWND GetParent(HWND window) {
    const DeskWindow* record = CallFails("GetParent") ? nullptr : ResolveHandle(window);
    return record && (record->style & (WS_CHILD | WS_POPUP)) ? record->owner : nullptr;
}

int GetClassNameA(HWND window, LPSTR text, int limit) {
    const DeskWindow* record = CallFails("GetClassNameA") ? nullptr : ResolveHandle(window);
    return record ? CopyText(record->className, text, limit) : 0;
}

int GetWindowTextA(HWND window, LPSTR text, int limit) {
    const DeskWindow* record = CallFails("GetWindowTextA") ? nullptr : ResolveHandle(window);
    return CopyText(record ? ToAnsi(record->title) : "", text, limit);
}

LONG_PTR GetWindowLongPtrA(HWND window, int index) {
    const DeskWindow* record = CallFails("GetWindowLongPtrA") ? nullptr : ResolveHandle(window);
    if (!record)
        return 0;
    switch (index) {
    case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(record->instance);
    case GWLP_HWNDPARENT: return reinterpret_cast<LONG_PTR>(record->owner);
    case GWLP_ID: return record->id;
    case GWLP_USERDATA: return record->userData;
    case GWL_STYLE: return static_cast<LONG_PTR>(record->style);
    case GWL_EXSTYLE: return static_cast<LONG_PTR>(record->exStyle);
    default: return 0;
    }
}

// Returns the previous value.
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    DeskWindow* record = CallFails("SetWindowLongPtrA") ? nullptr : ResolveHandle(window);
    if (!record)
        return 0;
    switch (index) {
    case GWL_STYLE: return static_cast<LONG_PTR>(std::exchange(record->style, static_cast<DWORD>(value)));
    case GWLP_USERDATA: return std::exchange(record->userData, value);
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(std::exchange(record->owner, reinterpret_cast<HWND>(value)));
    default: return 0;
    }
}

BOOL SetWindowTextA(HWND window, LPCSTR text) {
    if (CallFails("SetWindowTextA") || !ResolveHandle(window))
        return FALSE;
    return CallWndProc(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

ULONG_PTR GetClassLongPtrA(HWND window, int index) {
    const DeskWindow* record = CallFails("GetClassLongPtrA") ? nullptr : ResolveHandle(window);
    if (!record || index != GCLP_HBRBACKGROUND)
        return 0;
    const auto found = Desk.classes.find(record->className);
    return found == Desk.classes.end() ? 0 : reinterpret_cast<ULONG_PTR>(found->second.hbrBackground);
}

BOOL IsWindowEnabled(HWND window) {
    const DeskWindow* record = CallFails("IsWindowEnabled") ? nullptr : ResolveHandle(window);
    return record && !(record->style & WS_DISABLED);
}

BOOL EnableWindow(HWND window, BOOL enable) {
    DeskWindow* record = CallFails("EnableWindow") ? nullptr : ResolveForChange(window);
    if (!record)
        return FALSE;
    const BOOL wasDisabled = (record->style & WS_DISABLED) != 0;
    record->style = enable ? record->style & ~WS_DISABLED : record->style | WS_DISABLED;
    return wasDisabled;
}

BOOL SetLayeredWindowAttributes(HWND window, COLORREF, BYTE alpha, DWORD flags) {
    DeskWindow* record = CallFails("SetLayeredWindowAttributes") ? nullptr : ResolveHandle(window);
    if (!record || !(record->exStyle & WS_EX_LAYERED))
        return FALSE;
    if (flags & LWA_ALPHA)
        record->alpha = alpha;
    return TRUE;
}

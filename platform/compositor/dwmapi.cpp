// Stands in for the compositor of Windows 10, which Wine lacks: sizable windows have an invisible frame, a
// maximized one extends past its work area, and DwmSetWindowAttribute cloaks windows.
#include <windows.h>

namespace {

enum Attribute : DWORD { EXTENDED_FRAME_BOUNDS = 9, CLOAK = 13, CLOAKED = 14 };

const char* const CLOAKED_PROPERTY = "Cloaked"; // of the window; other processes read it

LONG FrameOf(HWND window) {
    if (IsZoomed(window))
        return GetSystemMetrics(SM_CXSIZEFRAME) + GetSystemMetrics(SM_CXPADDEDBORDER);
    return GetWindowLongPtrA(window, GWL_STYLE) & WS_THICKFRAME ? 7 : 0;
}

} // namespace

extern "C" HRESULT WINAPI DwmGetWindowAttribute(HWND window, DWORD attribute, void* value, DWORD size) {
    if (attribute == CLOAKED && size == sizeof(DWORD)) {
        *static_cast<DWORD*>(value) = GetPropA(window, CLOAKED_PROPERTY) ? 1 : 0;
        return S_OK;
    }
    if (attribute != EXTENDED_FRAME_BOUNDS || size != sizeof(RECT))
        return E_INVALIDARG;
    RECT& rect = *static_cast<RECT*>(value);
    if (!GetWindowRect(window, &rect))
        return E_HANDLE;
    const LONG frame = FrameOf(window);
    rect = {rect.left + frame, rect.top + (IsZoomed(window) ? frame : 0), rect.right - frame,
            rect.bottom - frame};
    return S_OK;
}

// As on Windows, only the window's own process may cloak it.
extern "C" HRESULT WINAPI DwmSetWindowAttribute(HWND window, DWORD attribute, const void* value, DWORD size) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (attribute != CLOAK || size != sizeof(BOOL) || process != GetCurrentProcessId())
        return E_INVALIDARG;
    if (*static_cast<const BOOL*>(value))
        SetPropA(window, CLOAKED_PROPERTY, window);
    else
        RemovePropA(window, CLOAKED_PROPERTY);
    return S_OK;
}

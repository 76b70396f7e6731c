// What the compositor and display scaling add to a window: visible frame, cloaking, DPI.
#include "internal.h"

#include <dwmapi.h>

#include <cstring>

constexpr HRESULT INVALID_HANDLE = static_cast<HRESULT>(0x80070006);
constexpr HRESULT INVALID_ARGUMENT = static_cast<HRESULT>(0x80070057);
constexpr HRESULT FAILED = static_cast<HRESULT>(0x80004005);

static RECT NormalMargins(const DeskWindow& window) {
    if (window.margins)
        return *window.margins;
    return window.style & WS_THICKFRAME ? Desk.frameMargins : RECT{};
}

// A maximized window extends past its work area on every side, one pixel more than a normal frame is wide.
RECT VisibleMargins(const DeskWindow& window) {
    const RECT normal = NormalMargins(window);
    if (!(window.style & WS_MAXIMIZE) || normal.left <= 0)
        return normal;
    const LONG width = normal.left + 1;
    return {width, width, width, width};
}

RECT VisibleRect(HWND window) {
    const DeskWindow& record = WindowOf(window);
    const RECT margins = VisibleMargins(record);
    const RECT& rect = record.rect;
    return {Narrow(0LL + rect.left + margins.left), Narrow(0LL + rect.top + margins.top),
            Narrow(0LL + rect.right - margins.right), Narrow(0LL + rect.bottom - margins.bottom)};
}

HRESULT DwmGetWindowAttribute(HWND window, DWORD attribute, void* value, DWORD size) {
    if (CallFails("DwmGetWindowAttribute"))
        return FAILED;
    const DeskWindow* record = ResolveHandle(window);
    if (!record)
        return INVALID_HANDLE;
    const RECT visible = VisibleRect(window);
    const DWORD cloaked = record->cloaked ? DWM_CLOAKED_SHELL : 0;
    const bool isFrame = attribute == DWMWA_EXTENDED_FRAME_BOUNDS && size == sizeof visible;
    const bool isCloaked = attribute == DWMWA_CLOAKED && size == sizeof cloaked;
    if (isFrame)
        std::memcpy(value, &visible, sizeof visible);
    if (isCloaked)
        std::memcpy(value, &cloaked, sizeof cloaked);
    return isFrame || isCloaked ? 0 : INVALID_ARGUMENT;
}

// A window that is not DPI aware sees 96 everywhere; Windows scales its picture.
UINT GetDpiForWindow(HWND window) {
    const DeskWindow* record = CallFails("GetDpiForWindow") ? nullptr : ResolveHandle(window);
    if (!record)
        return 0;
    return record->dpiAware ? DisplayFor(record->rect).dpi : 96;
}

// To whole pixels of the window's own 96 DPI, counted from the display's corner.
static LONG Rounded(LONG at, LONG corner, UINT dpi) {
    const long long own = (0LL + at - corner) * 96 / dpi;
    return Narrow(corner + own * dpi / 96);
}

RECT ScaledRect(const DeskWindow& window, const RECT& rect) {
    const DeskDisplay& display = DisplayFor(rect);
    if (window.dpiAware || display.dpi == 96)
        return rect;
    return RectAt(Rounded(rect.left, display.rect.left, display.dpi),
                  Rounded(rect.top, display.rect.top, display.dpi), Width(rect), Height(rect));
}

// The suggested rectangle keeps the corner and scales the size.
void SendDpiChange(HWND window) {
    DeskWindow* record = LiveWindow(window);
    if (!record || !record->procedure || record->style & WS_CHILD)
        return;
    const UINT now = DisplayFor(record->rect).dpi;
    const UINT before = record->dpi;
    record->dpi = now;
    if (now == before)
        return;
    const RECT& rect = record->rect;
    RECT suggested =
        RectAt(rect.left, rect.top, 1LL * Width(rect) * now / before, 1LL * Height(rect) * now / before);
    CallWndProc(window, WM_DPICHANGED, now | now << 16, reinterpret_cast<LPARAM>(&suggested));
}

// Displays and the desktop they form.
#include "internal.h"

#include <algorithm>
#include <cstring>

RECT DesktopBounds() {
    RECT all = Desk.displays.front().rect;
    for (const DeskDisplay& display : Desk.displays)
        all = {std::min(all.left, display.rect.left), std::min(all.top, display.rect.top),
               std::max(all.right, display.rect.right), std::max(all.bottom, display.rect.bottom)};
    return all;
}

static HMONITOR MonitorHandleAt(std::size_t index) {
    return reinterpret_cast<HMONITOR>(index + 1);
}

static std::size_t IndexOf(HMONITOR monitor) {
    return reinterpret_cast<std::size_t>(monitor) - 1;
}

std::string DisplayName(const std::vector<DeskDisplay>& displays, std::size_t index) {
    const std::string& name = displays[index].name;
    return name.empty() ? "\\\\.\\DISPLAY" + std::to_string(index + 1) : name;
}

static long long SharedArea(const RECT& a, const RECT& b) {
    const long long width = 0LL + std::min(a.right, b.right) - std::max(a.left, b.left);
    const long long height = 0LL + std::min(a.bottom, b.bottom) - std::max(a.top, b.top);
    return width > 0 && height > 0 ? width * height : 0;
}

// Between the closest points of two rectangles, squared. Right and bottom edges are exclusive.
static double SquaredDistance(const RECT& a, const RECT& b) {
    const double dx = static_cast<double>(std::max({0LL, 1LL + b.left - a.right, 1LL + a.left - b.right}));
    const double dy = static_cast<double>(std::max({0LL, 1LL + b.top - a.bottom, 1LL + a.top - b.bottom}));
    return dx * dx + dy * dy;
}

std::size_t DisplayShowing(const std::vector<DeskDisplay>& displays, const RECT& rect) {
    std::size_t best = displays.size();
    long long bestArea = 0;
    for (std::size_t index = 0; index < displays.size(); ++index) {
        const long long area = SharedArea(displays[index].rect, rect);
        if (area > bestArea) {
            best = index;
            bestArea = area;
        }
    }
    return best;
}

std::size_t NearestDisplay(const std::vector<DeskDisplay>& displays, const RECT& rect) {
    const std::size_t showing = DisplayShowing(displays, rect);
    if (showing < displays.size())
        return showing;
    const auto nearest =
        std::min_element(displays.begin(), displays.end(), [&](const DeskDisplay& a, const DeskDisplay& b) {
            return SquaredDistance(a.rect, rect) < SquaredDistance(b.rect, rect);
        });
    return static_cast<std::size_t>(nearest - displays.begin());
}

const DeskDisplay& DisplayFor(const RECT& rect) {
    return Desk.displays[NearestDisplay(Desk.displays, rect)];
}

static HMONITOR Find(const RECT& rect, DWORD flags) {
    if (flags == MONITOR_DEFAULTTONEAREST)
        return MonitorHandleAt(NearestDisplay(Desk.displays, rect));
    const std::size_t showing = DisplayShowing(Desk.displays, rect);
    if (showing < Desk.displays.size())
        return MonitorHandleAt(showing);
    return flags == MONITOR_DEFAULTTOPRIMARY ? MonitorHandleAt(0) : nullptr;
}

// An empty rectangle counts as the pixel at its corner.
HMONITOR MonitorFromRect(const RECT* rect, DWORD flags) {
    if (CallFails("MonitorFromRect"))
        return nullptr;
    const bool empty = rect->left >= rect->right || rect->top >= rect->bottom;
    return Find(empty ? RectAt(rect->left, rect->top, 1, 1) : *rect, flags);
}

HMONITOR MonitorFromPoint(POINT point, DWORD flags) {
    return CallFails("MonitorFromPoint") ? nullptr : Find(RectAt(point.x, point.y, 1, 1), flags);
}

// A minimized window belongs to the display of its normal rectangle.
HMONITOR MonitorFromWindow(HWND window, DWORD flags) {
    const DeskWindow* record = CallFails("MonitorFromWindow") ? nullptr : ResolveHandle(window);
    if (!record)
        return nullptr;
    return Find(record->style & WS_MINIMIZE ? record->normalRect : record->rect, flags);
}

BOOL EnumDisplayMonitors(HDC, const RECT*, MONITORENUMPROC callback, LPARAM parameter) {
    if (CallFails("EnumDisplayMonitors"))
        return FALSE;
    for (std::size_t index = 0; index < Desk.displays.size(); ++index) {
        RECT rect = Desk.displays[index].rect;
        if (!callback(MonitorHandleAt(index), nullptr, &rect, parameter))
            return FALSE;
    }
    return TRUE;
}

// Fills in the name as well if the caller passes a MONITORINFOEXA.
BOOL GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info) {
    const std::size_t index = IndexOf(monitor);
    const bool named = info->cbSize == sizeof(MONITORINFOEXA);
    if (CallFails("GetMonitorInfoA") || (!named && info->cbSize != sizeof(MONITORINFO)) ||
        index >= Desk.displays.size())
        return FALSE;
    info->rcMonitor = Desk.displays[index].rect;
    info->rcWork = Desk.displays[index].work;
    info->dwFlags = index == 0 ? MONITORINFOF_PRIMARY : 0;
    if (named) {
        char* name = static_cast<MONITORINFOEXA*>(info)->szDevice;
        CopyText(DisplayName(Desk.displays, index), name, CCHDEVICENAME);
    }
    return TRUE;
}

HRESULT GetDpiForMonitor(HMONITOR monitor, int kind, UINT* dpiX, UINT* dpiY) {
    const std::size_t index = IndexOf(monitor);
    if (CallFails("GetDpiForMonitor") || index >= Desk.displays.size())
        return static_cast<HRESULT>(0x80070057);                      // E_INVALIDARG
    *dpiX = *dpiY = Desk.displays[index].dpi / (kind == 0 ? 1U : 2U); // 0 is the effective scale
    return 0;
}

int GetSystemMetrics(int index) {
    if (CallFails("GetSystemMetrics"))
        return 0;
    const RECT primary = Desk.displays.front().rect;
    const RECT desktop = DesktopBounds();
    switch (index) {
    case SM_CXSCREEN: return Width(primary);
    case SM_CYSCREEN: return Height(primary);
    case SM_CXSMICON:
    case SM_CYSMICON: return 16 * Desk.pixelsPerInch / 96;
    case SM_XVIRTUALSCREEN: return desktop.left;
    case SM_YVIRTUALSCREEN: return desktop.top;
    case SM_CXVIRTUALSCREEN: return Width(desktop);
    case SM_CYVIRTUALSCREEN: return Height(desktop);
    case SM_CXSIZEFRAME:
    case SM_CXPADDEDBORDER: return 4;
    default: return 0;
    }
}

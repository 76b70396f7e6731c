#include "core/dpi.h"

#include "core/state.h"

// Before Windows 10 all displays have the scale of the screen.
static int DpiOfScreen(HWND window) {
    const HDC context = GetDC(window);
    const int dpi = GetDeviceCaps(context, LOGPIXELSX);
    ReleaseDC(window, context);
    return dpi;
}

int DpiOf(HWND window) {
    const int dpi = pGetDpiForWindow ? static_cast<int>(pGetDpiForWindow(window)) : DpiOfScreen(window);
    return dpi ? dpi : DEFAULT_DPI;
}

bool IsScaledByWindows(HWND window) {
    static const int effectiveDpi = 0; // MDT_EFFECTIVE_DPI
    UINT dpi = 0;
    UINT dpiY = 0;
    return pGetDpiForWindow && pGetDpiForMonitor &&
           pGetDpiForMonitor(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), effectiveDpi, &dpi,
                             &dpiY) >= 0 &&
           pGetDpiForWindow(window) != dpi;
}

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

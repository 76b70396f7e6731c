// The state that all subsystems share.
#include "core/state.h"

RECT ScreenRect;
RECT Quorl;
RECT VDesk;

HWND MainWnd;
HINSTANCE AppInstance;
HBRUSH BackBrush;
HICON TrayImage;
bool bQuitting;
bool bDisplaysChanging;

decltype(&SetLayeredWindowAttributes) pSetLayeredWindowAttributes;
decltype(&LockWorkStation) pLockWorkStation;
UINT(WINAPI* pGetDpiForWindow)(HWND window);
HRESULT(WINAPI* pGetDpiForMonitor)(HMONITOR monitor, int type, UINT* dpiX, UINT* dpiY);
HRESULT(WINAPI* pDwmGetWindowAttribute)(HWND window, DWORD attribute, void* value, DWORD size);

void Repaint(HWND window) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

// The state that all subsystems share.
#include "core/state.h"

RECT ScreenRect;
RECT Quorl;
RECT VDesk;
OptionsRecord Options;

HWND MainWnd;
HWND TipWnd;
HINSTANCE AppInstance;
HBRUSH BackBrush;
HICON TrayImage;
int bQuitting;

decltype(&SetLayeredWindowAttributes) pSetLayeredWindowAttributes;
decltype(&LockWorkStation) pLockWorkStation;
HRESULT(WINAPI* pDwmGetWindowAttribute)(HWND window, DWORD attribute, void* value, DWORD size);

void Repaint(HWND window) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

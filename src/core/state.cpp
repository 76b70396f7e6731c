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

decltype(&SetLayeredWindowAttributes) pSetLayeredWindowAttributes;
decltype(&LockWorkStation) pLockWorkStation;

void Repaint(HWND window) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

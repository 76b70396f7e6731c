// The state that all subsystems share, for the whole run. Only the main thread uses it, so it needs no lock.
#pragma once

#include "core/options.h"
#include "core/platform.h"

constexpr char TIP_CLASS[] = "w_ToolTip"; // class and title of the status strip
constexpr char MAIN_CLASS[] = "Quorltop"; // class and title of the map, and the test for another instance

// Screen pixels: the union of all displays, with its corner at 0. Written by core/displays.cpp.
extern RECT ScreenRect;

// Desktop pixels: the whole desktop. right and bottom are its width and height everywhere, from one screen to
// LARGEST_DESKTOP. Written by scroll/desktop_size.cpp.
extern RECT Quorl;

// Desktop pixels: the part of Quorl that the screen shows. Written by scroll/scroll_view.cpp.
extern RECT VDesk;

inline int ScreenW() {
    return ScreenRect.right;
}

inline int ScreenH() {
    return ScreenRect.bottom;
}

extern HWND MainWnd;          // the map; null only before its creation. Written by app/.
extern HINSTANCE AppInstance; // for dialogs
extern HBRUSH BackBrush;      // the map's background. Written by app/.
extern HICON TrayImage;       // of the size of small icons. Written by menus/tray.cpp.

// Set by app/ once Quorl is ending, because the user confirmed, the session ends, or in a crash: messages
// still in the queue must not move windows that are back on the screen.
extern bool bQuitting;

// Set while the displays change, by scroll/display_change.cpp: Quorl moves nothing until they have settled.
extern bool bDisplaysChanging;

// Null if the running system lacks the function.
extern decltype(&SetLayeredWindowAttributes) pSetLayeredWindowAttributes;
extern decltype(&LockWorkStation) pLockWorkStation;
extern UINT(WINAPI* pGetDpiForWindow)(HWND window);
extern HRESULT(WINAPI* pGetDpiForMonitor)(HMONITOR monitor, int type, UINT* dpiX, UINT* dpiY);
extern HRESULT(WINAPI* pDwmGetWindowAttribute)(HWND window, DWORD attribute, void* value, DWORD size);

// Repaints the window before returning.
void Repaint(HWND window);

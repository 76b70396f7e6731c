// The state that all subsystems share. It lives for the whole run and needs no lock: there is one thread.
#pragma once

#include "core/platform.h"

// Screen pixels: the union of all monitors and the origin. Set by MonitorUnion.
extern RECT ScreenRect;

// Desktop pixels: the whole desktop. Its right and bottom serve as its width and height everywhere; they lie
// between one screen and 32000, but a settings file may say otherwise.
extern RECT Quorl;

// Desktop pixels: the part of Quorl that the screen shows. Only ScrollView changes it.
extern RECT VDesk;

// The screen's size, counted from the origin even where a monitor stands left of it or above it.
inline int ScreenW() {
    return ScreenRect.right;
}

inline int ScreenH() {
    return ScreenRect.bottom;
}

constexpr int LARGEST_DESKTOP = 32000; // pixels, for Quorl.right and Quorl.bottom

struct OptionsRecord {
    int border;      // pixels: the band along the screen's edge, and the inset of a window pulled back
    int maxscroll;   // pixels: the step that actions call <max>
    int minscroll;   // pixels: the step that actions call <min>
    int mousescroll; // pixels: the edge-scroll step of mousescroll_type 2
    int mousescroll_delay_time; // milliseconds of a delayed edge scroll
    DWORD alpha;                // opacity of the Toolwin; only the low 8 bits count
    int mousescroll_type;  // an edge scroll moves by: 0 minscroll, 1 maxscroll, 2 mousescroll, 3 a screen
    int mousescroll_delay; // an edge scroll fires: 0 at once, 1 left click, 2 right click, 3 after a time
    int hook_present;      // 1 once the hook library watches the mouse; never stored
};

extern OptionsRecord Options;

extern HWND MainWnd;          // the Toolwin; null only before its creation
extern HWND TipWnd;           // the last result of ShowTip; null when that showed nothing
extern HINSTANCE AppInstance; // for dialogs
extern HBRUSH BackBrush;      // the class's background
extern HICON TrayImage;       // 16 by 16 pixels

// 1 from the user's Yes to "QUIT?" on, which only ConfirmQuit notes. News that still waits in the queue must
// not move windows that are folded back.
extern int bQuitting;

// Null where the running system lacks the function.
extern decltype(&SetLayeredWindowAttributes) pSetLayeredWindowAttributes;
extern decltype(&LockWorkStation) pLockWorkStation;
extern HRESULT(WINAPI* pDwmGetWindowAttribute)(HWND window, DWORD attribute, void* value, DWORD size);

// The map, or another window, is repainted before the caller goes on.
void Repaint(HWND window);

// Windows: classes, creation, rectangles, styles, z-order, foreground.
#pragma once

#include "types.h"

using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using WNDENUMPROC = BOOL(CALLBACK*)(HWND, LPARAM);

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

struct WNDCLASSEXA {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
};

struct MINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};

constexpr UINT CS_VREDRAW = 1;
constexpr UINT CS_HREDRAW = 2;
constexpr UINT CS_DBLCLKS = 8;
constexpr UINT CS_OWNDC = 32;

constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_MAXIMIZE = 0x01000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_MINIMIZE = 0x20000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_OVERLAPPEDWINDOW = 0x00CF0000;

constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_LAYERED = 0x00080000;
constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;

constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOWMINIMIZED = 2;
constexpr int SW_SHOWMAXIMIZED = 3;
constexpr int SW_MAXIMIZE = 3;
constexpr int SW_SHOWNOACTIVATE = 4;
constexpr int SW_SHOW = 5;
constexpr int SW_MINIMIZE = 6;
constexpr int SW_SHOWMINNOACTIVE = 7;
constexpr int SW_SHOWNA = 8;
constexpr int SW_RESTORE = 9;

constexpr UINT WPF_RESTORETOMAXIMIZED = 2;

struct WINDOWPLACEMENT {
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition; // relative to the work area, except for tool windows
};

constexpr int GWLP_HINSTANCE = -6;
constexpr int GWLP_HWNDPARENT = -8;
constexpr int GWLP_ID = -12;
constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;
constexpr int GWLP_USERDATA = -21;
constexpr int GCLP_HBRBACKGROUND = -10;

constexpr DWORD LWA_ALPHA = 2;

constexpr UINT SWP_NOSIZE = 1;
constexpr UINT SWP_NOMOVE = 2;
constexpr UINT SWP_NOZORDER = 4;
constexpr UINT SWP_NOREDRAW = 8;
constexpr UINT SWP_NOACTIVATE = 0x10;
constexpr UINT SWP_SHOWWINDOW = 0x40;
constexpr UINT SWP_HIDEWINDOW = 0x80;
constexpr UINT SWP_ASYNCWINDOWPOS = 0x4000;
inline const HWND HWND_TOP = nullptr;
inline const HWND HWND_BOTTOM = reinterpret_cast<HWND>(static_cast<INT_PTR>(1));
inline const HWND HWND_TOPMOST = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));
inline const HWND HWND_NOTOPMOST = reinterpret_cast<HWND>(static_cast<INT_PTR>(-2));

constexpr UINT MDITILE_VERTICAL = 0;
constexpr UINT MDITILE_HORIZONTAL = 1;

inline const HWND HWND_BROADCAST = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0xffff));

ATOM WINAPI RegisterClassA(const WNDCLASSA* description);
ATOM WINAPI RegisterClassExA(const WNDCLASSEXA* description);
BOOL WINAPI GetClassInfoExA(HINSTANCE instance, LPCSTR name, WNDCLASSEXA* description);
HWND WINAPI CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y,
                            int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                            LPVOID parameter);
BOOL WINAPI DestroyWindow(HWND window);
BOOL WINAPI IsWindow(HWND window);
HWND WINAPI FindWindowA(LPCSTR className, LPCSTR title);
BOOL WINAPI EnumWindows(WNDENUMPROC callback, LPARAM parameter);
HWND WINAPI GetDesktopWindow();
HWND WINAPI GetParent(HWND window);
int WINAPI GetClassNameA(HWND window, LPSTR text, int limit);
int WINAPI GetWindowTextA(HWND window, LPSTR text, int limit);
int WINAPI GetWindowTextW(HWND window, LPWSTR text, int limit);
LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
ULONG_PTR WINAPI GetClassLongPtrA(HWND window, int index);

BOOL WINAPI GetWindowRect(HWND window, RECT* rect);
BOOL WINAPI GetClientRect(HWND window, RECT* rect);
BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL WINAPI SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL WINAPI GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement);
BOOL WINAPI SetWindowPlacement(HWND window, const WINDOWPLACEMENT* placement);
UINT WINAPI GetDpiForWindow(HWND window);
HRESULT WINAPI GetDpiForMonitor(HMONITOR monitor, int type, UINT* dpiX, UINT* dpiY);
BOOL WINAPI ShowWindow(HWND window, int command);
BOOL WINAPI IsWindowVisible(HWND window);
BOOL WINAPI IsWindowEnabled(HWND window);
BOOL WINAPI EnableWindow(HWND window, BOOL enable);
BOOL WINAPI IsIconic(HWND window);
BOOL WINAPI IsZoomed(HWND window);
BOOL WINAPI SetLayeredWindowAttributes(HWND window, COLORREF key, BYTE alpha, DWORD flags);

HWND WINAPI WindowFromPoint(POINT point);
BOOL WINAPI IntersectRect(RECT* shared, const RECT* a, const RECT* b);
WORD WINAPI TileWindows(HWND parent, UINT how, const RECT* rect, UINT count, const HWND* windows);
BOOL WINAPI FlashWindow(HWND window, BOOL invert);

HWND WINAPI GetForegroundWindow();
BOOL WINAPI SetForegroundWindow(HWND window);
HWND WINAPI SetFocus(HWND window);
HWND WINAPI SetActiveWindow(HWND window);
BOOL WINAPI BringWindowToTop(HWND window);

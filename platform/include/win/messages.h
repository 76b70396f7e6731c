// Messages: sending, posting, the queue, timers.
#pragma once

#include "types.h"

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);

constexpr UINT WM_NULL = 0;
constexpr UINT WM_CREATE = 1;
constexpr UINT WM_DESTROY = 2;
constexpr UINT WM_MOVE = 3;
constexpr UINT WM_SIZE = 5;
constexpr UINT WM_SETFOCUS = 7;
constexpr UINT WM_KILLFOCUS = 8;
constexpr UINT WM_SETREDRAW = 11;
constexpr UINT WM_SETTEXT = 12;
constexpr UINT WM_PAINT = 15;
constexpr UINT WM_CLOSE = 16;
constexpr UINT WM_QUERYENDSESSION = 17;
constexpr UINT WM_QUIT = 18;
constexpr UINT WM_ERASEBKGND = 20;
constexpr UINT WM_SYSCOLORCHANGE = 21;
constexpr UINT WM_ENDSESSION = 22;
constexpr UINT WM_SETTINGCHANGE = 26;
constexpr UINT WM_DEVMODECHANGE = 27;
constexpr UINT WM_MOUSEACTIVATE = 33;
constexpr UINT WM_GETMINMAXINFO = 36;
constexpr UINT WM_DISPLAYCHANGE = 126;
constexpr UINT WM_NCCREATE = 129;
constexpr UINT WM_NCDESTROY = 130;
constexpr UINT WM_NCMOUSEMOVE = 160;
constexpr UINT WM_NCLBUTTONDOWN = 161;
constexpr UINT WM_NCRBUTTONDOWN = 164;
constexpr UINT WM_KEYDOWN = 256;
constexpr UINT WM_KEYUP = 257;
constexpr UINT WM_SYSCOMMAND = 274;
constexpr UINT WM_TIMER = 275;
constexpr UINT WM_MOUSEMOVE = 512;
constexpr UINT WM_LBUTTONDOWN = 513;
constexpr UINT WM_LBUTTONUP = 514;
constexpr UINT WM_LBUTTONDBLCLK = 515;
constexpr UINT WM_RBUTTONDOWN = 516;
constexpr UINT WM_RBUTTONUP = 517;
constexpr UINT WM_MBUTTONDOWN = 519;
constexpr UINT WM_MBUTTONUP = 520;
constexpr UINT WM_CAPTURECHANGED = 533;
constexpr UINT WM_MOVING = 534;
constexpr UINT WM_DPICHANGED = 736;
constexpr UINT WM_HOTKEY = 786;
constexpr UINT WM_USER = 1024;
constexpr UINT WM_APP = 32768;

constexpr WPARAM SC_SCREENSAVE = 0xF140;
constexpr LPARAM ENDSESSION_CLOSEAPP = 1;

constexpr LRESULT MA_ACTIVATE = 1;
constexpr LRESULT MA_ACTIVATEANDEAT = 2;
constexpr LRESULT MA_NOACTIVATE = 3;
constexpr LRESULT MA_NOACTIVATEANDEAT = 4;

constexpr UINT SMTO_ABORTIFHUNG = 2;
constexpr UINT PM_NOREMOVE = 0;
constexpr UINT PM_REMOVE = 1;
constexpr WPARAM SPI_SETWORKAREA = 0x2F;

LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI SendMessageTimeoutA(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                                   UINT milliseconds, DWORD_PTR* result);
BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void WINAPI PostQuitMessage(int exitCode);
BOOL WINAPI GetMessageA(MSG* message, HWND window, UINT first, UINT last);
BOOL WINAPI PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT flags);
LONG WINAPI GetMessageTime();
DWORD WINAPI GetTickCount();
void WINAPI Sleep(DWORD milliseconds);
UINT WINAPI RegisterWindowMessageA(LPCSTR name);
BOOL WINAPI TranslateMessage(const MSG* message);
LRESULT WINAPI DispatchMessageA(const MSG* message);
LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC callback);
BOOL WINAPI KillTimer(HWND window, UINT_PTR id);

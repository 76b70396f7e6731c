// Windows of other programs. Every message to one, and every call that moves, shows or activates one, is
// here. Messages have a timeout, and other calls follow a message that the window responded to, so that a
// hung program cannot block Quorl. Positions are in screen pixels.
#pragma once

#include "core/platform.h"

constexpr UINT SCROLL_TIMEOUT = 100; // milliseconds that a window may take to respond while scrolling
constexpr UINT FOLD_TIMEOUT = 1000;  // milliseconds, when windows are brought back onto the screen

// A window's corner and size. Sent with WM_MOVING in place of a RECT, which has the same size: right and
// bottom hold width and height.
struct WindowPosition {
    LONG x, y, width, height;
};

// The window's current rectangle. False if it is gone.
bool GetOtherWindowRect(HWND window, RECT* rect);

// Whether the window processes messages: it responded to WM_NULL within SCROLL_TIMEOUT. Ask before a call
// that would wait for a hung program.
bool IsAlive(HWND window);

enum MoveResult { MOVED, MOVE_TIMED_OUT, MOVE_REFUSED };

// The ping: sends WM_MOVING with the position, which the window may change, and moves the window there. A
// window that does not respond within `timeout` milliseconds stays where it is.
MoveResult PingAndMove(HWND window, WindowPosition position, UINT timeout);

// The same within SCROLL_TIMEOUT, and shows the window that has moved.
void PingMoveAndShow(HWND window, const WindowPosition& position);

// Moves the window without a ping, if it is alive.
void MoveIfAlive(HWND window, const WindowPosition& position);

// Restores a maximized window, hidden meanwhile. False if it does not respond.
bool RestoreIfZoomed(HWND window);

// Scrolls the contents of a list view by (dx, dy) pixels. False if it does not respond.
bool ScrollListView(HWND window, int dx, int dy);

// Whether the window is a list view, which some programs use as a top-level window.
bool IsListView(HWND window);

// Gives the window the focus and the foreground and raises it. False if it does not respond, or if Windows
// denies the foreground.
bool ActivateWindow(HWND window);

// Makes the window the foreground window and gives it the focus, which also raises it. Does nothing if it
// does not respond.
void FocusOtherWindow(HWND window);

// Raises one of Quorl's own windows and makes it the foreground window, without asking whether it responds.
// False if Windows denies the foreground.
bool RaiseWindow(HWND window);

// Makes the window topmost, or no longer so. Nothing happens if it does not respond.
void ToggleTopmost(HWND window);

// Tiles the windows in a rectangle; `how` is an MDITILE_ value. Windows itself skips hung programs.
void TileOtherWindows(UINT how, const RECT& rect, const HWND* windows, UINT count);

// Asks every program to start the screen saver, each within SCROLL_TIMEOUT.
bool BroadcastScreenSaver();

// All calls that message, move, show or activate windows of other programs. None can block on a hung program:
// each follows a message with a timeout, or does not wait for the window. Positions are in screen pixels.
// Nothing moves while the displays change, nor after a wait in which all windows were folded.
#pragma once

#include "core/platform.h"

constexpr UINT SCROLL_TIMEOUT = 100; // milliseconds that a window may take to respond while scrolling
constexpr UINT FOLD_TIMEOUT = 1000;  // milliseconds, when windows are brought back onto the screen

// Where a window is. Since Windows 10 a sizable window has an invisible frame, and a maximized one extends
// past its work area, so the rectangle that Windows reports is not the one that the user sees.
struct WindowFrame {
    RECT visible;
    RECT margins; // pixels per side by which GetWindowRect's rectangle extends past `visible`; 0 if unknown
    bool bMinimized; // it is where Windows puts minimized windows
    bool bSetSize;   // it was restored, so the next move also sets its size to that of `visible`
};

// False if the window is gone.
bool ReadWindowFrame(HWND window, WindowFrame* frame);

// Only what the user sees of it.
bool GetVisibleRect(HWND window, RECT* rect);

// Whether the window processes messages: it responded to WM_NULL within SCROLL_TIMEOUT. Ask before a call
// that would wait for a hung program.
bool IsAlive(HWND window);

enum MoveResult {
    MOVED,
    NOT_MOVED,      // it is gone, its program has higher rights, or nothing may move now
    MOVE_TIMED_OUT, // it did not respond in time
    MOVE_REFUSED,   // any other error
};

// The ping: sends WM_MOVING with the position, which the window may change, and moves its visible corner
// there. A window that does not respond within `timeout` milliseconds stays where it is.
MoveResult PingAndMove(HWND window, const WindowFrame& frame, POINT corner, UINT timeout);

// PingAndMove within SCROLL_TIMEOUT, which also shows the window that has moved, without activating it. True
// if it has moved.
bool PingMoveAndShow(HWND window, const WindowFrame& frame, POINT corner);

// Moves the window's visible corner if it responds to WM_NULL, so that it cannot change the position.
void MoveIfAlive(HWND window, const WindowFrame& frame, POINT corner);

// Moves the window without waiting for it: a hung program obeys when it responds again.
void PostMove(HWND window, const WindowFrame& frame, POINT corner);

// The size that Windows reports, with the invisible frame. False if the window is gone.
bool GetOtherWindowSize(HWND window, SIZE* size);

// Sets that size if the window is alive; its corner stays.
void ResizeIfAlive(HWND window, SIZE size);

// What the user will see of a minimized or maximized window when it is restored. False if the window is gone.
bool ReadNormalRect(HWND window, RECT* rect);

// Changes that rectangle without activating the window or restoring it. False, and nothing happens, if the
// window is not alive or Windows refuses.
bool SetNormalRect(HWND window, const RECT& rect);

// Moves one of Quorl's own windows, and sizes it. False if Windows refuses, or while the displays change.
bool MoveOwnWindow(HWND window, const WindowFrame& frame, const RECT& visible);

// Hides and restores a maximized window; the next move gives it its maximized size again. False if it does
// not respond.
bool RestoreIfZoomed(HWND window, WindowFrame* frame);

// Scrolls the contents of a list view by (dx, dy) pixels. False if it does not respond.
bool ScrollListView(HWND window, int dx, int dy);

// Whether the window is a list view, which some programs use as a top-level window.
bool IsListView(HWND window);

// Gives the window the focus and the foreground and raises it. Does nothing if it does not respond.
void ActivateWindow(HWND window);

// ActivateWindow, but a window that does not respond gets the foreground too: it is the one that the user
// works with.
void ReturnForeground(HWND window);

// How often a window has been activated from here. Compare it to detect an activation: GetForegroundWindow
// returns the old window until the program of the new one has handled it.
int ActivationCount();

// Makes the window the foreground window and gives it the focus, which also raises it. Does nothing if it
// does not respond.
void FocusOtherWindow(HWND window);

// Raises one of Quorl's own windows and makes it the foreground window, without asking whether it responds.
void RaiseWindow(HWND window);

// Makes the window topmost, or no longer so. Nothing happens if it does not respond.
void ToggleTopmost(HWND window);

// Tiles the windows in a rectangle; `how` is an MDITILE_ value. Windows itself skips hung programs.
void TileOtherWindows(UINT how, const RECT& rect, const HWND* windows, UINT count);

// Asks every program to start the screen saver, each within SCROLL_TIMEOUT.
void BroadcastScreenSaver();

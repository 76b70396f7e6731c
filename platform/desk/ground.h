// What the implementations of the calls share; tests do not need it.
#pragma once

#include "desk.h"

// Counts a platform call. Non-zero: this is the call that shall fail, and the last error is set.
int Fails(const char* call);

// A window from its row, topmost but not activated unless it is a child. The row's handle is filled in.
HWND NewWindow(DeskWindow row);

// The living window behind a handle, or null with the last error set. Counts down `diesAtCall`.
DeskWindow* Named(HWND window);

// As `Named`, without touching anything.
DeskWindow* Living(HWND window);

// Marks part of the client area (null: all of it) as waiting for a paint.
void Invalidate(DeskWindow& window, const RECT* rect, int bErase);

// The window's inside, in client pixels.
RECT ClientArea(const DeskWindow& window);

// Calls the window's procedure; 0 when it is a window of another program.
LRESULT CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// What the system does with a message that a window leaves to it.
LRESULT DefaultAnswer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Hands a message over to the window or the timer's callback.
LRESULT Dispatch(const MSG& message);

// Ends a window of this process, its children and the windows that it owns.
void EndWindow(HWND window);

// The top-level window that a child stands in, or the window itself.
HWND RootOf(HWND window);

// It and all that it stands in are visible.
int IsInSight(HWND window);

// Gives the focus to a window of this process and tells both; null takes it away from this process.
void MoveFocus(HWND to);

// As when the user goes there: the window around becomes the active one.
void GoTo(HWND window);

// Hides a top-level window and passes the foreground on.
void Hide(DeskWindow& window);

// Puts the window on top of those that are topmost as it is, or as it is not.
void Raise(HWND window);

// Has the window's size kept within its limits, after asking a window of this process for them.
void ApplyLimits(DeskWindow& window);

// Tell a window of this process by WM_SIZE and WM_MOVE where its client area stands.
void TellSize(HWND window);
void TellPlace(HWND window);

// Makes the window the foreground window and puts it on top.
void Activate(HWND window);

// Pixels from each edge of the window to its client area.
RECT FrameOf(const DeskWindow& window);

// The next mouse input for a window of this process as a message. 0: none.
int TakeInput(MSG* message);

// Takes the timers and the hotkeys of a window that is going away.
void DropTimersOf(HWND window);
void DropHotkeysOf(HWND window);

// A copy of the text in at most `limit` characters, the zero included. Gives the characters copied.
int CopyText(const std::string& from, char* to, int limit);

std::string LowerCase(const std::string& text);

// A context for the window's inside.
HDC OpenContext(const DeskWindow& window);

// A context that has not been released, or null.
DeskContext* ContextOf(HDC context);

// Remembers one thing drawn, with the tools that the context has selected.
void Record(const DeskContext& on, const char* what, const RECT& rect);

// What the implementations of the calls share; tests do not need it.
#pragma once

#include "desk.h"

// Counts a platform call. Non-zero: this is the call that shall fail, and the last error is set.
int Fails(const char* call);

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

// Puts the window on top of those that are topmost as it is, or as it is not.
void Raise(HWND window);

// Has the window's size kept within its limits, after asking a window of this process for them.
void ApplyLimits(DeskWindow& window);

// Tell a window of this process by WM_SIZE and WM_MOVE where its client area stands.
void TellSize(HWND window);
void TellPlace(HWND window);

// Makes the window the foreground window and puts it on top.
void Activate(HWND window);

// Pixels of frame on each side of the client area.
int FrameWidth(const DeskWindow& window);

// The next mouse input for a window of this process as a message. 0: none.
int TakeInput(MSG* message);

// Takes the timers and the hotkeys of a window that is going away.
void DropTimersOf(HWND window);
void DropHotkeysOf(HWND window);

// A copy of the text in at most `limit` characters, the zero included. Gives the characters copied.
int CopyText(const std::string& from, char* to, int limit);

std::string LowerCase(const std::string& text);

// A context that has not been released, or null.
DeskContext* ContextOf(HDC context);

// Remembers one thing drawn, with the tools that the context has selected.
void Record(const DeskContext& on, const char* what, const RECT& rect);

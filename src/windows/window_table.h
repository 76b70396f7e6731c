// The snapshot of all top-level windows, and which of them Quorl may move.
#pragma once

#include "core/platform.h"

constexpr int MAX_WINDOWS = 32000;

// A top-level window and its rectangle when the table was built.
struct WindowRow {
    HWND hwnd;
    RECT rect; // screen pixels
};

// Every top-level window, managed or not, in the order of EnumWindows: the topmost first.
extern WindowRow WindowTable[MAX_WINDOWS];
extern int num_windows;

// Empties the table and enumerates again. If the enumeration fails at once, the old rows stay.
void RebuildWindowTable();

// Whether a window no longer has the rectangle of its row, or is gone.
bool HasAnyWindowMoved();

// Whether Quorl may move and show this window. Asks Windows each time; false for the null handle and a window
// that is gone. `rect` receives the rectangle of a managed window, in screen pixels.
bool IsManagedWindow(HWND window, RECT* rect = nullptr);

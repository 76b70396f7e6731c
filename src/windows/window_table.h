// The snapshot of all top-level windows, and which of them Quorl may move.
#pragma once

#include "core/displays.h"
#include "windows/other_window.h"

constexpr int MAX_WINDOWS = 32000;

// A top-level window and its rectangle when the table was built, as GetWindowRect returns it: it is compared
// with what that returns later.
struct WindowRow {
    HWND hwnd;
    RECT rect;   // system coordinates
    bool bShown; // false if it was hidden, minimized or gone, so that `rect` is not where the user left it
};

// Every top-level window, managed or not, in the order of EnumWindows: the topmost first.
extern WindowRow WindowTable[MAX_WINDOWS];
extern int num_windows;

// The corner of the view, in desktop pixels, and the displays when the table was built.
extern POINT WindowTableView;
extern DisplayLayout WindowTableDisplays;

// Empties the table and enumerates again. If the enumeration fails at once, the old rows stay.
void RebuildWindowTable();

// Whether a window no longer has the rectangle of its row, or is gone.
bool HasAnyWindowMoved();

// Whether Quorl may move and show this window. Asks Windows each time; false for the null handle and a window
// that is gone. `frame` receives where a managed window is.
bool IsManagedWindow(HWND window, WindowFrame* frame = nullptr);

// Whether this is a window that the user works with, even if scrolling leaves it alone because it is
// disabled, minimized, cloaked or beyond the desktop: visible, and not of the shell, an overlay, the map or
// the strip.
bool IsUserWindow(HWND window);

// Whether it is the desktop, a taskbar or another part of the shell, which commands must not move.
bool IsShellWindow(HWND window);

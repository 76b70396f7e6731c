// Moving all windows together.
#pragma once

#include "core/platform.h"

constexpr UINT SCROLL_PATIENCE = 100; // milliseconds that a window may take to answer while scrolling

// A window's corner and size, as WM_MOVING carries it here: four int32 in this order.
struct WindowPlace {
    LONG x, y, width, height; // screen pixels
};

// Asks the window whether it lives by sending it WM_MOVING with the place, which it may change. 0: it did not
// answer within `patience` milliseconds, is hung or gone.
int AcceptsPlace(HWND window, WindowPlace* place, UINT patience);

// 1 if the window takes a message that means nothing within SCROLL_PATIENCE. To be asked before a call that
// would wait for a hung program for as long as it hangs.
int IsAlive(HWND window);

// Moves a window that answers to the place, as it may have changed it, and shows it. One that does not answer
// within SCROLL_PATIENCE stays.
void PlaceWindow(HWND window, WindowPlace place);

// Pure: the place of a window that is shifted by (dx, dy), held inside the desktop. The far edges are
// compared in screen pixels, the near ones in desktop pixels.
WindowPlace ShiftedPlace(const RECT& window, int dx, int dy, const RECT& vdesk, const RECT& quorl,
                         int border);

// Moves every managed, unlocked window by (dx, dy) pixels and shows it. A window that does not answer stays,
// and costs SCROLL_PATIENCE once.
void ShiftWindows(int dx, int dy);

#include "scroll/gather.h"

#include "core/rect.h"
#include "core/state.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

static const int LAST_PIXELS = 5; // pixels: so little of a window could not be grabbed

// Pure: one coordinate of a window's corner, folded onto a screen of that size. Screen pixels.
static int FoldCoordinate(int corner, int screen) {
    int folded = Remainder(corner, screen);
    if (folded < 0)
        folded += screen;
    return folded > screen - LAST_PIXELS ? screen - folded : folded;
}

static MoveResult FoldWindow(HWND window, const RECT& before) {
    return PingAndMove(window,
                       {FoldCoordinate(before.left, ScreenW()), FoldCoordinate(before.top, ScreenH()),
                        Width(before), Height(before)},
                       FOLD_TIMEOUT);
}

// The message box runs a message loop, in which the refresh timer may rebuild the table, so fold a copy.
void GatherWindows(bool bReport) {
    static HWND windows[MAX_WINDOWS];
    RebuildWindowTable();
    const int count = num_windows;
    for (int i = 0; i < count; ++i)
        windows[i] = WindowTable[i].hwnd;
    for (int i = 0; i < count; ++i) {
        RECT before{};
        if (IsManagedWindow(windows[i], &before) && FoldWindow(windows[i], before) == MOVE_REFUSED && bReport)
            MessageBoxA(nullptr, "Not a timeout! A window won't restore!", "ok", MB_OK);
    }
}

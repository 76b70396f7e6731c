// Folding all windows back onto the one real screen.
#include "scroll/gather.h"

#include "core/arithmetic.h"
#include "core/state.h"
#include "scroll/shift.h"
#include "scroll/window_table.h"

static const UINT GATHER_PATIENCE = 1000; // milliseconds
static const int LAST_PIXELS = 5;         // a corner this near the far edge could not be grabbed

int FoldedCorner(int corner, int screen) {
    int folded = Remainder(corner, screen);
    if (folded < 0)
        folded += screen;
    return folded > screen - LAST_PIXELS ? screen - folded : folded;
}

// 0 on the oldest systems, ERROR_TIMEOUT on all others.
static int IsTimeout(DWORD error) {
    return error == 0 || error == ERROR_TIMEOUT;
}

static void GatherWindow(HWND window) {
    RECT before{};
    if (!GetWindowRect(window, &before))
        return;
    WindowPlace place{FoldedCorner(before.left, ScreenW()), FoldedCorner(before.top, ScreenH()),
                      before.right - before.left, before.bottom - before.top};
    if (AcceptsPlace(window, &place, GATHER_PATIENCE))
        MoveWindow(window, place.x, place.y, place.width, place.height, TRUE);
    else if (!IsTimeout(GetLastError()))
        MessageBoxA(nullptr, "Not a timeout! A window won't restore!", "ok", MB_OK);
}

void GatherWindows() {
    RebuildWindowTable();
    for (int row = 0; row < num_windows; ++row)
        if (IsManagedWindow(WindowTable[row].hwnd))
            GatherWindow(WindowTable[row].hwnd);
}

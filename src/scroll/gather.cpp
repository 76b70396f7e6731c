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

static void TellRefusal() {
    MessageBoxA(nullptr, "Not a timeout! A window won't restore!", "ok", MB_OK);
}

static void FoldWindow(HWND window, const RECT& before, void (*refused)()) {
    WindowPlace place{FoldedCorner(before.left, ScreenW()), FoldedCorner(before.top, ScreenH()),
                      before.right - before.left, before.bottom - before.top};
    if (AcceptsPlace(window, &place, GATHER_PATIENCE))
        MoveWindow(window, place.x, place.y, place.width, place.height, TRUE);
    else if (!IsTimeout(GetLastError()) && refused)
        refused();
}

// The box over a refusal lets the refresh timer rebuild the table, so the handles are kept apart from it.
void FoldWindows(void (*refused)()) {
    static HWND windows[MAX_WINDOWS];
    RebuildWindowTable();
    const int count = num_windows;
    for (int row = 0; row < count; ++row)
        windows[row] = WindowTable[row].hwnd;
    for (int row = 0; row < count; ++row) {
        RECT before{};
        if (IsManagedWindow(windows[row], &before))
            FoldWindow(windows[row], before, refused);
    }
}

void GatherWindows() {
    FoldWindows(TellRefusal);
}

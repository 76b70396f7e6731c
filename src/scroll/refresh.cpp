#include "scroll/refresh.h"

#include "core/state.h"
#include "scroll/display_change.h"
#include "scroll/follow.h"
#include "windows/foreground.h"
#include "windows/window_table.h"

// A new window changes no row, so rebuild the table this often in any case.
static const int REBUILD_INTERVAL = 12; // ticks

static int RefreshTick;

// Counts the tick. True if the table must be rebuilt whether or not a window has moved.
static bool IsRefreshDue() {
    if (++RefreshTick < REBUILD_INTERVAL)
        return false;
    RefreshTick = 0;
    return true;
}

// While the displays change, the table keeps the positions from before the change. While Quorl is quitting,
// the table belongs to the fold.
void CALLBACK RefreshTimer(HWND window, UINT, UINT_PTR, DWORD) {
    if (bQuitting)
        return;
    NoteForeground();
    if (bDisplaysChanging)
        return;
    const bool bFollowed = FollowActiveWindow();
    if (!IsRefreshDue() && !HasAnyWindowMoved() && !bFollowed)
        return;
    CheckDisplays(); // windows move before Windows announces a change of the displays
    if (bDisplaysChanging)
        return;
    RebuildWindowTable();
    Repaint(window);
}

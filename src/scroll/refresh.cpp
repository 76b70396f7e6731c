// Polling: windows move, appear and vanish without notice.
#include "scroll/refresh.h"

#include "core/state.h"
#include "scroll/follow.h"
#include "scroll/window_table.h"
#include "toolwin/map_scale.h"

static const int QUIET_TICKS = 10; // a new window changes no row, so the table is rebuilt now and then anyway

static int RefreshTick;

static void RepaintActiveBox() {
    RECT map{};
    GetClientRect(MainWnd, &map);
    RECT window{};
    GetWindowRect(GetForegroundWindow(), &window);
    const RECT box = WindowBox(window, map, VDesk, Quorl);
    InvalidateRect(MainWnd, &box, TRUE);
    UpdateWindow(MainWnd);
}

static int HasMoved(const WindowRow& row) {
    RECT now{};
    return !GetWindowRect(row.hwnd, &now) || now.left != row.left || now.top != row.top ||
           now.right != row.right || now.bottom != row.bottom;
}

static int AnyHasMoved() {
    for (int row = 0; row < num_windows; ++row)
        if (HasMoved(WindowTable[row]))
            return 1;
    return 0;
}

// Counts the tick. Non-zero when the table must be rebuilt whatever it says.
static int IsRefreshDue() {
    if (RefreshTick++ <= QUIET_TICKS)
        return 0;
    RefreshTick = 0;
    return 1;
}

void CALLBACK RefreshTimer(HWND window, UINT, UINT_PTR id, DWORD) {
    if (id == FLASH_TIMER) {
        RepaintActiveBox();
        return;
    }
    const int bFollowed = FollowActiveWindow();
    if (!IsRefreshDue() && !AnyHasMoved() && !bFollowed)
        return;
    RebuildWindowTable();
    Repaint(window);
}

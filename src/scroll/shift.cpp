#include "scroll/shift.h"

#include "actions/action_table.h"
#include "core/rect.h"
#include "core/state.h"
#include "windows/locked_windows.h"
#include "windows/window_table.h"

// One axis. `view` is the near edge of the view, `desktop` the size of the desktop.
static int ShiftedCoordinate(int coordinate, int delta, int size, int view, int desktop, int border) {
    int shifted = Wrap(0LL + coordinate + delta);
    if (shifted > desktop)
        shifted = Wrap(0LL + desktop - border - size);
    return Wrap(0LL + shifted + view) < 0 ? Wrap(0LL - view) : shifted;
}

WindowPosition ShiftedPosition(const RECT& window, int dx, int dy, const RECT& vdesk, const RECT& quorl,
                               int border) {
    const int width = Width(window);
    const int height = Height(window);
    return {ShiftedCoordinate(window.left, dx, width, vdesk.left, quorl.right, border),
            ShiftedCoordinate(window.top, dy, height, vdesk.top, quorl.bottom, border), width, height};
}

static void ShiftWindow(HWND window, const RECT& before, int dx, int dy) {
    if (IsOn(ACTION_RESTORE_MAXIMIZED) && !RestoreIfZoomed(window))
        return;
    PingMoveAndShow(window, ShiftedPosition(before, dx, dy, VDesk, Quorl, Options.border));
}

void ShiftWindows(int dx, int dy) {
    if (bQuitting)
        return;
    for (int i = 0; i < num_windows; ++i) {
        const HWND window = WindowTable[i].hwnd;
        if (IsListView(window) && !ScrollListView(window, dx, dy))
            continue; // the ping would wait a second time for the same program
        RECT before{};
        if (IsManagedWindow(window, &before) && !IsLockedWindow(window))
            ShiftWindow(window, before, dx, dy);
    }
}

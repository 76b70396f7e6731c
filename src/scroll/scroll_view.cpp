// The one road by which the view moves.
#include "scroll/scroll_view.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "scroll/shift.h"
#include "toolwin/tip.h"

#include <cstdio>

static int ScrollCount; // calls of ScrollView in this run

POINT AskedDistance(const RECT& vdesk, int x, int y, int mode) {
    if (mode & SV_ABSOLUTE)
        return {x - vdesk.left, y - vdesk.top};
    if (mode & SV_CENTER)
        return {x - (vdesk.right - vdesk.left) / 2 - vdesk.left,
                y - (vdesk.bottom - vdesk.top) / 2 - vdesk.top};
    return {x, y};
}

ViewStep ClampedStep(const RECT& vdesk, POINT distance, const RECT& quorl, int screenW, int screenH) {
    RECT view{vdesk.left + distance.x, vdesk.top + distance.y, vdesk.right + distance.x,
              vdesk.bottom + distance.y};
    int dx = distance.x;
    int dy = distance.y;
    if (view.left < 0) {
        dx -= view.left;
        view.left = 0;
        view.right = screenW;
    }
    if (view.right > quorl.right) {
        dx += quorl.right - view.right;
        view.right = quorl.right;
        view.left = quorl.right - screenW;
    }
    if (view.top < 0) {
        dy -= view.top;
        view.top = 0;
        view.bottom = screenH;
    }
    if (view.bottom > quorl.bottom) {
        dy += quorl.bottom - view.bottom;
        view.bottom = quorl.bottom;
        view.top = quorl.bottom - screenH;
    }
    return {view, dx, dy};
}

// Every second call, so that the user can tell a scroll that went nowhere from none.
static void TellCount(int id) {
    if (ScrollCount % 2 == 0)
        Tell("CTR: %d  ID: %d", ScrollCount, id);
    ++ScrollCount;
}

static void TellView() {
    Tell("VDesk: %d,%d - %d,%d", static_cast<int>(VDesk.left), static_cast<int>(VDesk.top),
         static_cast<int>(VDesk.right), static_cast<int>(VDesk.bottom));
}

int ScrollView(HWND window, int x, int y, int mode, int id) {
    TellCount(id);
    const RECT before = VDesk;
    if (ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value)
        SetForegroundWindow(MainWnd);
    const ViewStep step = ClampedStep(before, AskedDistance(before, x, y, mode), Quorl, ScreenW(), ScreenH());
    VDesk = step.view;
    ShiftWindows(-step.dx, -step.dy);
    TellView();
    Repaint(window);
    return before.left != VDesk.left || before.top != VDesk.top;
}

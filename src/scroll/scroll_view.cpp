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

// One axis: `least` and `most` are the view's two sides on it, and `way` is how far it goes.
static void HoldInside(LONG* least, LONG* most, int* way, LONG desktop, int screen) {
    if (*least < 0) {
        *way -= *least;
        *least = 0;
        *most = screen;
    }
    if (*most > desktop) {
        *way += desktop - *most;
        *most = desktop;
        *least = desktop - screen;
    }
}

ViewStep ClampedStep(const RECT& vdesk, POINT distance, const RECT& quorl, int screenW, int screenH) {
    ViewStep step{
        {vdesk.left + distance.x, vdesk.top + distance.y, vdesk.right + distance.x,
         vdesk.bottom + distance.y},
        static_cast<int>(distance.x),
        static_cast<int>(distance.y)
    };
    HoldInside(&step.view.left, &step.view.right, &step.dx, quorl.right, screenW);
    HoldInside(&step.view.top, &step.view.bottom, &step.dy, quorl.bottom, screenH);
    return step;
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

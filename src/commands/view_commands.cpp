// Actions that only move the view.
#include "commands/view_commands.h"

#include "core/rect.h"
#include "core/state.h"
#include "core/steps.h"
#include "scroll/follow.h"
#include "scroll/scroll_view.h"
#include "toolwin/map_coordinates.h"

static const int NEAR_BOUNDARY = 100; // pixels before a screen boundary that count as being on it

void GoToPoint(const ActionCall& call) {
    ActionPoint point = MapToDesktop(call.point);
    if (call.argument == AT_CELL) {
        point.x = Wrap(1LL * Quotient(point.x, ScreenW()) * ScreenW());
        point.y = Wrap(1LL * Quotient(point.y, ScreenH()) * ScreenH());
    }
    const ScrollMode mode = call.argument == AT_CENTER ? SV_CENTER : SV_ABSOLUTE;
    ScrollView(call.window, point.x, point.y, mode, call.id);
}

void StepView(const ActionCall& call) {
    const POINT step = StepDelta(call.argument);
    ScrollView(call.window, step.x, step.y, SV_RELATIVE, call.id);
}

// In reading order, from the current position of the view.
static POINT NextScreen(const RECT& vdesk, const RECT& quorl, int screenW, int screenH) {
    POINT corner{Wrap(0LL + vdesk.left + screenW), vdesk.top};
    if (corner.x >= quorl.right) {
        corner = {0, Wrap(0LL + vdesk.top + screenH)};
        if (corner.y >= quorl.bottom)
            corner.y = 0;
    }
    return corner;
}

static POINT PreviousScreen(const RECT& vdesk, const RECT& quorl, int screenW, int screenH) {
    POINT corner{Wrap(0LL + vdesk.left - screenW), vdesk.top};
    if (corner.x < 0) {
        corner = {Wrap(0LL + quorl.right - screenW), Wrap(0LL + vdesk.top - screenH)};
        if (corner.y < 0)
            corner.y = Wrap(0LL + quorl.bottom - screenH);
    }
    return corner;
}

// The near edge of the screen that is `screens` away from the one at a coordinate.
static int ScreenBoundary(int coordinate, int screens, int screen) {
    return Wrap((0LL + Quotient(Wrap(0LL + coordinate + NEAR_BOUNDARY), screen) + screens) * screen);
}

// Pure: the corner of the view for a ScreenTarget, not clamped. Desktop pixels.
static POINT ScreenCorner(ScreenTarget target, const RECT& vdesk, const RECT& quorl, int screenW,
                          int screenH) {
    const LONG left = vdesk.left;
    const LONG top = vdesk.top;
    switch (target) {
    case NEXT_SCREEN: return NextScreen(vdesk, quorl, screenW, screenH);
    case PREVIOUS_SCREEN: return PreviousScreen(vdesk, quorl, screenW, screenH);
    case SCREEN_LEFT: return {ScreenBoundary(left, -1, screenW), top};
    case SCREEN_UP: return {left, ScreenBoundary(top, -1, screenH)};
    case SCREEN_RIGHT: return {ScreenBoundary(left, 1, screenW), top};
    case SCREEN_DOWN: return {left, ScreenBoundary(top, 1, screenH)};
    case TOP_EDGE: return {left, 0};
    case BOTTOM_EDGE: return {left, Wrap(0LL + quorl.bottom - screenH)};
    case LEFT_EDGE: return {0, top};
    case RIGHT_EDGE:
        return {Wrap(0LL + quorl.right - screenW), 0}; // to the top as well, unlike the left edge
    }
    return {left, top};
}

void GoToScreen(const ActionCall& call) {
    const POINT corner =
        ScreenCorner(static_cast<ScreenTarget>(call.argument), VDesk, Quorl, ScreenW(), ScreenH());
    ScrollView(call.window, corner.x, corner.y, SV_ABSOLUTE, call.id);
}

void CenterOnActive(const ActionCall& call) {
    CenterOnWindow(call.window, call.target);
}

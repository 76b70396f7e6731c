// Actions that move only the view. Each returns 1 if the view moved, unless stated otherwise.
#pragma once

#include "actions/action_table.h"

enum PointTarget { AT_CORNER, AT_CENTER, AT_CELL };

// Handler: brings the view to the call's point on the map; the argument is a PointTarget.
int GoToPoint(const ActionCall& call);

// Handler: moves the view by a step (the argument).
int StepView(const ActionCall& call);

enum ScreenTarget {
    NEXT_SCREEN,
    PREVIOUS_SCREEN,
    SCREEN_LEFT,
    SCREEN_UP,
    SCREEN_RIGHT,
    SCREEN_DOWN,
    TOP_EDGE,
    BOTTOM_EDGE,
    LEFT_EDGE,
    RIGHT_EDGE,
};

// Handler: moves the view by whole screens or to an edge of the desktop; the argument is a ScreenTarget.
int GoToScreen(const ActionCall& call);

// Handler: brings the active window to the middle of the view. 1 if it has the foreground then.
int CenterOnActive(const ActionCall& call);

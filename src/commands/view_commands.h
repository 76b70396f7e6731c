// Actions that move only the view.
#pragma once

#include "actions/action_table.h"

enum PointTarget { AT_CORNER, AT_CENTER, AT_CELL };

// Handler: brings the view to the call's point on the map; the argument is a PointTarget.
void GoToPoint(const ActionCall& call);

// Handler: moves the view by a step (the argument).
void StepView(const ActionCall& call);

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
void GoToScreen(const ActionCall& call);

// Handler: brings the active window to the middle of the view.
void CenterOnActive(const ActionCall& call);

// The rows that only move the view.
#pragma once

#include "actions/dispatch.h"

enum PointKind { AT_CORNER, AT_CENTER, AT_CELL };

enum StepKind { STEP_LEFT = 1, STEP_RIGHT = 2, STEP_UP = 4, STEP_DOWN = 8, BY_MIN = 16, BY_MAX = 32 };

enum ScreenKind {
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

// Rows on a point of the map; `with` is a PointKind. 1 if the view moved; so for all of these.
int GoToPoint(const ActionCall& call);

// Steps; `with` is a sum of one direction and one amount of StepKind.
int StepView(const ActionCall& call);

// Whole screens and edges; `with` is a ScreenKind.
int GoToScreen(const ActionCall& call);

// Brings the active window to the middle of the view.
int CenterOnActive(const ActionCall& call);

// Pure: the corner that a ScreenKind asks for, not yet held inside the desktop. Desktop pixels.
POINT AskedScreen(ScreenKind kind, const RECT& vdesk, const RECT& quorl, int screenW, int screenH);

// Pure: the distance that a sum of StepKind asks for, with the two amounts. Pixels.
POINT AskedStep(int kind, int minscroll, int maxscroll);

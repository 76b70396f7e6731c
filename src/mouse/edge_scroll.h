// Edge scrolling: the view moves when the mouse reaches the edge of the screen, and the cursor moves along.
#pragma once

#include "core/options.h"
#include "core/platform.h"

// What the mouse did.
enum EdgeCause {
    CAUSE_LEFT_CLICK = 1,
    CAUSE_RIGHT_CLICK = 2,
    CAUSE_MOVE = 4,
};

// Handles a mouse event at `cursor`, in screen pixels. True if the cursor is at an edge, whether or not the
// view moved. The first call of the process is ignored, so that a cursor that rests at an edge does not
// scroll at start; so are reentrant calls.
bool EdgeScroll(HWND window, POINT cursor, EdgeCause cause);

// The scroll that an edge causes.
struct EdgeStep {
    int dir;       // a Direction; DIR_NONE: the cursor is at no edge
    POINT view;    // the new corner of the view, not clamped; desktop pixels
    POINT landing; // the new position of the cursor, which may be off the screen; screen pixels
};

// Pure: the edge at the cursor and the scroll it causes; `edges` are those of OuterEdges. In a corner, left
// and right take precedence.
EdgeStep EdgeStepAt(POINT cursor, const OptionsRecord& options, const RECT& vdesk, const RECT& edges);

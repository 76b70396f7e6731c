// Scrolling at the screen's edge: the view moves on, and the cursor lands where the user can go on working.
#pragma once

#include "core/platform.h"

struct OptionsRecord;

// What the mouse did.
enum EdgeCause {
    CAUSE_LEFT_CLICK = 1,
    CAUSE_RIGHT_CLICK = 2,
    CAUSE_MOVE = 4,
};

// The mouse did something at `cursor` (screen pixels). 1 if that is at an edge and the call did its work,
// even where the work was to wait, or the view could go no further; else 0. The first call of the process
// only arms it, so that a cursor that rests at an edge does not scroll at the start; a call from inside
// itself gives 0.
int EdgeScroll(HWND window, const POINT* cursor, int cause);

// Scrolls to `view` (desktop pixels) after Options.mousescroll_delay_time, if the cursor is still at an edge
// then, and sets it down at `landing` (screen pixels). 1 if the wait has begun; 0 if another one is under
// way, which stays as it is, or the timer is refused, which the user hears.
int StartDelayedScroll(HWND window, const POINT* view, const POINT* landing);

// What an edge asks for.
struct EdgeStep {
    int dir;       // a Direction; DIR_NONE: the cursor is at no edge
    POINT view;    // the new corner of the view, not yet held inside the desktop; desktop pixels
    POINT landing; // where the cursor lands, perhaps off the screen; screen pixels
};

// Pure: which edge the cursor is at and what follows. In a corner left and right go before top and bottom.
EdgeStep EdgeStepAt(POINT cursor, const OptionsRecord& options, const RECT& vdesk, int screenW, int screenH);

// Pure: whether the cursor is still at that edge; one pixel more generous than EdgeStepAt. DIR_NONE is never.
int IsStillAtEdge(POINT cursor, int dir, int border, int screenW, int screenH);

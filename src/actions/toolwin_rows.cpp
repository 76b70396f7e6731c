// The rows that place the Toolwin.
#include "actions/toolwin_rows.h"

#include "actions/view_rows.h"
#include "core/state.h"
#include "toolwin/placement.h"

int StepToolwin(const ActionCall& call) {
    const POINT step = AskedStep(call.with, Options.minscroll, Options.maxscroll);
    return MoveToolwin(call.window, step.x, step.y, MOVE_BY_DISTANCE);
}

int SizeToolwin(const ActionCall& call) {
    return ResizeToolwin(call.window, call.row);
}

int ShowOrHideToolwin(const ActionCall& call) {
    return ToggleToolwin(call.window);
}

// The rows that place the Toolwin.
#pragma once

#include "actions/dispatch.h"

// Steps; `with` is a sum of one direction and one amount of StepKind. The result of MoveToolwin.
int StepToolwin(const ActionCall& call);

// Moves one edge, as the row says. The result of ResizeToolwin.
int SizeToolwin(const ActionCall& call);

// Shows or hides it. Always 1.
int ShowOrHideToolwin(const ActionCall& call);

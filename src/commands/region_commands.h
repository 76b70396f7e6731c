// Actions on regions.
#pragma once

#include "actions/action_table.h"

// Handler: brings the view to the call's region, or else to the region under the call's point on the map. 1
// if the view moved.
int GoToRegion(const ActionCall& call);

// Handler: brings the view to the next (argument 1) or previous (-1) region, with wrap-around; from outside
// all regions to the first. Beeps if there are none. 1 if the view moved.
int StepToRegion(const ActionCall& call);

// Handler: removes the region whose corner is the view's. 1 if there was one.
int UnmarkRegion(const ActionCall& call);

// Handler. Always 1.
int UnmarkAllRegions(const ActionCall& call);

// Actions on regions.
#pragma once

#include "actions/action_table.h"

// Handler: brings the view to the call's region, or else to the region under the call's point on the map.
void GoToRegion(const ActionCall& call);

// Handler: brings the view to the next (argument 1) or previous (-1) region, with wrap-around; from outside
// all regions to the first. Beeps if there are none.
void StepToRegion(const ActionCall& call);

// Handler: removes the region whose corner is the view's.
void UnmarkRegion(const ActionCall& call);

// Handler: removes them all.
void UnmarkAllRegions(const ActionCall& call);

// The rows that work on regions.
#pragma once

#include "actions/dispatch.h"

// Brings the view to a region: to that with the row `point->x` when `point->y` is -1, else to the one under
// that point of the map. The point is overwritten with the region's corner. 1 if the view moved; 0 too when
// there is no such region, and then the view stays.
int GoToRegion(const ActionCall& call);

// Brings the view `with` (1 or -1) regions further, round the ends; from outside all regions, to the first. A
// beep when there are none. 1 if the view moved.
int StepToRegion(const ActionCall& call);

// Unmarks the region at whose corner the view stands. 1 if there was one.
int UnmarkRegion(const ActionCall& call);

int UnmarkAllRegions(const ActionCall& call);

// Pure: the row that lies `step` rows from `row`, in a ring of `count`; `step` is 1 or -1.
int RegionAfter(int row, int step, int count);

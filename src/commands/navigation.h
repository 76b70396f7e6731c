// Moving the focus among windows by geometry, and tiling the windows in view. None of this moves the view.
#pragma once

#include "actions/action_table.h"

// Handler: activates the neighbour of the active window, or of the one under the cursor, in a direction (the
// argument). Beeps if there is none or it has no title.
void FocusNeighbour(const ActionCall& call);

enum CycleTarget { CYCLE_SECOND, CYCLE_LAST };

// Handler: activates the second window from the top that is completely in view, or the last. Does nothing if
// there are fewer than two.
void CycleView(const ActionCall& call);

// Handler: tiles the managed windows that show on the display of the active window, or else on the primary
// one, in its work area. The argument is MDITILE_*.
void TileView(const ActionCall& call);

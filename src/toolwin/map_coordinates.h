// Map coordinates: the map shows all of Quorl in its client area. `map` is the client rectangle. Pure
// functions take any numbers; a desktop or a map without a size gives 0.
#pragma once

#include "actions/action_table.h"
#include "core/platform.h"

// The desktop point shown at a point of the map's current client area.
ActionPoint MapToDesktop(ActionPoint point);

// The desktop distance, in pixels, of a distance on the map's current client area.
POINT MapToDesktopDistance(int dx, int dy);

// The box of a window, whose rectangle is in screen pixels. Corner and size are scaled separately: scaling
// the far corner can differ by a pixel.
RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl);

// The box of the view.
RECT ViewBox(const RECT& map, const RECT& vdesk, const RECT& quorl);

// The box of a region with that corner, in desktop pixels. It always has the size of the screen.
RECT RegionBox(POINT corner, const RECT& map, const RECT& quorl, int screenW, int screenH);

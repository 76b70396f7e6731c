// From the desktop to the map: a picture of all of Quorl in the Toolwin's client area. All of it is pure and
// takes any numbers; a desktop without a size gives boxes without a size at the map's corner. `map` is the
// client rectangle. A corner is scaled, and the size on its own, because scaling the far corner can differ by
// a pixel.
#pragma once

#include "core/platform.h"

// The box of a window, which stands at `window` on the screen, in screen pixels.
RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl);

// The box of what the screen shows.
RECT ViewBox(const RECT& map, const RECT& vdesk, const RECT& quorl);

// The box of a region with that corner, in desktop pixels. It is always one screen in size.
RECT RegionBox(POINT corner, const RECT& map, const RECT& quorl, int screenW, int screenH);

// From the desktop to the map: a picture of all of Quorl in the Toolwin's client area.
#pragma once

#include "core/platform.h"

// Pure: the box of a window on the map. `window` in screen pixels, `map` is the client rectangle; the corner
// is scaled, and the size on its own, because scaling the far corner can differ by a pixel.
RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl);

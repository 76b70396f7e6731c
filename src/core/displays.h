// Measuring the displays.
#pragma once

#include "core/platform.h"

// Sets ScreenRect to the union of all displays and the point (0, 0). Empty without a display.
void MonitorUnion();

// What happens inside the creation of the Toolwin: every default, then what the user stored.
#pragma once

#include "core/platform.h"

// Fills in the shared state. Always 1.
int OnCreate(HWND window);

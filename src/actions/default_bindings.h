// The combinations that a new user finds.
#pragma once

#include "core/platform.h"

// Binds the rows that have one. A refused hotkey is reported; the others still work. Where the settings are
// about to be loaded, a row with a line of its own in the file gets no hotkey here.
void SetDefaultBindings(HWND window);

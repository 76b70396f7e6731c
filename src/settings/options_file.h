// Options, the desktop's size, the map's position and the menu in the settings file.
#pragma once

#include "core/platform.h"

// Reads them and moves the map to its stored position if that has a left above 0 and is on a display. What is
// absent or negative keeps its value. Numbers that would lose windows are clamped, and a menu entry that is
// no action becomes a separator.
void LoadOptions(LPCSTR file);

// Writes them, each with one call; a failed one leaves the stored value unchanged. A menu too long for its
// value loses its end, in the list as well.
void SaveOptions(LPCSTR file);

// Whether the file contains the first value that SaveOptions writes.
bool HasFirstOption(LPCSTR file);

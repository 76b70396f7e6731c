// Creating the map: every default, then what the user stored.
#pragma once

#include "core/platform.h"

void OnCreate(HWND window);

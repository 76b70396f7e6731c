// The message in which the companion library reports the mouse.
#pragma once

#include "core/platform.h"

constexpr UINT HOOK_MOUSE_MESSAGE =
    1124; // posted to the map; wParam: the mouse message, for example WM_MOUSEMOVE

// Exports of the companion library. Look them up by name; call them on the window's thread.
#pragma once

#include "core/platform.h"

extern "C" {

// Sets the window of the calling process that receives the mouse messages. Takes effect at once: if the hook
// is active, it reports to the new window, or stops if `window` is not a window.
void SaveSharedData(HWND window);

// 1: posts HOOK_MOUSE_MESSAGE to the window for every mouse message except the wheel's, wherever the mouse
// is. Moves are posted at most every 10 ms, the last one always, and at most one is in the window's queue,
// because the cursor's position is read when it is handled; clicks are never dropped. If the hook is active
// already, installs it again, in case Windows has removed it. Does nothing without a window. If the window is
// destroyed, the hook ends; calling with 1 starts it again. 0: stops, and returns when the hook is removed,
// or after 2 seconds.
void SetMouseHook(int bWatch);
}

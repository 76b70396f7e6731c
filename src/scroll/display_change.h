// Displays that come, go, or change: Quorl waits until Windows has settled, then shows the same part of the
// desktop as before.
#pragma once

#include "core/platform.h"

// Measures the displays and uses them at once: at start, and at exit, when Quorl no longer waits for them to
// settle. Without any display the old ones stay in use.
void UseCurrentDisplays();

// Measures the displays, and waits for them to settle if others are found than the last time.
void CheckDisplays();

// Windows has announced a change: waits for the displays to settle, again from the start if it waits already.
// Until then nothing moves, and all coordinates stay as they are.
void OnDisplayChange();

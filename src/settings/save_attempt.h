// What the steps of one save share: how long it may wait, and whether it has failed.
#pragma once

#include "core/platform.h"

extern bool bWriteFailed; // set by a write that found the disk full, or the file open for too long

// Starts counting again, and resets `bWriteFailed`.
void BeginSave();

// If the error says that another program holds the file open, waits for a moment and returns true: the step
// is worth another try. False for any other error, and once the save has waited for a fifth of a second in
// all.
bool WaitIfOpen(DWORD error);

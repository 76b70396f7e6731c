// What the steps of one save share: how long it may wait, and whether it has failed.
#pragma once

#include "core/platform.h"

extern bool bSaveFailed;

// Starts with the whole wait, and resets `bSaveFailed`.
void BeginSave();

// If the error says that another program holds the file open, waits for a moment and returns true: the step
// is worth another try. False for any other error, and once the save has waited for about a fifth of a second
// in all.
bool WaitIfOpen(DWORD error);

// Fails the save if the error of a write is not about the value alone.
void NoteWriteError(DWORD error);

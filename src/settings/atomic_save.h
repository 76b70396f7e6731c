// Saving a settings file atomically.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file, then replaces the file with the copy, so that a crash or a full disk
// damages nothing. If a write to the copy fails, the file stays as it is. If the copy cannot be made, or
// cannot replace the file, runs `save` on the file itself.
void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file));

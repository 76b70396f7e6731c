// Saving a settings file atomically.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file, then replaces the file with the copy, unless the disk is full or
// `isComplete` rejects what was written. If anything fails, the file stays as it is and the copy is deleted.
// A program that holds the file open is waited for, a fifth of a second at most. Only if access to the folder
// is denied, so that it cannot take a copy, runs `save` on the file itself. A read-only file is not changed.
// The file keeps its attributes and access rights. The name of the copy, in the file's folder, is
// quorl<process id>.new.
void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file));

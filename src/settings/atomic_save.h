// Saving a settings file atomically.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file, then replaces the file with the copy, unless the disk is full or
// `isComplete` rejects what was written. If anything fails, the file stays as it is and the copy is deleted.
// Only if access to the folder is denied, so that it cannot take a copy, runs `save` on the file itself. A
// read-only file is not changed.
// Names of the copies, in the file's folder: quorl<process id>.new while it is written, quorl.old for what it
// replaces.
void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file));

// Puts the file back that a sudden end in the middle of its replacement has moved away. Call before the file
// is looked for.
void RecoverStored(LPCSTR file);

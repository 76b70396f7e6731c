// Saving a settings file atomically.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file, then replaces the file with the copy. The file stays as it is if the
// copy cannot be made, the save fails, `isComplete` rejects what was written, or the copy cannot replace it;
// then the copy is deleted, if possible. A value that alone is refused keeps what was stored. While the copy
// is made, written, flushed, moved or deleted, a program that holds one of the two files open is waited for.
// Only if access to the folder is denied, so that it cannot take a copy, runs `save` on the file itself. A
// read-only file is not changed. The file keeps its attributes and access rights. The name of the copy, in
// the file's folder, is quorl<process id>.new.
void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file));

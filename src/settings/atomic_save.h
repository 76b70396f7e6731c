// Saving a settings file atomically.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file, then replaces the file with the copy. The file stays as it is if the
// copy cannot be made, the disk is full, `isComplete` rejects what was written, or the copy cannot replace
// it; then the copy is deleted, if possible. A value that cannot be written for another reason keeps what was
// stored. A program that holds one of the two open is waited for, about a fifth of a second in all. Only if
// access to the folder is denied, so that it cannot take a copy, runs `save` on the file itself. A read-only
// file is not changed. The file keeps its attributes and access rights. The name of the copy, in the file's
// folder, is quorl<process id>.new.
void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file));

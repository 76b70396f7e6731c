// A settings file that changes as a whole.
#pragma once

#include "core/platform.h"

// Runs `save` on a copy of the file and puts that in the file's place, so that the end of the process or a
// full disk in the midst of many writes costs nothing that was stored: after a failed write all stays. Where
// no copy can be made, it runs on the file itself.
void SaveWhole(HWND window, LPCSTR file, void (*save)(HWND window, LPCSTR file));

// Where the settings file is.
#pragma once

#include "core/platform.h"

// Portable mode: a quorl.ini beside quorl.exe, even an empty one, is the settings file. Otherwise it is the
// one in the Windows folder, or in the user's own copy of that. Call once, at start.
void ChooseSettingsFile();

// The full path in portable mode; else the bare name, which the profile functions look up in the Windows
// folder.
LPCSTR SettingsFile();

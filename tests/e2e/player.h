// The windows that Quorl scrolls in the tests: this same program, started again with a part to play.
#pragma once

#include <windows.h>

// Plays a part until the window is closed: `--play PART TITLE LEFT TOP WIDTH HEIGHT`. Parts: "plain"; "hung"
// (answers nothing once it is on show); "rewrites" (asks in WM_MOVING for 7 pixels more to the right and 9
// down); "dies" (ends in WM_MOVING). Returns the exit code; 2 for a part that it does not know.
int Play(int count, char** arguments);

// Starting over in the same process.
#pragma once

// Restores the state that the program, the in-memory desktop and the test support had before the program ran;
// the first call must come before it has. Whether the desktop records stays as it is.
void ResetProgram();

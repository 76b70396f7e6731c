// A guided tour: real programs, real keys, and what they did, in numbers read back from the windows. Without
// pictures its parts are tests.
#pragma once

// Tells each step in one line on the standard output. A line "picture NAME" asks the caller for a picture of
// the screen; the tour goes on when it reads a line. Returns the exit code: 0 if everything came as
// announced.
int Tour();

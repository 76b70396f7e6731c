// The last thing that Quorl does when it crashes.
#pragma once

// From here on an exception that nothing handles folds the windows back onto the screen before the system
// ends the process.
void FoldWindowsOnCrash();

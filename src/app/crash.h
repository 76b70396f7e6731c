// Folding the windows when Quorl crashes.
#pragma once

// From now on, an unhandled exception folds the windows before Windows ends the process.
void FoldWindowsOnCrash();

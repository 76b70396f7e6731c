// Folding: bringing all windows back onto the screen, so that none stays out of reach.
#pragma once

// Folds every managed window, locked ones too. One that does not respond within FOLD_TIMEOUT stays where it
// is. Any other refusal shows a box if `bReport` is set.
void GatherWindows(bool bReport = true);

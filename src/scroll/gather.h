// Folding: bringing all windows back onto the screen, so that none stays out of reach.
#pragma once

enum FoldReason {
    FOLD_AT_EXIT,
    FOLD_TO_SMALLER_DESKTOP,
    FOLD_AT_LOGOFF, // within a few seconds, because Windows ends the process after five
    FOLD_IN_CRASH,
};

// Folds every managed window, locked ones too, and every other window of the user that is out of reach: a
// disabled, cloaked or minimized one, or one beyond the desktop. A window that does not respond in time is
// asked to move when it responds again. At exit and for a smaller desktop, a refusal shows a message box.
// Ends early when another fold starts meanwhile, which then folds everything.
void GatherWindows(FoldReason reason);

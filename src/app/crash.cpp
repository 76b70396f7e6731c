#include "app/crash.h"

#include "core/state.h"
#include "scroll/display_change.h"
#include "scroll/gather.h"

static LONG bFolding;

// The state may be corrupt: a second exception, or one of another thread, must not start this again.
static LONG WINAPI FoldOnCrash(EXCEPTION_POINTERS*) {
    if (!InterlockedExchange(&bFolding, 1)) {
        bQuitting = true; // also while the displays change
        UseCurrentDisplays();
        GatherWindows(FOLD_IN_CRASH);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

void FoldWindowsOnCrash() {
    SetUnhandledExceptionFilter(FoldOnCrash);
}

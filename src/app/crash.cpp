#include "app/crash.h"

#include "core/state.h"
#include "scroll/display_change.h"
#include "scroll/gather.h"
#include "windows/other_window.h"

static LONG bFolding;

// If another thread has crashed, the window's own may be filling the window table. It responds when it has
// done that, and does not start again while Quorl is quitting.
static void AwaitRefresh() {
    DWORD_PTR result = 0;
    SendMessageTimeoutA(MainWnd, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, FOLD_TIMEOUT, &result);
}

// The state may be corrupt: a second exception, or one of another thread, must not start this again.
static LONG WINAPI FoldOnCrash(EXCEPTION_POINTERS*) {
    if (!InterlockedExchange(&bFolding, 1)) {
        bQuitting = true; // also while the displays change
        AwaitRefresh();
        UseCurrentDisplays();
        GatherWindows(FOLD_IN_CRASH);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

void FoldWindowsOnCrash() {
    SetUnhandledExceptionFilter(FoldOnCrash);
}

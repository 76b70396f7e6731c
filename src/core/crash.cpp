// The last thing that Quorl does when it crashes.
#include "core/crash.h"

#include "core/platform.h"
#include "scroll/gather.h"

static LONG bFolding;

// The state may be broken: a second exception on the way must not come back here, nor one of another thread.
static LONG WINAPI FoldAndGoOn(EXCEPTION_POINTERS*) {
    if (!InterlockedExchange(&bFolding, 1))
        FoldWindows(nullptr);
    return EXCEPTION_CONTINUE_SEARCH;
}

void FoldWindowsOnCrash() {
    SetUnhandledExceptionFilter(FoldAndGoOn);
}

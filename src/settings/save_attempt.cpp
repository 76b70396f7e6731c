#include "settings/save_attempt.h"

// A virus scanner, a backup, or a program that reads the settings holds a file open for a moment. One that is
// open for longer is left alone: the user waits for the save.
static const int MAX_PAUSES = 10;
static const DWORD PAUSE = 20; // milliseconds

static int pauses;

bool bWriteFailed;

void BeginSave() {
    pauses = 0;
    bWriteFailed = false;
}

bool WaitIfOpen(DWORD error) {
    if (error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION)
        return false;
    if (pauses == MAX_PAUSES)
        return false;
    ++pauses;
    Sleep(PAUSE);
    return true;
}

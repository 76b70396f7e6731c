#include "settings/save_attempt.h"

#include <algorithm>
#include <iterator>

// A virus scanner, a backup, or a program that reads the settings holds a file open for a moment. One that is
// open for longer is left alone: the user waits for the save.
static const int MAX_PAUSES = 10;
static const DWORD PAUSE = 20; // milliseconds

static int pauses;

bool bSaveFailed;

void BeginSave() {
    pauses = 0;
    bSaveFailed = false;
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

// The disk is full or gone, or the file is not to be had: other values would be missing too.
static const DWORD FILE_ERRORS[] = {ERROR_ACCESS_DENIED,     ERROR_NOT_READY,        ERROR_WRITE_FAULT,
                                    ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION,   ERROR_DISK_FULL,
                                    ERROR_HANDLE_DISK_FULL,  ERROR_NOT_ENOUGH_QUOTA, ERROR_USER_MAPPED_FILE,
                                    ERROR_NETNAME_DELETED};

void NoteWriteError(DWORD error) {
    if (std::find(std::begin(FILE_ERRORS), std::end(FILE_ERRORS), error) != std::end(FILE_ERRORS))
        bSaveFailed = true;
}

#include "settings/atomic_save.h"

#include "settings/ini.h"

#include <cstdio>
#include <cstring>

namespace {

struct Paths {
    char stored[MAX_PATH];
    char copy[MAX_PATH];
};

} // namespace

// A bare name is one in the Windows folder to the profile functions, but not to those for files. False if the
// path is too long.
static bool FindFolder(LPCSTR file, char (&folder)[MAX_PATH]) {
    if (const char* const end = std::strrchr(file, '\\'))
        return std::snprintf(folder, MAX_PATH, "%.*s", static_cast<int>(end - file), file) < MAX_PATH;
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    return length && length < MAX_PATH;
}

// The copy is in the same folder. Its name is unique to the process: if two saved into one copy, each would
// contribute a part.
static bool FindPaths(LPCSTR file, Paths* paths) {
    char folder[MAX_PATH] = "";
    if (!FindFolder(file, folder))
        return false;
    const char* const end = std::strrchr(file, '\\');
    const unsigned long process = GetCurrentProcessId();
    return std::snprintf(paths->stored, MAX_PATH, "%s\\%s", folder, end ? end + 1 : file) < MAX_PATH &&
           std::snprintf(paths->copy, MAX_PATH, "%s\\quorl%lx.new", folder, process) < MAX_PATH;
}

static bool IsReadOnly(LPCSTR file) {
    const DWORD attributes = GetFileAttributesA(file);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

// If the file does not exist yet, neither does the copy. A killed process with the same id may have left one.
static bool MakeCopy(const Paths& paths) {
    DeleteFileA(paths.copy);
    return CopyFileA(paths.stored, paths.copy, FALSE) || GetLastError() == ERROR_FILE_NOT_FOUND;
}

// Without this, a power failure can leave an empty file: renaming may reach the disk before the contents.
static bool FlushToDisk(LPCSTR file) {
    const HANDLE handle = CreateFileA(file, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const bool bFlushed = FlushFileBuffers(handle) != 0;
    CloseHandle(handle);
    return bFlushed;
}

// ReplaceFileA keeps the file's attributes and access rights, but needs an existing file and more rights than
// renaming. False if the file is as before.
static bool ReplaceStored(const Paths& paths) {
    if (ReplaceFileA(paths.stored, paths.copy, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr))
        return true;
    const DWORD error = GetLastError();
    if (MoveFileExA(paths.copy, paths.stored, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    // It failed after it had moved the file away: do not delete the copy, the only one with the file's name.
    return error == ERROR_UNABLE_TO_MOVE_REPLACEMENT || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
}

void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file)) {
    Paths paths;
    if (!FindPaths(file, &paths) || IsReadOnly(paths.stored))
        return;
    if (!MakeCopy(paths)) {
        if (GetLastError() == ERROR_ACCESS_DENIED)
            save(file);
        return; // a full disk, a file that another program holds open: writing could damage what is stored
    }
    bDiskFull = false;
    save(paths.copy);
    if (bDiskFull || !FlushToDisk(paths.copy) || !isComplete(paths.copy) || !ReplaceStored(paths))
        DeleteFileA(paths.copy);
}

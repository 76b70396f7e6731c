#include "settings/atomic_save.h"

#include "settings/ini.h"

#include <cstdio>
#include <cstring>

namespace {

struct Paths {
    char stored[MAX_PATH];
    char copy[MAX_PATH];
    char old[MAX_PATH]; // the file while it is being replaced
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
           std::snprintf(paths->copy, MAX_PATH, "%s\\quorl%lx.new", folder, process) < MAX_PATH &&
           std::snprintf(paths->old, MAX_PATH, "%s\\quorl.old", folder) < MAX_PATH;
}

static bool Exists(LPCSTR file) {
    return GetFileAttributesA(file) != INVALID_FILE_ATTRIBUTES;
}

static void Recover(const Paths& paths) {
    if (!Exists(paths.stored) && Exists(paths.old))
        MoveFileExA(paths.old, paths.stored, MOVEFILE_WRITE_THROUGH);
}

void RecoverStored(LPCSTR file) {
    Paths paths;
    if (FindPaths(file, &paths))
        Recover(paths);
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
// renaming. It first moves the file away and then the copy to its place: a process that ends in between
// leaves no file but the old one, by the name that is given here.
static bool ReplaceStored(const Paths& paths) {
    const bool bReplaced =
        ReplaceFileA(paths.stored, paths.copy, paths.old, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                     nullptr) ||
        MoveFileExA(paths.copy, paths.stored, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    Recover(paths);
    if (bReplaced)
        DeleteFileA(paths.old);
    return bReplaced;
}

void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file)) {
    Paths paths;
    if (!FindPaths(file, &paths) || IsReadOnly(paths.stored))
        return;
    Recover(paths);
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

#include "settings/atomic_save.h"

#include "settings/save_attempt.h"

#include <cstdio>
#include <cstring>

namespace {

struct Paths {
    char stored[MAX_PATH];
    char copy[MAX_PATH];
};

enum CopyResult {
    COPY_MADE,
    FOLDER_DENIED, // the user may not create files there
    COPY_FAILED    // a full disk, or a file that another program holds open
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

// Leaves the reason in GetLastError if it returns false.
static bool DeleteCopy(const Paths& paths) {
    while (!DeleteFileA(paths.copy))
        if (!WaitIfOpen(GetLastError()))
            return false;
    return true;
}

// If the file does not exist yet, neither does the copy. A killed process with the same id may have left one.
static CopyResult MakeCopy(const Paths& paths) {
    if (!DeleteCopy(paths) && GetLastError() != ERROR_FILE_NOT_FOUND)
        return COPY_FAILED;
    while (!CopyFileA(paths.stored, paths.copy, FALSE))
        switch (const DWORD error = GetLastError()) {
        case ERROR_FILE_NOT_FOUND: return COPY_MADE;
        case ERROR_ACCESS_DENIED: return FOLDER_DENIED;
        default:
            if (!WaitIfOpen(error))
                return COPY_FAILED;
        }
    return COPY_MADE;
}

static HANDLE OpenToFlush(LPCSTR file) {
    for (;;) {
        const HANDLE handle = CreateFileA(file, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle != INVALID_HANDLE_VALUE || !WaitIfOpen(GetLastError()))
            return handle;
    }
}

// Without this, a power failure can leave an empty file: renaming may reach the disk before the contents.
// Some network folders cannot flush.
static bool FlushToDisk(LPCSTR file) {
    const HANDLE handle = OpenToFlush(file);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const bool bFlushed = FlushFileBuffers(handle) || GetLastError() == ERROR_INVALID_FUNCTION ||
                          GetLastError() == ERROR_NOT_SUPPORTED;
    CloseHandle(handle);
    return bFlushed;
}

// CopyFileA copies the attributes but not the access rights: a new file gets those of its folder. If this
// fails, it keeps them.
static void CopyRights(LPCSTR from, LPCSTR to) {
    alignas(void*) char rights[4096];
    DWORD size = 0;
    if (!GetFileSecurityA(from, DACL_SECURITY_INFORMATION, rights, sizeof rights, &size))
        return;
    // Else rights that come from the folder would no longer change with those of the folder.
    SetSecurityDescriptorControl(rights, SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    SetFileSecurityA(to, DACL_SECURITY_INFORMATION, rights);
}

// A target that is open is reported as a denied access, as a missing right to delete it is.
static DWORD ReplaceError() {
    const DWORD error = GetLastError();
    return error == ERROR_ACCESS_DENIED ? ERROR_SHARING_VIOLATION : error;
}

// Not with ReplaceFileA: it renames twice, and a process that ends in between leaves no file by its name.
static bool ReplaceStored(const Paths& paths) {
    CopyRights(paths.stored, paths.copy);
    while (!MoveFileExA(paths.copy, paths.stored, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        if (!WaitIfOpen(ReplaceError()))
            return false;
    return true;
}

static bool SaveByCopy(const Paths& paths, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file)) {
    save(paths.copy);
    return !bSaveFailed && FlushToDisk(paths.copy) && isComplete(paths.copy) && ReplaceStored(paths);
}

void SaveAtomically(LPCSTR file, void (*save)(LPCSTR file), bool (*isComplete)(LPCSTR file)) {
    Paths paths;
    if (!FindPaths(file, &paths) || IsReadOnly(paths.stored))
        return;
    BeginSave();
    const CopyResult result = MakeCopy(paths);
    if (result == FOLDER_DENIED)
        return save(file);
    if (result == COPY_MADE && SaveByCopy(paths, save, isComplete))
        return;
    BeginSave(); // waits anew: what is left behind, nobody would delete
    DeleteCopy(paths);
}

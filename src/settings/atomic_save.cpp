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

static const char COPY_FILE[] = "quorl.new"; // in the same folder as the file

// The profile functions take a bare name, those for files do not. False if the path is too long.
static bool FindInWindowsFolder(LPCSTR file, char (&path)[MAX_PATH]) {
    char folder[MAX_PATH] = "";
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    return length && length < MAX_PATH && std::snprintf(path, MAX_PATH, "%s\\%s", folder, file) < MAX_PATH;
}

static bool FindPaths(LPCSTR file, Paths* paths) {
    const char* const end = std::strrchr(file, '\\');
    if (!end)
        return FindInWindowsFolder(file, paths->stored) && FindInWindowsFolder(COPY_FILE, paths->copy);
    const int folder = static_cast<int>(end + 1 - file);
    return std::snprintf(paths->stored, MAX_PATH, "%s", file) < MAX_PATH &&
           std::snprintf(paths->copy, MAX_PATH, "%.*s%s", folder, file, COPY_FILE) < MAX_PATH;
}

// The copy of a read-only file would be read-only, and a copy that cannot be written or deleted would block
// all later ones. If the file does not exist yet, neither must the copy.
static bool MakeCopy(const Paths& paths) {
    SetFileAttributesA(paths.copy, FILE_ATTRIBUTE_NORMAL);
    if (CopyFileA(paths.stored, paths.copy, FALSE))
        return SetFileAttributesA(paths.copy, FILE_ATTRIBUTE_NORMAL) != 0;
    return GetLastError() == ERROR_FILE_NOT_FOUND &&
           (DeleteFileA(paths.copy) || GetLastError() == ERROR_FILE_NOT_FOUND);
}

// False if the caller must write the file directly: it could not be copied or replaced.
static bool SaveByCopy(LPCSTR file, void (*save)(LPCSTR)) {
    Paths paths;
    if (!FindPaths(file, &paths) || !MakeCopy(paths))
        return false;
    bWriteFailed = false;
    save(std::strchr(file, '\\') ? paths.copy : COPY_FILE);
    const bool bReplaced = !bWriteFailed && MoveFileExA(paths.copy, paths.stored,
                                                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!bReplaced)
        DeleteFileA(paths.copy);
    return bReplaced || bWriteFailed;
}

void SaveAtomically(LPCSTR file, void (*save)(LPCSTR)) {
    if (!SaveByCopy(file, save))
        save(file);
}

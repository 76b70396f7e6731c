// A settings file that changes as a whole.
#include "settings/whole_file.h"

#include "settings/ini.h"

#include <cstdio>

namespace {

struct Paths {
    char stored[MAX_PATH];
    char copy[MAX_PATH];
};

} // namespace

static const char COPY_FILE[] = "quorl.new"; // lies where the file does

// The profile functions take a bare name, those for files do not. 0: the folder's name is too long.
static int FindPath(LPCSTR file, char (&path)[MAX_PATH]) {
    char folder[MAX_PATH] = "";
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    return length && length < MAX_PATH && std::snprintf(path, MAX_PATH, "%s\\%s", folder, file) < MAX_PATH;
}

// Of a write-protected file the copy would be one too, and a copy that no one can write or delete would be in
// the way of all later ones. Of a file that is not there yet, the copy is one that is not there either.
static int MakeCopy(const Paths& paths) {
    SetFileAttributesA(paths.copy, FILE_ATTRIBUTE_NORMAL);
    if (CopyFileA(paths.stored, paths.copy, FALSE))
        return SetFileAttributesA(paths.copy, FILE_ATTRIBUTE_NORMAL);
    return GetLastError() == ERROR_FILE_NOT_FOUND &&
           (DeleteFileA(paths.copy) || GetLastError() == ERROR_FILE_NOT_FOUND);
}

// 0: the file is as it was, but could be written itself.
static int SaveByCopy(HWND window, LPCSTR file, void (*save)(HWND, LPCSTR)) {
    Paths paths;
    if (!FindPath(file, paths.stored) || !FindPath(COPY_FILE, paths.copy) || !MakeCopy(paths))
        return 0;
    bWriteFailed = 0;
    save(window, COPY_FILE);
    const int bTaken = !bWriteFailed && MoveFileExA(paths.copy, paths.stored,
                                                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!bTaken)
        DeleteFileA(paths.copy);
    return bTaken || bWriteFailed;
}

void SaveWhole(HWND window, LPCSTR file, void (*save)(HWND, LPCSTR)) {
    if (!SaveByCopy(window, file, save))
        save(window, file);
}

// The files of the Windows folder: the same that the profile functions read and write.
#include "ground.h"

static const std::string FOLDER = "C:\\WINDOWS";

UINT GetWindowsDirectoryA(LPSTR folder, UINT size) {
    return Fails("GetWindowsDirectoryA")
               ? 0
               : static_cast<UINT>(CopyText(FOLDER, folder, static_cast<int>(size)));
}

// Null, with the error set: there is no such file.
static std::string* FileAt(LPCSTR path) {
    const auto found = Desk.files.find(LowerCase(path + FOLDER.size() + 1));
    if (found == Desk.files.end())
        SetLastError(ERROR_FILE_NOT_FOUND);
    return found == Desk.files.end() ? nullptr : &found->second;
}

BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL) {
    const std::string* const file = Fails("CopyFileA") ? nullptr : FileAt(from);
    if (!file)
        return FALSE;
    const std::string text = *file;
    Desk.files[LowerCase(to + FOLDER.size() + 1)] = text;
    return TRUE;
}

BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD) {
    if (Fails("MoveFileExA") || !CopyFileA(from, to, FALSE))
        return FALSE;
    return DeleteFileA(from);
}

BOOL DeleteFileA(LPCSTR file) {
    if (Fails("DeleteFileA") || !FileAt(file))
        return FALSE;
    Desk.files.erase(LowerCase(file + FOLDER.size() + 1));
    return TRUE;
}

// Files, shared with the profile functions.
#include "internal.h"

static const std::string FOLDER = "C:\\WINDOWS";

UINT GetWindowsDirectoryA(LPSTR folder, UINT size) {
    return CallFails("GetWindowsDirectoryA")
               ? 0
               : static_cast<UINT>(CopyText(FOLDER, folder, static_cast<int>(size)));
}

std::string FileKey(const std::string& path) {
    const std::string key = LowerCase(path);
    const std::string prefix = LowerCase(FOLDER) + '\\';
    return key.starts_with(prefix) ? key.substr(prefix.size()) : key;
}

static BOOL FailWith(DWORD error) {
    SetLastError(error);
    return FALSE;
}

static bool IsProtected(const std::string& name) {
    return Desk.protectedFiles.contains(name);
}

BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL) {
    if (CallFails("CopyFileA"))
        return FALSE;
    const auto file = Desk.files.find(FileKey(from));
    if (file == Desk.files.end())
        return FailWith(ERROR_FILE_NOT_FOUND);
    if (IsProtected(FileKey(to)))
        return FailWith(ERROR_ACCESS_DENIED);
    const std::string text = file->second;
    Desk.files[FileKey(to)] = text;
    if (IsProtected(FileKey(from)))
        Desk.protectedFiles.insert(FileKey(to));
    return TRUE;
}

// The read-only attribute moves along with the file. A read-only target is not replaced.
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD) {
    if (CallFails("MoveFileExA") || !CopyFileA(from, to, FALSE))
        return FALSE;
    Desk.protectedFiles.erase(FileKey(from));
    return DeleteFileA(from);
}

BOOL DeleteFileA(LPCSTR file) {
    if (CallFails("DeleteFileA"))
        return FALSE;
    if (!Desk.files.contains(FileKey(file)))
        return FailWith(ERROR_FILE_NOT_FOUND);
    if (IsProtected(FileKey(file)))
        return FailWith(ERROR_ACCESS_DENIED);
    Desk.files.erase(FileKey(file));
    return TRUE;
}

BOOL SetFileAttributesA(LPCSTR file, DWORD attributes) {
    if (CallFails("SetFileAttributesA"))
        return FALSE;
    if (!Desk.files.contains(FileKey(file)))
        return FailWith(ERROR_FILE_NOT_FOUND);
    if (attributes & FILE_ATTRIBUTE_READONLY)
        Desk.protectedFiles.insert(FileKey(file));
    else
        Desk.protectedFiles.erase(FileKey(file));
    return TRUE;
}

DWORD GetFileAttributesA(LPCSTR file) {
    const std::string key = FileKey(file);
    if (CallFails("GetFileAttributesA") || !Desk.files.contains(key)) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_FILE_ATTRIBUTES;
    }
    return IsProtected(key) ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
}

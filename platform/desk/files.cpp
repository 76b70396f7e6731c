// The files of the Windows folder: the same that the profile functions read and write.
#include "ground.h"

static const std::string FOLDER = "C:\\WINDOWS";

UINT GetWindowsDirectoryA(LPSTR folder, UINT size) {
    return Fails("GetWindowsDirectoryA")
               ? 0
               : static_cast<UINT>(CopyText(FOLDER, folder, static_cast<int>(size)));
}

static std::string NameIn(LPCSTR path) {
    return LowerCase(path + FOLDER.size() + 1);
}

static BOOL Refuse(DWORD error) {
    SetLastError(error);
    return FALSE;
}

static bool IsProtected(const std::string& name) {
    return Desk.protectedFiles.contains(name);
}

BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL) {
    if (Fails("CopyFileA"))
        return FALSE;
    const auto file = Desk.files.find(NameIn(from));
    if (file == Desk.files.end())
        return Refuse(ERROR_FILE_NOT_FOUND);
    if (IsProtected(NameIn(to)))
        return Refuse(ERROR_ACCESS_DENIED);
    const std::string text = file->second;
    Desk.files[NameIn(to)] = text;
    if (IsProtected(NameIn(from)))
        Desk.protectedFiles.insert(NameIn(to));
    return TRUE;
}

// The protection of what is moved goes along; that of what is replaced refuses.
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD) {
    if (Fails("MoveFileExA") || !CopyFileA(from, to, FALSE))
        return FALSE;
    Desk.protectedFiles.erase(NameIn(from));
    return DeleteFileA(from);
}

BOOL DeleteFileA(LPCSTR file) {
    if (Fails("DeleteFileA"))
        return FALSE;
    if (!Desk.files.contains(NameIn(file)))
        return Refuse(ERROR_FILE_NOT_FOUND);
    if (IsProtected(NameIn(file)))
        return Refuse(ERROR_ACCESS_DENIED);
    Desk.files.erase(NameIn(file));
    return TRUE;
}

BOOL SetFileAttributesA(LPCSTR file, DWORD attributes) {
    if (Fails("SetFileAttributesA"))
        return FALSE;
    if (!Desk.files.contains(NameIn(file)))
        return Refuse(ERROR_FILE_NOT_FOUND);
    if (attributes & FILE_ATTRIBUTE_READONLY)
        Desk.protectedFiles.insert(NameIn(file));
    else
        Desk.protectedFiles.erase(NameIn(file));
    return TRUE;
}

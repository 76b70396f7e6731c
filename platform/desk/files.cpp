// Files, shared with the profile functions.
#include "internal.h"

static const std::string FOLDER = "C:\\WINDOWS";

UINT GetWindowsDirectoryA(LPSTR folder, UINT size) {
    return CallFails("GetWindowsDirectoryA")
               ? 0
               : static_cast<UINT>(CopyText(FOLDER, folder, static_cast<int>(size)));
}

const std::string& FileKey(LPCSTR path) {
    static const std::string prefix = LowerCase(FOLDER) + '\\';
    static std::string known, key;
    if (known == path)
        return key; // a save asks hundreds of times for the same one
    known = path;
    key = LowerCase(known);
    if (key.starts_with(prefix))
        key.erase(0, prefix.size());
    return key;
}

static BOOL FailWith(DWORD error) {
    SetLastError(error);
    return FALSE;
}

static bool IsProtected(const std::string& name) {
    return Desk.protectedFiles.contains(name);
}

static bool IsOpen(const std::string& name) {
    return Desk.openFiles.contains(name);
}

static BOOL Copy(LPCSTR from, LPCSTR to) {
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

static BOOL Remove(LPCSTR file) {
    Desk.protectedFiles.erase(FileKey(file));
    Desk.files.erase(FileKey(file));
    return TRUE;
}

BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL) {
    return !CallFails("CopyFileA") && Copy(from, to);
}

// Attributes and rights move along with the file. A read-only target is not replaced.
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD) {
    if (CallFails("MoveFileExA"))
        return FALSE;
    if (IsOpen(FileKey(from)))
        return FailWith(ERROR_SHARING_VIOLATION);
    if (IsOpen(FileKey(to)))
        return FailWith(ERROR_ACCESS_DENIED);
    if (!Copy(from, to))
        return FALSE;
    Desk.ownRights.erase(FileKey(to));
    if (Desk.ownRights.erase(FileKey(from)))
        Desk.ownRights.insert(FileKey(to));
    return Remove(from);
}

// The security descriptor is a byte: whether the file has rights of its own.
BOOL GetFileSecurityA(LPCSTR file, DWORD, LPVOID rights, DWORD, DWORD*) {
    *static_cast<bool*>(rights) = Desk.ownRights.contains(FileKey(file));
    return !CallFails("GetFileSecurityA") && Desk.files.contains(FileKey(file));
}

BOOL SetFileSecurityA(LPCSTR file, DWORD, LPVOID rights) {
    if (CallFails("SetFileSecurityA"))
        return FALSE;
    if (*static_cast<bool*>(rights))
        Desk.ownRights.insert(FileKey(file));
    return TRUE;
}

BOOL SetSecurityDescriptorControl(LPVOID, WORD, WORD) {
    return !CallFails("SetSecurityDescriptorControl");
}

BOOL DeleteFileA(LPCSTR file) {
    if (CallFails("DeleteFileA"))
        return FALSE;
    if (!Desk.files.contains(FileKey(file)))
        return FailWith(ERROR_FILE_NOT_FOUND);
    if (IsProtected(FileKey(file)))
        return FailWith(ERROR_ACCESS_DENIED);
    if (IsOpen(FileKey(file)))
        return FailWith(ERROR_SHARING_VIOLATION);
    return Remove(file);
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
    const std::string& key = FileKey(file);
    if (CallFails("GetFileAttributesA") || !Desk.files.contains(key)) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_FILE_ATTRIBUTES;
    }
    return IsProtected(key) ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
}

// The handle is the address of the open file's name.
HANDLE CreateFileA(LPCSTR file, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE) {
    const std::string& key = FileKey(file);
    if (CallFails("CreateFileA"))
        return INVALID_HANDLE_VALUE;
    if (!Desk.files.contains(key)) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    return const_cast<std::string*>(&*Desk.openFiles.insert(key).first);
}

BOOL FlushFileBuffers(HANDLE) {
    return !CallFails("FlushFileBuffers");
}

// Closes a valid handle even if it fails.
BOOL CloseHandle(HANDLE handle) {
    Desk.openFiles.erase(*static_cast<std::string*>(handle));
    return !CallFails("CloseHandle");
}

DWORD GetCurrentProcessId() {
    return Desk.processId;
}

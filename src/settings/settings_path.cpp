#include "settings/settings_path.h"

#include "settings/ini.h"

#include <cstring>
#include <cwchar>

static const int PATH_SIZE = MAX_PATH - 8; // the name of the copy for saving is up to 8 bytes longer

static char PortableFile[PATH_SIZE]; // empty: not portable

// The path of quorl.ini in the program's folder. False if the path is too long.
static bool FindBesideProgram(WCHAR (&path)[MAX_PATH]) {
    static const WCHAR name[] = L"quorl.ini";
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (!length || length >= MAX_PATH)
        return false;
    WCHAR* const end = std::wcsrchr(path, L'\\');
    if (!end || static_cast<std::size_t>(end + 1 - path) + std::wcslen(name) >= MAX_PATH)
        return false;
    std::wcscpy(end + 1, name);
    return true;
}

// False if a character of the path has no form in the ANSI code page, or if the path is too long.
static bool ToAnsiPath(const WCHAR* path, char (&ansi)[PATH_SIZE]) {
    BOOL bUsedDefault = FALSE;
    return WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path, -1, ansi, PATH_SIZE, nullptr,
                               &bUsedDefault) &&
           !bUsedDefault;
}

// The folder may be named in another alphabet; its short name then has a form.
static bool FindAnsiPath(char (&ansi)[PATH_SIZE]) {
    WCHAR path[MAX_PATH];
    if (!FindBesideProgram(path))
        return false;
    if (ToAnsiPath(path, ansi))
        return true;
    WCHAR shortPath[MAX_PATH];
    const DWORD length = GetShortPathNameW(path, shortPath, MAX_PATH);
    return length && length < MAX_PATH && ToAnsiPath(shortPath, ansi);
}

// INVALID_FILE_ATTRIBUTES, for a file that does not exist, includes the attribute of a folder.
static bool IsFile(LPCSTR path) {
    return !(GetFileAttributesA(path) & FILE_ATTRIBUTE_DIRECTORY);
}

void ChooseSettingsFile() {
    if (!FindAnsiPath(PortableFile) || !IsFile(PortableFile))
        PortableFile[0] = 0;
}

LPCSTR SettingsFile() {
    return PortableFile[0] ? PortableFile : SETTINGS_FILE;
}

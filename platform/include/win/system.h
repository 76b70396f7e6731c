// The rest of the system: errors, modules, pictures, monitors, boxes, sounds, profile files.
#pragma once

#include "types.h"

struct MONITORINFO {
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork;
    DWORD dwFlags;
};

struct EXCEPTION_POINTERS;
using LPTOP_LEVEL_EXCEPTION_FILTER = LONG(WINAPI*)(EXCEPTION_POINTERS*);

constexpr LONG EXCEPTION_CONTINUE_SEARCH = 0;

using MONITORENUMPROC = BOOL(CALLBACK*)(HMONITOR, HDC, RECT*, LPARAM);

constexpr UINT IMAGE_ICON = 1;
inline const LPSTR IDI_APPLICATION = MAKEINTRESOURCEA(32512);
inline const LPSTR IDC_ARROW = MAKEINTRESOURCEA(32512);

constexpr UINT MB_OK = 0;
constexpr UINT MB_YESNO = 4;
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD ERROR_TIMEOUT = 1460;

DWORD WINAPI GetLastError();
void WINAPI SetLastError(DWORD error);

LPTOP_LEVEL_EXCEPTION_FILTER WINAPI SetUnhandledExceptionFilter(LPTOP_LEVEL_EXCEPTION_FILTER filter);
LONG WINAPI InterlockedExchange(volatile LONG* target, LONG value);

HMODULE WINAPI GetModuleHandleA(LPCSTR name);
HMODULE WINAPI LoadLibraryA(LPCSTR name);
BOOL WINAPI FreeLibrary(HMODULE module);
FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);
BOOL WINAPI LockWorkStation();

HANDLE WINAPI LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags);
HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name);
HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name);

BOOL WINAPI EnumDisplayMonitors(HDC context, const RECT* clip, MONITORENUMPROC callback, LPARAM parameter);
BOOL WINAPI GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info);

int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
BOOL WINAPI MessageBeep(UINT type);
BOOL WINAPI Beep(DWORD hertz, DWORD milliseconds);

UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, int absent, LPCSTR file);
DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR absent, LPSTR text, DWORD size,
                                      LPCSTR file);
BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file);

// Files of the Windows folder, where the profile functions look for a bare name.
constexpr int MAX_PATH = 260;
constexpr DWORD MOVEFILE_REPLACE_EXISTING = 1;
constexpr DWORD MOVEFILE_WRITE_THROUGH = 8;
UINT WINAPI GetWindowsDirectoryA(LPSTR folder, UINT size);
BOOL WINAPI CopyFileA(LPCSTR from, LPCSTR to, BOOL bOnlyIfNew);
BOOL WINAPI MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);
BOOL WINAPI DeleteFileA(LPCSTR file);
constexpr DWORD FILE_ATTRIBUTE_READONLY = 1;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 128;
BOOL WINAPI SetFileAttributesA(LPCSTR file, DWORD attributes);

// Errors, modules, images, displays, message boxes, sounds, profile files.
#pragma once

#include "types.h"

struct MONITORINFO {
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork;
    DWORD dwFlags;
};

constexpr int CCHDEVICENAME = 32;

struct MONITORINFOEXA : MONITORINFO {
    char szDevice[CCHDEVICENAME];
};

constexpr DWORD MONITORINFOF_PRIMARY = 1;
constexpr DWORD MONITOR_DEFAULTTONULL = 0;
constexpr DWORD MONITOR_DEFAULTTOPRIMARY = 1;
constexpr DWORD MONITOR_DEFAULTTONEAREST = 2;

constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXSIZEFRAME = 32;
constexpr int SM_CXSMICON = 49;
constexpr int SM_CYSMICON = 50;
constexpr int SM_XVIRTUALSCREEN = 76;
constexpr int SM_YVIRTUALSCREEN = 77;
constexpr int SM_CXVIRTUALSCREEN = 78;
constexpr int SM_CYVIRTUALSCREEN = 79;
constexpr int SM_CXPADDEDBORDER = 92;

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

constexpr DWORD ERROR_INVALID_FUNCTION = 1;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_NOT_READY = 21;
constexpr DWORD ERROR_WRITE_FAULT = 29;
constexpr DWORD ERROR_SHARING_VIOLATION = 32;
constexpr DWORD ERROR_LOCK_VIOLATION = 33;
constexpr DWORD ERROR_HANDLE_DISK_FULL = 39;
constexpr DWORD ERROR_NOT_SUPPORTED = 50;
constexpr DWORD ERROR_NETNAME_DELETED = 64;
constexpr DWORD ERROR_DISK_FULL = 112;
constexpr DWORD ERROR_USER_MAPPED_FILE = 1224;
constexpr DWORD ERROR_NOT_ENOUGH_QUOTA = 1816;
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
DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size);
UINT WINAPI GetSystemDirectoryA(LPSTR directory, UINT size);
BOOL WINAPI SetProcessShutdownParameters(DWORD level, DWORD flags);
DWORD WINAPI GetCurrentProcessId();
BOOL WINAPI LockWorkStation();

HANDLE WINAPI LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags);
BOOL WINAPI DestroyIcon(HICON icon);
HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name);
HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name);

BOOL WINAPI EnumDisplayMonitors(HDC context, const RECT* clip, MONITORENUMPROC callback, LPARAM parameter);
BOOL WINAPI GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info);
HMONITOR WINAPI MonitorFromRect(const RECT* rect, DWORD flags);
HMONITOR WINAPI MonitorFromPoint(POINT point, DWORD flags);
HMONITOR WINAPI MonitorFromWindow(HWND window, DWORD flags);
int WINAPI GetSystemMetrics(int index);

int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
BOOL WINAPI MessageBeep(UINT type);
BOOL WINAPI Beep(DWORD hertz, DWORD milliseconds);

UINT WINAPI GetPrivateProfileIntA(LPCSTR section, LPCSTR key, int absent, LPCSTR file);
DWORD WINAPI GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR absent, LPSTR text, DWORD size,
                                      LPCSTR file);
BOOL WINAPI WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file);

// Files. The profile functions look for a bare name in the Windows folder.
constexpr int MAX_PATH = 260;
constexpr UINT CP_ACP = 0;
constexpr DWORD WC_NO_BEST_FIT_CHARS = 0x400;
BOOL WINAPI IsDBCSLeadByte(BYTE first);
DWORD WINAPI GetShortPathNameW(LPCWSTR path, LPWSTR shortPath, DWORD size);
int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR from, int length, LPSTR to, int limit,
                               LPCSTR defaultChar, BOOL* usedDefault);
int WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR from, int length, LPWSTR to, int limit);
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xffffffff;
DWORD WINAPI GetFileAttributesA(LPCSTR file);
constexpr DWORD MOVEFILE_REPLACE_EXISTING = 1;
constexpr DWORD MOVEFILE_WRITE_THROUGH = 8;
UINT WINAPI GetWindowsDirectoryA(LPSTR folder, UINT size);
BOOL WINAPI CopyFileA(LPCSTR from, LPCSTR to, BOOL failIfExists);
BOOL WINAPI MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);
BOOL WINAPI DeleteFileA(LPCSTR file);
constexpr DWORD FILE_ATTRIBUTE_READONLY = 1;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 16;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 128;
BOOL WINAPI SetFileAttributesA(LPCSTR file, DWORD attributes);
constexpr DWORD DACL_SECURITY_INFORMATION = 4;
constexpr WORD SE_DACL_AUTO_INHERIT_REQ = 0x100;
BOOL WINAPI GetFileSecurityA(LPCSTR file, DWORD what, LPVOID rights, DWORD size, DWORD* needed);
BOOL WINAPI SetFileSecurityA(LPCSTR file, DWORD what, LPVOID rights);
BOOL WINAPI SetSecurityDescriptorControl(LPVOID rights, WORD which, WORD bits);
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD FILE_SHARE_READ = 1;
constexpr DWORD FILE_SHARE_WRITE = 2;
constexpr DWORD OPEN_EXISTING = 3;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(-1LL);
HANDLE WINAPI CreateFileA(LPCSTR file, DWORD access, DWORD share, struct SECURITY_ATTRIBUTES* security,
                          DWORD disposition, DWORD attributes, HANDLE pattern);
BOOL WINAPI FlushFileBuffers(HANDLE file);
BOOL WINAPI CloseHandle(HANDLE handle);

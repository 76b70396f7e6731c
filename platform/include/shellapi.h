// Notification icons.
#pragma once

#include "windows.h"

struct NOTIFYICONDATAA {
    DWORD cbSize;
    HWND hWnd;
    UINT uID;
    UINT uFlags;
    UINT uCallbackMessage;
    HICON hIcon;
    char szTip[128];
};

constexpr DWORD NOTIFYICONDATAA_V1_SIZE = offsetof(NOTIFYICONDATAA, szTip) + 64;

constexpr DWORD NIM_ADD = 0;
constexpr DWORD NIM_MODIFY = 1;
constexpr DWORD NIM_DELETE = 2;

constexpr UINT NIF_MESSAGE = 1;
constexpr UINT NIF_ICON = 2;
constexpr UINT NIF_TIP = 4;

BOOL WINAPI Shell_NotifyIconA(DWORD operation, NOTIFYICONDATAA* data);

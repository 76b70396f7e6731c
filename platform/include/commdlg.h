// Common dialogs.
#pragma once

#include "windows.h"

struct CHOOSECOLORA {
    DWORD lStructSize;
    HWND hwndOwner;
    HWND hInstance;
    COLORREF rgbResult;
    COLORREF* lpCustColors;
    DWORD Flags;
    LPARAM lCustData;
    void* lpfnHook;
    LPCSTR lpTemplateName;
};

constexpr DWORD CC_RGBINIT = 1;
constexpr DWORD CC_FULLOPEN = 2;

BOOL WINAPI ChooseColorA(CHOOSECOLORA* choice);

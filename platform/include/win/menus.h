// Popup menus.
#pragma once

#include "types.h"

struct MENUITEMINFOA {
    UINT cbSize;
    UINT fMask;
    UINT fType;
    UINT fState;
    UINT wID;
    HMENU hSubMenu;
    HBITMAP hbmpChecked;
    HBITMAP hbmpUnchecked;
    UINT_PTR dwItemData;
    LPSTR dwTypeData;
    UINT cch;
    HBITMAP hbmpItem;
};

struct TPMPARAMS;

constexpr UINT MIIM_STATE = 0x1;
constexpr UINT MIIM_ID = 0x2;
constexpr UINT MIIM_SUBMENU = 0x4;
constexpr UINT MIIM_TYPE = 0x10;

constexpr UINT MFT_STRING = 0;
constexpr UINT MFT_SEPARATOR = 0x800;
constexpr UINT MFS_CHECKED = 0x8;

constexpr UINT TPM_RIGHTBUTTON = 0x2;
constexpr UINT TPM_RETURNCMD = 0x100;

constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_INVALID_MENU_HANDLE = 1401;

HMENU WINAPI CreatePopupMenu();
BOOL WINAPI DestroyMenu(HMENU menu);
BOOL WINAPI InsertMenuItemA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info);
BOOL WINAPI TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND window, TPMPARAMS* params);

// Dialogs and the standard controls: buttons, edit boxes, list boxes, drop-down lists.
#pragma once

#include "types.h"

#include "messages.h"

using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

constexpr UINT WM_GETTEXT = 13;
constexpr UINT WM_GETTEXTLENGTH = 14;
constexpr UINT WM_NOTIFY = 78;
constexpr UINT WM_INITDIALOG = 272;
constexpr UINT WM_COMMAND = 273;
constexpr UINT WM_HSCROLL = 276;
constexpr UINT WM_CTLCOLORSTATIC = 312;

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

constexpr UINT BM_SETIMAGE = 0x00F7;
constexpr UINT BST_UNCHECKED = 0;
constexpr UINT BST_CHECKED = 1;

constexpr WORD BN_CLICKED = 0;
constexpr WORD EN_KILLFOCUS = 0x0200;
constexpr WORD LBN_SELCHANGE = 1;
constexpr WORD LBN_SETFOCUS = 4;

constexpr UINT LB_ADDSTRING = 0x0180;
constexpr UINT LB_RESETCONTENT = 0x0184;
constexpr UINT LB_SETCURSEL = 0x0186;
constexpr UINT LB_GETCURSEL = 0x0188;
constexpr UINT LB_GETTEXT = 0x0189;
constexpr UINT LB_GETCOUNT = 0x018B;
constexpr UINT LB_GETITEMDATA = 0x0199;
constexpr UINT LB_SETITEMDATA = 0x019A;
constexpr LRESULT LB_ERR = -1;

constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_INSERTSTRING = 0x014A;
constexpr UINT CB_RESETCONTENT = 0x014B;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr UINT CB_GETITEMDATA = 0x0150;
constexpr UINT CB_SETITEMDATA = 0x0151;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
constexpr LRESULT CB_ERR = -1;

HWND WINAPI CreateDialogParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC procedure,
                               LPARAM parameter);
HWND WINAPI CreateDialogParamW(HINSTANCE instance, LPCWSTR name, HWND parent, DLGPROC procedure,
                               LPARAM parameter);
BOOL WINAPI EndDialog(HWND dialog, INT_PTR result);
BOOL WINAPI IsDialogMessageA(HWND dialog, MSG* message);

HWND WINAPI GetDlgItem(HWND dialog, int id);
UINT WINAPI GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
BOOL WINAPI SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR text, int limit);
BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL WINAPI SetDlgItemTextW(HWND dialog, int id, LPCWSTR text);
LRESULT WINAPI SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL WINAPI CheckDlgButton(HWND dialog, int id, UINT state);
UINT WINAPI IsDlgButtonChecked(HWND dialog, int id);

BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);
BOOL WINAPI SetWindowTextW(HWND window, LPCWSTR text);
HWND WINAPI ChildWindowFromPoint(HWND parent, POINT point);
BOOL WINAPI ScreenToClient(HWND window, POINT* point);

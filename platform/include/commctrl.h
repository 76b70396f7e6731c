// Common controls: list view, tab control, trackbar.
#pragma once

#include "windows.h"

void WINAPI InitCommonControls();

constexpr UINT LVM_FIRST = 0x1000;
constexpr UINT LVM_GETITEMCOUNT = LVM_FIRST + 4;
constexpr UINT LVM_DELETEALLITEMS = LVM_FIRST + 9;
constexpr UINT LVM_INSERTITEMA = LVM_FIRST + 7;
constexpr UINT LVM_GETNEXTITEM = LVM_FIRST + 12;
constexpr UINT LVM_SCROLL = LVM_FIRST + 20;
constexpr UINT LVM_REDRAWITEMS = LVM_FIRST + 21;
constexpr UINT LVM_INSERTCOLUMNA = LVM_FIRST + 27;
constexpr UINT LVM_SETITEMCOUNT = LVM_FIRST + 47;
constexpr UINT LVM_SETEXTENDEDLISTVIEWSTYLE = LVM_FIRST + 54;

constexpr UINT LVIF_TEXT = 1;
constexpr UINT LVIS_SELECTED = 2;
constexpr LPARAM LVNI_SELECTED = 2;
constexpr UINT LVCF_FMT = 1;
constexpr UINT LVCF_WIDTH = 2;
constexpr UINT LVCF_TEXT = 4;
constexpr int LVCFMT_LEFT = 0;
constexpr DWORD LVS_EX_FULLROWSELECT = 32;
constexpr UINT LVN_ITEMCHANGED = static_cast<UINT>(-101);
constexpr UINT LVN_GETDISPINFOA = static_cast<UINT>(-150);
inline const LPSTR LPSTR_TEXTCALLBACKA = reinterpret_cast<LPSTR>(static_cast<INT_PTR>(-1));

struct LVCOLUMNA {
    UINT mask;
    int fmt;
    int cx;
    LPSTR pszText;
    int cchTextMax;
    int iSubItem;
    int iImage;
    int iOrder;
    int cxMin;
    int cxDefault;
    int cxIdeal;
};

struct LVITEMA {
    UINT mask;
    int iItem;
    int iSubItem;
    UINT state;
    UINT stateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
    int iIndent;
    int iGroupId;
    UINT cColumns;
    UINT* puColumns;
    int* piColFmt;
    int iGroup;
};

struct NMLISTVIEW {
    NMHDR hdr;
    int iItem;
    int iSubItem;
    UINT uNewState;
    UINT uOldState;
    UINT uChanged;
    POINT ptAction;
    LPARAM lParam;
};

struct NMLVDISPINFOA {
    NMHDR hdr;
    LVITEMA item;
};

constexpr UINT TCM_FIRST = 0x1300;
constexpr UINT TCM_INSERTITEMA = TCM_FIRST + 7;
constexpr UINT TCM_DELETEALLITEMS = TCM_FIRST + 9;
constexpr UINT TCM_GETCURSEL = TCM_FIRST + 11;
constexpr UINT TCM_SETCURSEL = TCM_FIRST + 12;
constexpr UINT TCIF_TEXT = 1;
constexpr UINT TCN_SELCHANGING = static_cast<UINT>(-552);

struct TCITEMA {
    UINT mask;
    DWORD dwState;
    DWORD dwStateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
};

constexpr UINT TBM_GETPOS = WM_USER;
constexpr UINT TBM_SETPOS = WM_USER + 5;
constexpr UINT TBM_SETRANGE = WM_USER + 6;

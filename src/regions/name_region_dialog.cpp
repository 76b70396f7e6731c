// The dialog that marks the view's place as a region, or renames and recolours the one that starts there.
#include "regions/name_region_dialog.h"

#include "core/coordinates.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

static const int ID_DELETE = 3;
static const int ID_NAME = 1025;
static const int ID_SWATCH = 1040;

static const int NAME_LIMIT = 32; // bytes of a name that the user can give, the zero included

// Only one such dialog is open at a time.
static HBRUSH RegionBrush;   // fills the swatch
static COLORREF RegionColor; // what OK stores

static void ChangeColor(COLORREF color) {
    DeleteObject(RegionBrush);
    RegionColor = color;
    RegionBrush = CreateSolidBrush(color);
}

static void FillControls(HWND dialog) {
    const int row = RegionAtCorner(VDesk.left, VDesk.top);
    const int bKnown = row < num_regions;
    SetDlgItemTextA(dialog, ID_NAME, bKnown ? RegionTable[row].name : "");
    ChangeColor(bKnown ? RegionTable[row].color : GetSysColor(COLOR_BACKGROUND));
}

static void OnInit(HWND dialog) {
    DialogHandles[KEYS_NAME_REGION] = dialog;
    FillControls(dialog);
    ShowWindow(dialog, SW_SHOW);
}

static void End(HWND dialog, INT_PTR result) {
    DeleteObject(RegionBrush);
    RegionBrush = nullptr;
    CloseDialog(dialog, DIALOG_NAME_REGION, result);
}

// Asks the user; 0 if there was no answer.
static int AskColor(HWND dialog, COLORREF* color) {
    COLORREF custom[16];
    std::fill(std::begin(custom), std::end(custom), RGB(255, 255, 255));
    CHOOSECOLORA choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = dialog;
    choice.rgbResult = *color;
    choice.lpCustColors = custom;
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColorA(&choice))
        return 0;
    *color = choice.rgbResult;
    return 1;
}

// The swatch is disabled, so that a click on it comes to the dialog.
static void OnClick(HWND dialog, ActionPoint at) {
    const HWND swatch = GetDlgItem(dialog, ID_SWATCH);
    COLORREF color = RegionColor;
    if (ChildWindowFromPoint(dialog, {at.x, at.y}) != swatch || !AskColor(dialog, &color) ||
        !IsWindow(swatch))
        return; // the dialog can be ended from outside meanwhile
    ChangeColor(color);
    Repaint(swatch);
}

// The row at the view's corner, or a new one; null, with a word to the user, if the table is full.
static RegionRow* RowForView(HWND dialog) {
    const int row = RegionAtCorner(VDesk.left, VDesk.top);
    if (row >= MAX_REGIONS) {
        MessageBoxA(dialog, "All 200 regions are in use. Unmark one first.", "No room", MB_OK);
        return nullptr;
    }
    num_regions = std::max(num_regions, row + 1);
    return &RegionTable[row];
}

static void OnAccept(HWND dialog) {
    char name[NAME_LIMIT] = "";
    if (!GetDlgItemTextA(dialog, ID_NAME, name, sizeof name)) {
        MessageBoxA(dialog, "That's an invalid name, see.", "Fix name", MB_OK);
        return;
    }
    RegionRow* const region = RowForView(dialog);
    if (!region)
        return;
    std::snprintf(region->name, sizeof region->name, "%s", name);
    region->left = VDesk.left;
    region->top = VDesk.top;
    region->right = region->left + ScreenW();
    region->bottom = region->top + ScreenH();
    region->color = RegionColor;
    RegisterRegionKeys(MainWnd);
    End(dialog, IDOK);
}

// The button is disabled, so this comes only from a program. The row stays in use, without name and place.
static void OnDelete(HWND dialog) {
    RegionRow* const region = RowForView(dialog);
    if (!region)
        return;
    region->name[0] = 0;
    region->left = region->top = -1;
    RegisterRegionKeys(MainWnd);
    End(dialog, ID_DELETE);
}

static void OnCommand(HWND dialog, int id) {
    switch (id) {
    case IDOK: OnAccept(dialog); break;
    case IDCANCEL: End(dialog, IDCANCEL); break;
    case ID_DELETE: OnDelete(dialog); break;
    default: break;
    }
}

INT_PTR CALLBACK NameRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return 1;
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<HWND>(lParam) == GetDlgItem(dialog, ID_SWATCH)
                   ? reinterpret_cast<INT_PTR>(RegionBrush)
                   : 0;
    case WM_LBUTTONUP: OnClick(dialog, PointOf(lParam)); break;
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam)); break;
    default: break;
    }
    return 0;
}

#include "dialogs/name_region_dialog.h"

#include "core/letters.h"
#include "core/rect.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "resources/control_ids.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

static const int NAME_SIZE = 32; // bytes of a name that the user types, the terminator included

// Only one such dialog is open at a time.
static HBRUSH RegionBrush;   // fills the swatch
static COLORREF RegionColor; // what OK stores

static void ChangeColor(COLORREF color) {
    DeleteObject(RegionBrush);
    RegionColor = color;
    RegionBrush = CreateSolidBrush(color);
}

static void FillControls(HWND dialog) {
    const int index = RegionAtCorner(VDesk.left, VDesk.top);
    const bool bKnown = index < num_regions;
    SetDlgItemTextA(dialog, IDC_REGION_NAME, bKnown ? RegionTable[index].name : "");
    ChangeColor(bKnown ? RegionTable[index].color : GetSysColor(COLOR_BACKGROUND));
}

static void OnInit(HWND dialog) {
    FillControls(dialog);
    ShowWindow(dialog, SW_SHOW);
}

static void EndNaming(HWND dialog) {
    DeleteObject(RegionBrush);
    RegionBrush = nullptr;
    CloseDialog(dialog);
}

// Lets the user choose a colour. False if the user cancelled.
static bool ChooseRegionColor(HWND dialog, COLORREF* color) {
    COLORREF custom[16];
    std::fill(std::begin(custom), std::end(custom), RGB(255, 255, 255));
    CHOOSECOLORA choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = dialog;
    choice.rgbResult = *color;
    choice.lpCustColors = custom;
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColorA(&choice))
        return false;
    *color = choice.rgbResult;
    return true;
}

// The swatch is disabled, so the dialog gets the clicks on it.
static void OnClick(HWND dialog, POINT at) {
    const HWND swatch = GetDlgItem(dialog, IDC_REGION_COLOR);
    COLORREF color = RegionColor;
    if (ChildWindowFromPoint(dialog, at) != swatch || !ChooseRegionColor(dialog, &color) || !IsWindow(swatch))
        return; // the dialog can be closed from outside meanwhile
    ChangeColor(color);
    Repaint(swatch);
}

// The index of the region at the view's corner, or of a new one; -1, with a message, if the table is full.
static int RegionForView(HWND dialog) {
    const int index = RegionAtCorner(VDesk.left, VDesk.top);
    if (index < MAX_REGIONS)
        return index;
    char text[64];
    std::snprintf(text, sizeof text, "All %d regions are in use. Unmark one first.", MAX_REGIONS);
    MessageBoxA(dialog, text, "No room", MB_OK);
    return -1;
}

static void StoreRegion(HWND dialog, int index, const RegionRow& region) {
    SetRegion(index, region);
    RegisterRegionKeys();
    EndNaming(dialog);
}

static void OnAccept(HWND dialog) {
    RegionRow region{"",
                     VDesk.left,
                     VDesk.top,
                     Wrap(0LL + VDesk.left + ScreenW()),
                     Wrap(0LL + VDesk.top + ScreenH()),
                     RegionColor};
    GetDlgItemTextA(dialog, IDC_REGION_NAME, region.name, NAME_SIZE + 1); // may end within a letter
    region.name[WholeLetters(region.name, NAME_SIZE - 1)] = 0;
    if (!region.name[0]) {
        MessageBoxA(dialog, "That's an invalid name, see.", "Fix name", MB_OK);
        return;
    }
    const int index = RegionForView(dialog);
    if (index >= 0)
        StoreRegion(dialog, index, region);
}

// The button is disabled, so this can only come from another program. The region stays in use, without name
// and corner.
static void OnDelete(HWND dialog) {
    const int index = RegionForView(dialog);
    if (index < 0)
        return;
    RegionRow region = RegionTable[index];
    region.name[0] = 0;
    region.left = region.top = -1;
    StoreRegion(dialog, index, region);
}

static void OnCommand(HWND dialog, int id) {
    switch (id) {
    case IDOK: OnAccept(dialog); break;
    case IDCANCEL: EndNaming(dialog); break;
    case IDC_REGION_DELETE: OnDelete(dialog); break;
    default: break;
    }
}

INT_PTR CALLBACK NameRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return 1;
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<HWND>(lParam) == GetDlgItem(dialog, IDC_REGION_COLOR)
                   ? reinterpret_cast<INT_PTR>(RegionBrush)
                   : 0;
    case WM_LBUTTONUP: OnClick(dialog, MousePosition(lParam)); break;
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam)); break;
    default: break;
    }
    return 0;
}

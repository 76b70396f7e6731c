#include "menus/action_menu.h"

#include "actions/dispatch.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "status/status_strip.h"
#include "windows/foreground.h"
#include "windows/other_window.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

static constexpr int MENU_TEXT_SIZE = 80; // bytes: twice a region's name, its number, the terminator
static const int LAST_KEY = 9;            // regions 0 to 9 have a key in the menu

// Windows only reads the text, though the record is declared writable.
static LPSTR MenuText(const char* text) {
    return const_cast<LPSTR>(text);
}

// Pure: the text of a region's entry. The first ten have the access keys 0 to 9, later ones 0. An "&" in the
// name is shown as such.
static void RegionEntryText(char (&text)[MENU_TEXT_SIZE], int region, const char* name) {
    const bool bKey = region <= LAST_KEY;
    int length = std::snprintf(text, sizeof text, "&%d ", bKey ? region : 0);
    for (const char letter : std::string_view(name).substr(0, REGION_NAME_SIZE - 1)) {
        if (letter == '&')
            text[length++] = '&'; // a single one would underline the next letter instead
        text[length++] = letter;
    }
    text[length] = 0;
}

static MENUITEMINFOA ActionItem(int id) {
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_ID | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.fState = ActionTable[id].value ? MFS_CHECKED : 0;
    item.wID = static_cast<UINT>(id);
    item.dwTypeData = MenuText(ActionTable[id].desc);
    return item;
}

static MENUITEMINFOA SeparatorItem() {
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_ID | MIIM_TYPE;
    item.fType = MFT_SEPARATOR;
    item.wID = static_cast<UINT>(-1);
    return item;
}

// Skips numbers that are not actions.
static void InsertEntries(HMENU menu) {
    for (int position = 0; position < quorl_menu_count; ++position) {
        const int entry = MenuList[position];
        if (entry >= NUM_ACTIONS)
            continue;
        const MENUITEMINFOA item = entry < 0 ? SeparatorItem() : ActionItem(entry);
        if (!InsertMenuItemA(menu, static_cast<UINT>(position), TRUE, &item))
            MessageBeep(0);
    }
}

// If it fails, one entry is missing.
static void InsertRegion(HMENU menu, int region) {
    char text[MENU_TEXT_SIZE];
    RegionEntryText(text, region, RegionTable[region].name);
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.wID = static_cast<UINT>(FIRST_REGION_ID + region);
    item.dwTypeData = text;
    InsertMenuItemA(menu, static_cast<UINT>(region), TRUE, &item);
}

// Appends the submenu of regions and returns it; null if there are none.
static HMENU InsertRegions(HMENU menu) {
    const HMENU regions = num_regions > 0 ? CreatePopupMenu() : nullptr;
    if (!regions)
        return nullptr;
    for (int region = 0; region < num_regions; ++region)
        InsertRegion(regions, region);
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_SUBMENU | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.hSubMenu = regions;
    item.dwTypeData = MenuText("View Region");
    InsertMenuItemA(menu, static_cast<UINT>(quorl_menu_count), TRUE, &item);
    return regions;
}

// The chosen id; 0 if nothing was chosen.
static int TrackActionMenu(HWND window) {
    POINT at{};
    GetCursorPos(&at);
    const HMENU menu = CreatePopupMenu();
    if (!menu)
        return 0;
    InsertEntries(menu);
    const HMENU regions = InsertRegions(menu);
    const int choice = TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, window, nullptr);
    if (regions)
        DestroyMenu(regions); // separately, because inserting it into the menu may have failed
    DestroyMenu(menu);
    return choice;
}

// The user goes on typing where he was before the menu opened, unless the choice led elsewhere.
static void ReturnFocus(HWND window, HWND active, int activations) {
    if (active && GetForegroundWindow() == window && ActivationCount() == activations &&
        !IsOn(ACTION_FOLLOW_ACTIVE))
        ReturnForeground(active);
}

void ShowActionMenu(HWND window) {
    NoteForeground();
    const HWND active = LastActiveWindow();
    ActivateWindow(window);
    HideTip(); // the strip must not cover the menu
    const int choice = TrackActionMenu(window);
    PostMessageA(window, WM_NULL, 0, 0); // else the next menu of a tray icon can close at once
    const int activations = ActivationCount();
    if (choice)
        DoAction(window, choice, active);
    ReturnFocus(window, active, activations);
}

void DisplayMenu(const ActionCall& call) {
    ShowActionMenu(call.window);
}

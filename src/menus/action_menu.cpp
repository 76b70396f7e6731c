// The popup menu: the actions that the user put into it, and the regions.
#include "menus/action_menu.h"

#include "core/foreground.h"
#include "core/state.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "toolwin/tip.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

static const int LAST_KEY = 9; // of the keys 0 to 9 of the regions

// The menu only reads its texts, though its record wants to write to them.
static LPSTR MenuText(const char* text) {
    return const_cast<LPSTR>(text);
}

void RegionEntryText(char (&text)[MENU_TEXT_ROOM], int region, const char* name) {
    const int bKey = region <= LAST_KEY;
    int length = std::snprintf(text, sizeof text, "&%d ", bKey ? region : 0);
    for (const char letter : std::string_view(name).substr(0, REGION_NAME_ROOM - 1)) {
        if (letter == '&')
            text[length++] = '&'; // a single one would vanish and underline the next letter
        text[length++] = letter;
    }
    text[length] = 0;
}

static MENUITEMINFOA ActionItem(ActionId row) {
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_ID | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.fState = ActionTable[row].value ? MFS_CHECKED : 0;
    item.wID = static_cast<UINT>(row);
    item.dwTypeData = MenuText(ActionTable[row].desc);
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

// A number past the last row names nothing and shows as nothing.
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

// One entry is missing if that fails.
static void InsertRegion(HMENU menu, int region) {
    char text[MENU_TEXT_ROOM];
    RegionEntryText(text, region, RegionTable[region].name);
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.wID = static_cast<UINT>(FIRST_REGION_ID + region);
    item.dwTypeData = text;
    InsertMenuItemA(menu, static_cast<UINT>(region), TRUE, &item);
}

// Hangs the regions below all entries. The menu that holds them; null when there are none.
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

UINT BuildActionMenu(HWND window) {
    POINT at{};
    GetCursorPos(&at);
    const HMENU menu = CreatePopupMenu();
    if (!menu)
        return 0;
    InsertEntries(menu);
    const HMENU regions = InsertRegions(menu);
    const int choice = TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, window, nullptr);
    if (regions)
        DestroyMenu(regions); // on its own, since hanging it into the menu may have failed
    DestroyMenu(menu);
    return static_cast<UINT>(choice);
}

int ShowActionMenu(HWND window) {
    GiveForeground(window);
    HideTip(TipWnd); // no strip shall cover the menu
    const UINT choice = BuildActionMenu(window);
    return choice ? DoAction(window, static_cast<int>(choice), nullptr) : 0;
}

int DisplayMenu(const ActionCall& call) {
    ShowActionMenu(call.window);
    return 0;
}

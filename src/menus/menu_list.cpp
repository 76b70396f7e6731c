// The list that defines the popup menu.
#include "menus/menu_list.h"

#include "actions/action_ids.h"

#include <algorithm>
#include <iterator>
#include <utility>

int MenuList[MAX_MENU_ENTRIES];
int quorl_menu_count;

static constexpr int DefaultMenu[] = {
    ACTION_OPTIONS, ACTION_DEFINE_ACTIONS, ACTION_CUSTOMIZE_MENU, ACTION_SHOW_TOOLWIN, ACTION_MARK_REGION,
    MENU_SEPARATOR, ACTION_HELP,           ACTION_ABOUT,          MENU_SEPARATOR,      ACTION_EXIT,
};

static bool IsInList(int position) {
    return position >= 0 && position < quorl_menu_count;
}

void SetDefaultMenu() {
    constexpr int count = static_cast<int>(std::size(DefaultMenu));
    SetMenuEntries(DefaultMenu, count);
    SetMenuCount(count);
}

void SetMenuEntries(const int* entries, int count) {
    std::copy(entries, entries + count, MenuList);
}

void SetMenuCount(int count) {
    quorl_menu_count = std::clamp(count, 0, MAX_MENU_ENTRIES);
}

int FindMenuEntry(int entry) {
    const int* end = MenuList + quorl_menu_count;
    const int* found = std::find(static_cast<const int*>(MenuList), end, entry);
    return found == end ? -1 : static_cast<int>(found - MenuList);
}

void InsertMenuEntry(int position, int entry) {
    if (quorl_menu_count >= MAX_MENU_ENTRIES)
        return;
    if (!IsInList(position))
        position = quorl_menu_count;
    std::copy_backward(MenuList + position, MenuList + quorl_menu_count, MenuList + quorl_menu_count + 1);
    MenuList[position] = entry;
    ++quorl_menu_count;
}

void RemoveMenuEntry(int entry, int position) {
    if (entry >= 0)
        position = FindMenuEntry(entry);
    if (!IsInList(position))
        return;
    std::copy(MenuList + position + 1, MenuList + quorl_menu_count, MenuList + position);
    --quorl_menu_count;
}

bool SwapMenuEntries(int position, int delta) {
    if (!IsInList(position) || !IsInList(position + delta))
        return false;
    std::swap(MenuList[position], MenuList[position + delta]);
    return true;
}

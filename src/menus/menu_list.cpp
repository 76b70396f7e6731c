// The list that says what the popup menu holds and in what order.
#include "menus/menu_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

int MenuList[MAX_MENU_ENTRIES];
int quorl_menu_count;

static constexpr int DefaultMenu[] = {54, 55, 74, 77, 49, MENU_SEPARATOR, 56, 57, MENU_SEPARATOR, 59};

static int IsInList(int position) {
    return position >= 0 && position < quorl_menu_count;
}

void SetDefaultMenu() {
    std::copy(std::begin(DefaultMenu), std::end(DefaultMenu), MenuList);
    quorl_menu_count = static_cast<int>(std::size(DefaultMenu));
}

int FindMenuEntry(int entry) {
    const int* end = MenuList + quorl_menu_count;
    const int* found = std::find(static_cast<const int*>(MenuList), end, entry);
    return found == end ? -1 : static_cast<int>(found - MenuList);
}

int InsertMenuEntry(int position, int entry) {
    if (quorl_menu_count >= MAX_MENU_ENTRIES)
        return 0;
    if (!IsInList(position))
        position = quorl_menu_count;
    std::copy_backward(MenuList + position, MenuList + quorl_menu_count, MenuList + quorl_menu_count + 1);
    MenuList[position] = entry;
    ++quorl_menu_count;
    return 1;
}

int AppendMenuEntry(int entry) {
    return InsertMenuEntry(-1, entry);
}

int RemoveMenuEntry(int entry, int position) {
    if (entry >= 0)
        position = FindMenuEntry(entry);
    if (!IsInList(position))
        return 0;
    std::copy(MenuList + position + 1, MenuList + quorl_menu_count, MenuList + position);
    --quorl_menu_count;
    return 1;
}

int SwapMenuEntries(int position, int delta) {
    if (!IsInList(position) || !IsInList(position + delta))
        return 0;
    std::swap(MenuList[position], MenuList[position + delta]);
    return 1;
}

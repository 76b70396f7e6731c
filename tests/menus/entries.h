// The popup menu's list as one value.
#pragma once

#include "menus/menu_list.h"

#include <vector>

using Entries = std::vector<int>;

inline Entries Menu() {
    return {MenuList, MenuList + quorl_menu_count};
}

inline void SetMenu(const Entries& entries) {
    SetMenuEntries(entries.data(), static_cast<int>(entries.size()));
    SetMenuCount(static_cast<int>(entries.size()));
}

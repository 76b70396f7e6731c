// The popup menu's list as one value.
#pragma once

#include "menus/menu_list.h"

#include <algorithm>
#include <vector>

using Entries = std::vector<int>;

inline Entries Menu() {
    return {MenuList, MenuList + quorl_menu_count};
}

inline void SetMenu(const Entries& entries) {
    std::copy(entries.begin(), entries.end(), MenuList);
    quorl_menu_count = static_cast<int>(entries.size());
}

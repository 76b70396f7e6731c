#include "menus/menu_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Entries = std::vector<int>;

void Fill(const Entries& entries) {
    quorl_menu_count = 0;
    for (const int entry : entries)
        AppendMenuEntry(entry);
}

Entries List() {
    return {MenuList, MenuList + quorl_menu_count};
}

TEST(MenuListOperations, AnEntryGoesInBeforeTheOneAtItsPlaceAndAnywhereElseToTheEnd) {
    Fill({54, 59});
    InsertMenuEntry(0, 1);
    InsertMenuEntry(3, 2);
    InsertMenuEntry(99, 3);
    EXPECT_EQ(List(), (Entries{1, 54, 59, 2, 3}));
}

TEST(MenuListOperations, AFullListTakesNothingMore) {
    Fill(Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(InsertMenuEntry(0, 8), 0);
    EXPECT_EQ(List(), Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(RemoveMenuEntry(7, 0), 1);
    EXPECT_EQ(AppendMenuEntry(8), 1) << "one place is free again";
}

TEST(MenuListOperations, AnActionIsRemovedByItsNumberAndALineByItsPlace) {
    struct {
        int entry, position, result;
        Entries after;
    } const cases[] = {
        {-2, 2,  1, {54, -2, 0, 54}    },
        {54, 4,  1, {-2, -2, 0, 54}    },
        {0,  -1, 1, {54, -2, -2, 54}   },
        {60, 0,  0, {54, -2, -2, 0, 54}},
        {-1, 5,  0, {54, -2, -2, 0, 54}},
    };
    for (const auto& [entry, position, result, after] : cases) {
        Fill({54, -2, -2, 0, 54});
        EXPECT_EQ(RemoveMenuEntry(entry, position), result);
        EXPECT_EQ(List(), after) << entry << " at " << position;
    }
}

TEST(MenuListOperations, NeighboursChangePlacesInsideTheListOnly) {
    Fill({54, 59, -1});
    EXPECT_EQ(SwapMenuEntries(0, 1), 1);
    EXPECT_EQ(SwapMenuEntries(2, -1), 1);
    EXPECT_EQ(SwapMenuEntries(0, -1), 0);
    EXPECT_EQ(SwapMenuEntries(2, 1), 0);
    EXPECT_EQ(SwapMenuEntries(-1, 1), 0);
    EXPECT_EQ(List(), (Entries{59, -1, 54}));
}

TEST(MenuListOperations, WhatLiesBehindTheCountIsNotFound) {
    Fill({54, 59});
    quorl_menu_count = 1;
    EXPECT_EQ(FindMenuEntry(59), -1);
}

} // namespace

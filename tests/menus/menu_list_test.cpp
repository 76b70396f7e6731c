#include "menus/menu_list.h"

#include "menus/entries.h"

#include <gtest/gtest.h>

namespace {

TEST(MenuListOperations, AnEntryGoesInBeforeTheOneAtItsPlaceAndAnywhereElseToTheEnd) {
    SetMenu({54, 59});
    InsertMenuEntry(0, 1);
    InsertMenuEntry(3, 2);
    InsertMenuEntry(99, 3);
    EXPECT_EQ(Menu(), (Entries{1, 54, 59, 2, 3}));
}

TEST(MenuListOperations, AFullListTakesNothingMore) {
    SetMenu(Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(InsertMenuEntry(0, 8), 0);
    EXPECT_EQ(Menu(), Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(RemoveMenuEntry(7, 0), 1);
    EXPECT_EQ(AppendMenuEntry(8), 1) << "one place is free again";
}

TEST(MenuListOperations, AnActionIsRemovedByItsNumberAndALineByItsPlace) {
    SetMenu({54, -2, 59, -2, 0, 54});
    EXPECT_EQ(RemoveMenuEntry(60, 0), 0);
    EXPECT_EQ(RemoveMenuEntry(-1, 6), 0);
    EXPECT_EQ(RemoveMenuEntry(54, 5), 1);
    EXPECT_EQ(Menu(), (Entries{-2, 59, -2, 0, 54}));
    EXPECT_EQ(RemoveMenuEntry(0, -1), 1);
    EXPECT_EQ(RemoveMenuEntry(-2, 2), 1);
    EXPECT_EQ(Menu(), (Entries{-2, 59, 54}));
}

TEST(MenuListOperations, NeighboursChangePlacesInsideTheListOnly) {
    SetMenu({54, 59, -1});
    EXPECT_EQ(SwapMenuEntries(0, 1), 1);
    EXPECT_EQ(SwapMenuEntries(2, -1), 1);
    EXPECT_EQ(SwapMenuEntries(0, -1), 0);
    EXPECT_EQ(SwapMenuEntries(2, 1), 0);
    EXPECT_EQ(SwapMenuEntries(-1, 1), 0);
    EXPECT_EQ(Menu(), (Entries{59, -1, 54}));
}

TEST(MenuListOperations, WhatLiesBehindTheCountIsNotFound) {
    SetMenu({54, 59});
    quorl_menu_count = 1;
    EXPECT_EQ(FindMenuEntry(59), -1);
}

} // namespace

#include "menus/menu_list.h"

#include "menus/entries.h"

#include <gtest/gtest.h>

namespace {

TEST(MenuListOperations, AnEntryGoesInBeforeTheOneAtItsPlaceElseToTheEndUntilTheListIsFull) {
    SetMenu({54, 59});
    InsertMenuEntry(0, 1);
    InsertMenuEntry(3, 2);
    InsertMenuEntry(99, 3);
    EXPECT_EQ(Menu(), (Entries{1, 54, 59, 2, 3}));
    SetMenu(Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(AppendMenuEntry(8), 0);
    EXPECT_EQ(RemoveMenuEntry(7, 0), 1);
    EXPECT_EQ(AppendMenuEntry(8), 1) << "one place is free again";
}

TEST(MenuListOperations, AnActionIsRemovedByItsNumberAndALineByItsPlaceAndNeighboursChangePlaces) {
    SetMenu({54, -2, 59, -2, 0, 54});
    EXPECT_EQ(RemoveMenuEntry(60, 0) + RemoveMenuEntry(-1, 6), 0);
    RemoveMenuEntry(54, 5);
    RemoveMenuEntry(-2, 2);
    RemoveMenuEntry(0, -1);
    EXPECT_EQ(Menu(), (Entries{-2, 59, 54}));
    EXPECT_EQ(SwapMenuEntries(0, 1) + SwapMenuEntries(2, -1), 2);
    EXPECT_EQ(SwapMenuEntries(0, -1) + SwapMenuEntries(2, 1) + SwapMenuEntries(-1, 1), 0);
    EXPECT_EQ(Menu(), (Entries{59, 54, -2}));
}

} // namespace

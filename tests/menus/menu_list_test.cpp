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
    struct {
        int position;
        Entries after;
    } const cases[] = {
        {0,  {-2, 54, 59}},
        {1,  {54, -2, 59}},
        {2,  {54, 59, -2}},
        {-1, {54, 59, -2}},
        {9,  {54, 59, -2}},
    };
    for (const auto& [position, after] : cases) {
        Fill({54, 59});
        EXPECT_EQ(InsertMenuEntry(position, -2), 1);
        EXPECT_EQ(List(), after) << "at " << position;
    }
}

TEST(MenuListOperations, AFullListTakesNothingMore) {
    Fill(Entries(MAX_MENU_ENTRIES, 7));

    EXPECT_EQ(InsertMenuEntry(0, 8), 0);
    EXPECT_EQ(AppendMenuEntry(8), 0);

    EXPECT_EQ(List(), Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(RemoveMenuEntry(7, 0), 1);
    EXPECT_EQ(AppendMenuEntry(8), 1) << "one place is free again";
}

TEST(MenuListOperations, AnActionIsRemovedByItsNumberAndALineByItsPlace) {
    struct {
        Entries before;
        int entry, position, result;
        Entries after;
    } const cases[] = {
        {{-1, 54, 59},     -1, 0,  1, {54, 59}    },
        {{-2, 54, -2, 59}, -2, 2,  1, {-2, 54, 59}},
        {{54, 59, 54},     54, 2,  1, {59, 54}    },
        {{54, 59},         59, -1, 1, {54}        },
        {{54, 0, 59},      0,  2,  1, {54, 59}    },
        {{54, 59},         60, 0,  0, {54, 59}    },
        {{54, -1},         -1, 2,  0, {54, -1}    },
        {{},               -1, 0,  0, {}          },
    };
    for (const auto& row : cases) {
        Fill(row.before);
        EXPECT_EQ(RemoveMenuEntry(row.entry, row.position), row.result);
        EXPECT_EQ(List(), row.after);
    }
}

TEST(MenuListOperations, NeighboursChangePlacesInsideTheListOnly) {
    struct {
        int position, delta, result;
        Entries after;
    } const cases[] = {
        {1,  -1, 1, {59, 54, -1}},
        {1,  1,  1, {54, -1, 59}},
        {0,  -1, 0, {54, 59, -1}},
        {2,  1,  0, {54, 59, -1}},
        {-1, 1,  0, {54, 59, -1}},
    };
    for (const auto& row : cases) {
        Fill({54, 59, -1});
        EXPECT_EQ(SwapMenuEntries(row.position, row.delta), row.result);
        EXPECT_EQ(List(), row.after) << row.position << " by " << row.delta;
    }
}

TEST(MenuListOperations, TheFirstOfEqualEntriesIsFoundAndWhatLiesBehindTheCountIsNot) {
    Fill({54, 59, 54});
    EXPECT_EQ(FindMenuEntry(54), 0);
    quorl_menu_count = 1;
    EXPECT_EQ(FindMenuEntry(59), -1);
    quorl_menu_count = 0;
    EXPECT_EQ(FindMenuEntry(54), -1);
}

} // namespace

#include "actions/action_table.h"

#include "actions/key_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Rows = std::set<ActionId>;

TEST(ActionTableRows, HaveTextsOfTheirOwnThatAReportCanHoldAndAreOfferedToKeysToTheMouseOrNowhere) {
    std::set<std::string> texts;
    Rows mouseOnly, off, on;
    for (const ActionRow& row : ActionTable) {
        if (row.id == NUM_ACTIONS)
            break;
        EXPECT_EQ(row.id, &row - ActionTable);
        EXPECT_LT(std::string(row.desc).size(), 100U) << row.id;
        texts.insert(row.desc);
        if (row.flags == ACTION_MOUSE)
            mouseOnly.insert(row.id);
        else if (row.flags == ACTION_OFF)
            off.insert(row.id);
        else
            EXPECT_EQ(row.flags & ~ACTION_MOUSE, ACTION_KEY) << row.id;
        if (row.value)
            on.insert(row.id);
    }
    EXPECT_EQ(texts.size(), 123U);
    EXPECT_EQ(mouseOnly, (Rows{1, 2, 3, 4, 38, 39}));
    EXPECT_EQ(off, (Rows{23, 46, 75, 76, 78, 83, 86, 87, 88, 109, 110, 112, 113, 115}));
    EXPECT_EQ(on, (Rows{58, 70, 71, 72, 73, 77, 89, 114, 122}));
}

TEST(KeyNameTable, NamesEachKeyOnceAndEndsWithARowThatIsNone) {
    std::set<std::string> names;
    std::set<int> keys;
    for (int row = 0; row < NUM_KEY_NAMES; ++row) {
        names.insert(KeyNames[row].name);
        keys.insert(KeyNames[row].vk);
    }
    EXPECT_EQ(names.size(), 66U);
    EXPECT_EQ(keys.size(), 66U);
    EXPECT_EQ(*keys.rbegin(), 135) << "F24 is the last";
    EXPECT_EQ(KeyNames[NUM_KEY_NAMES].vk, -1);
}

} // namespace

#include "actions/action_table.h"

#include "actions/key_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(ActionTableRows, EachKnowsItsNumberAndHasATextOfItsOwnThatTheReportOfARefusalCanHold) {
    std::set<std::string> texts;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row) {
        const std::string desc = ActionTable[row].desc;
        EXPECT_EQ(ActionTable[row].id, row);
        EXPECT_FALSE(desc.empty()) << row;
        EXPECT_LT(desc.size(), 100U) << row;
        texts.insert(desc);
    }
    EXPECT_EQ(texts.size(), static_cast<std::size_t>(NUM_ACTIONS));
    EXPECT_STREQ(ActionTable[NUM_ACTIONS].desc, "");
    EXPECT_EQ(ActionTable[NUM_ACTIONS].flags, 0U);
}

TEST(ActionTableRows, AreOfferedToKeysToTheMouseOrNowhere) {
    std::set<ActionId> mouseOnly;
    std::set<ActionId> off;
    std::set<ActionId> on;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row) {
        const DWORD flags = ActionTable[row].flags;
        if (flags == ACTION_MOUSE)
            mouseOnly.insert(row);
        else if (flags == ACTION_OFF)
            off.insert(row);
        else
            EXPECT_EQ(flags & ~ACTION_MOUSE, ACTION_KEY) << row;
        if (ActionTable[row].value)
            on.insert(row);
    }
    EXPECT_EQ(mouseOnly, (std::set<ActionId>{1, 2, 3, 4, 38, 39}));
    EXPECT_EQ(off, (std::set<ActionId>{23, 46, 75, 76, 78, 83, 86, 87, 88, 109, 110, 112, 113, 115}));
    EXPECT_EQ(on, (std::set<ActionId>{58, 70, 71, 72, 73, 77, 89, 114, 122}));
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

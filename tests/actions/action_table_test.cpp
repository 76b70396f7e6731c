#include "actions/action_table.h"

#include "actions/key_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

TEST(ActionTableRows, StandInTheirOrderAndTheseAreOnAtFirst) {
    std::string on;
    for (ActionId id = 0; id < NUM_ACTIONS; ++id) {
        EXPECT_EQ(ActionTable[id].id, id);
        on += ActionTable[id].value ? std::to_string(id) + " " : "";
    }
    EXPECT_EQ(on, "58 70 71 72 73 77 89 114 122 ");
}

TEST(KeyNameTable, NamesEachKeyOnce) {
    std::set<int> keys;
    for (const KeyName& key : KeyNames)
        keys.insert(key.vk);
    EXPECT_EQ(keys.size(), NUM_KEY_NAMES + 1U) << "with the row that is none";
    EXPECT_EQ(*keys.rbegin(), 135) << "F24 is the last";
}

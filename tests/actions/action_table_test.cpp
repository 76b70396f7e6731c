#include "actions/action_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Rows = std::set<ActionId>;

TEST(ActionTableRows, HaveTextsOfTheirOwnThatAReportCanHoldAndAreOfferedToKeysToTheMouseOrNowhere) {
    std::set<std::string> texts;
    Rows mouseOnly, off, on;
    for (ActionId id = 0; id < NUM_ACTIONS; ++id) {
        const ActionRow& row = ActionTable[id];
        EXPECT_EQ(row.id, id);
        EXPECT_LT(std::string(row.desc).size(), 100U) << id;
        texts.insert(row.desc);
        if (row.flags == ACTION_MOUSE)
            mouseOnly.insert(id);
        if (row.flags == ACTION_OFF)
            off.insert(id);
        if (row.value)
            on.insert(id);
    }
    EXPECT_EQ(texts.size(), 123U);
    EXPECT_EQ(mouseOnly, (Rows{1, 2, 3, 4, 38, 39}));
    EXPECT_EQ(off, (Rows{23, 46, 75, 76, 78, 83, 86, 87, 88, 109, 110, 112, 113, 115}));
    EXPECT_EQ(on, (Rows{58, 70, 71, 72, 73, 77, 89, 114, 122}));
}

} // namespace

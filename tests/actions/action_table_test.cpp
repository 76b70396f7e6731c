#include "actions/action_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using Rows = std::set<ActionId>;

TEST(ActionTableRows, HaveTextsThatAReportCanHoldAndAreOfferedToKeysToTheMouseOrNowhere) {
    Rows mouseOnly, off;
    for (ActionId id = 0; id < NUM_ACTIONS; ++id) {
        EXPECT_EQ(ActionTable[id].id, id);
        EXPECT_LT(std::string(ActionTable[id].desc).size(), 100U) << id;
        if (ActionTable[id].flags == ACTION_MOUSE)
            mouseOnly.insert(id);
        if (ActionTable[id].flags == ACTION_OFF)
            off.insert(id);
    }
    EXPECT_EQ(mouseOnly, (Rows{1, 2, 3, 4, 38, 39}));
    EXPECT_EQ(off, (Rows{23, 46, 75, 76, 78, 83, 86, 87, 88, 109, 110, 112, 113, 115}));
}

#include "actions/dispatch.h"

#include "core/state.h"
#include "support/quorl_test.h"

#include <climits>

namespace {

class Dispatch : public RunningQuorl {};

TEST_F(Dispatch, ANumberThatNothingHandlesSaysSo) {
    for (const int id : {46, 78, 87, 88, 109, 110, 112, 113, 123, -1, INT_MIN}) {
        Desk.boxes.clear();
        WillAnswer({IDOK});
        EXPECT_EQ(DoAction(MainWnd, id, nullptr), 0) << id;
        ASSERT_EQ(Desk.boxes.size(), 1U) << id;
        EXPECT_EQ(Desk.boxes[0].text, "Actually, I don't handle that one yet.");
        EXPECT_EQ(Desk.boxes[0].caption, "Sorry.");
        EXPECT_EQ(Desk.boxes[0].owner, nullptr);
    }
}

} // namespace

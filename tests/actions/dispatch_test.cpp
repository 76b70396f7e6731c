#include "actions/dispatch.h"

#include "support/quorl_test.h"

#include <climits>

TEST_F(RunningQuorl, SaysSoOfANumberThatNothingHandles) {
    for (const int id : {46, 78, 87, 88, 109, 110, 112, 113, 123, -1, INT_MIN}) {
        WillAnswer({IDOK});
        EXPECT_EQ(DoAction(MainWnd, id, nullptr), 0) << id;
        EXPECT_TRUE(Desk.answers.empty()) << id;
    }
    EXPECT_EQ(LastBox(), "Actually, I don't handle that one yet./Sorry.");
}

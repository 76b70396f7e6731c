#include "actions/dispatch.h"

#include "core/state.h"
#include "support/quorl_test.h"

#include <climits>

namespace {

class Dispatch : public QuorlTest {};

TEST_F(Dispatch, ANumberThatNothingHandlesSaysSo) {
    ASSERT_EQ(StartQuorl(), 1);
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

TEST_F(Dispatch, RowsThatDoNothingAreSilent) {
    ASSERT_EQ(StartQuorl(), 1);
    const int before = Desk.calls;
    EXPECT_EQ(DoAction(MainWnd, 38, nullptr), 1);
    EXPECT_EQ(DoAction(MainWnd, 39, nullptr), 1);
    EXPECT_EQ(DoAction(MainWnd, 75, nullptr), 0);
    EXPECT_EQ(DoAction(MainWnd, 76, nullptr), 0);
    EXPECT_EQ(Desk.calls, before);
}

TEST_F(Dispatch, AHotkeyRunsItsRowAndIsHandedOn) {
    ASSERT_EQ(StartQuorl(), 1);
    Command(30);
    EXPECT_EQ(VDesk.left, 1024);
    Desk.trace.clear();
    SendMessageA(MainWnd, WM_HOTKEY, 75, 0);
    EXPECT_EQ(CallsOf("DefWindowProcA"), 1);
}

} // namespace

#include "actions/dispatch.h"

#include "support/quorl_test.h"

TEST_F(RunningQuorl, TogglesFlipTheirValueAndDoNothingElse) {
    const int before = Desk.calls;
    for (const ActionId row : {58, 70, 71, 72, 73, 79, 82, 83, 85, 86, 89, 90, 91, 114, 115, 122}) {
        ActionTable[row].value = 7; // as a settings file may say
        for (const int flipped : {0, 1}) {
            EXPECT_EQ(DoAction(MainWnd, row, nullptr), 0) << row;
            EXPECT_EQ(ActionTable[row].value, flipped) << row;
        }
    }
    EXPECT_EQ(Desk.calls, before);
}

TEST_F(RunningQuorl, HoldsTheBorderFromOneToTen) {
    for (int press = 0; press < 20; ++press)
        DoAction(MainWnd, 68, nullptr);
    EXPECT_EQ(Options.border, 10);
    for (int press = 0; press < 20; ++press)
        DoAction(MainWnd, 69, nullptr);
    EXPECT_EQ(Options.border, 1);
}

TEST_F(RunningQuorl, AsksTheSystemToLockTheStationAndForTheScreenSaver) {
    Command(ROW_LOCK_WORK_STATION);
    EXPECT_EQ(Desk.locks, 1);
    Command(108);
    EXPECT_EQ(Desk.broadcasts.at(0).message, WM_SYSCOMMAND);
    EXPECT_EQ(Desk.broadcasts.at(0).wParam, SC_SCREENSAVE);
}

TEST_F(RunningQuorl, SaysSoOfANumberThatNothingHandles) {
    WillAnswer({IDOK});
    EXPECT_EQ(DoAction(MainWnd, 46, nullptr), 0);
    EXPECT_EQ(LastBox(), "Actually, I don't handle that one yet./Sorry.");
}

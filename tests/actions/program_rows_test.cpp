#include "actions/dispatch.h"

#include "support/quorl_test.h"

#include <climits>

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
    const auto after = [](ActionId row, int border) {
        Options.border = border;
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1);
        return Options.border;
    };
    EXPECT_EQ(after(68, 9), 10);
    EXPECT_EQ(after(68, 50), 10);
    EXPECT_EQ(after(69, 1), 1);
    EXPECT_EQ(after(69, 50), 49);
}

TEST_F(RunningQuorl, AsksTheSystemToLockTheStationWhereItCanAndForTheScreenSaver) {
    Command(ROW_LOCK_WORK_STATION);
    pLockWorkStation = nullptr;
    Command(ROW_LOCK_WORK_STATION);
    EXPECT_EQ(Desk.locks, 1);
    Command(108);
    EXPECT_EQ(Desk.broadcasts.at(0).message, WM_SYSCOMMAND);
    EXPECT_EQ(Desk.broadcasts.at(0).wParam, SC_SCREENSAVE);
}

TEST_F(RunningQuorl, SaysSoOfANumberThatNothingHandles) {
    const int ids[] = {46, 78, 87, 88, 109, 110, 112, 113, 123, -1, INT_MIN};
    Desk.answers.assign(std::size(ids), IDOK);
    for (const int id : ids) {
        EXPECT_EQ(DoAction(MainWnd, id, nullptr), 0) << id;
        EXPECT_TRUE(id < 0 || id == NUM_ACTIONS || ActionTable[id].flags == ACTION_OFF) << "offered, " << id;
    }
    EXPECT_EQ(Desk.boxes.size(), std::size(ids));
    EXPECT_EQ(LastBox(), "Actually, I don't handle that one yet./Sorry.");
}

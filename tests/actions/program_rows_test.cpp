#include "actions/program_rows.h"

#include "support/quorl_test.h"

class ProgramRows : public RunningQuorl {};

TEST_F(ProgramRows, TogglesFlipTheirValueAndDoNothingElse) {
    const int before = Desk.calls;
    for (const ActionId row : {58, 70, 71, 72, 73, 79, 82, 83, 85, 86, 89, 90, 91, 114, 115, 122}) {
        ActionTable[row].value = 7; // as a settings file may say
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 0) << row;
        EXPECT_EQ(ActionTable[row].value, 0) << row;
        DoAction(MainWnd, row, nullptr);
        EXPECT_EQ(ActionTable[row].value, 1) << row;
    }
    EXPECT_EQ(Desk.calls, before);
}

TEST_F(ProgramRows, TheBorderIsHeldFromOneToTen) {
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

TEST_F(ProgramRows, TheSystemIsAskedToLockTheStationWhereItCanAndForTheScreenSaver) {
    EXPECT_EQ(DoAction(MainWnd, ROW_LOCK_WORK_STATION, nullptr), 1);
    EXPECT_EQ(Desk.locks, 1);
    pLockWorkStation = nullptr;
    EXPECT_EQ(DoAction(MainWnd, ROW_LOCK_WORK_STATION, nullptr), 0);

    EXPECT_EQ(DoAction(MainWnd, 108, nullptr), 1);
    ASSERT_EQ(Desk.broadcasts.size(), 1U);
    EXPECT_EQ(Desk.broadcasts[0].message, WM_SYSCOMMAND);
    EXPECT_EQ(Desk.broadcasts[0].wParam, SC_SCREENSAVE);
}

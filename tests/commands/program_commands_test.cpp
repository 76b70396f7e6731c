#include "actions/dispatch.h"

#include "support/quorl_test.h"

class ProgramCommands : public RunningQuorl {};

TEST_F(ProgramCommands, KeepValuesInTheirLimits) {
    ActionTable[ACTION_SNAP].value = 7; // as a settings file may say
    for (const int toggled : {0, 1}) {
        RunAction(ACTION_SNAP);
        EXPECT_EQ(ActionTable[ACTION_SNAP].value, toggled);
    }
    for (const auto& [id, limit] : {std::pair{ACTION_BORDER_UP, 10}, {ACTION_BORDER_DOWN, 1}}) {
        for (int press = 0; press < 12; ++press)
            RunAction(id);
        EXPECT_EQ(Options.border, limit);
    }
}

TEST_F(ProgramCommands, LockTheStationAndStartTheScreenSaver) {
    RunAction(ACTION_LOCK_STATION);
    EXPECT_EQ(Desk.locks, 1);
    RunAction(ACTION_SCREEN_SAVER);
    const DeskMessage& sent = Desk.broadcasts.at(0);
    EXPECT_TRUE(sent.message == WM_SYSCOMMAND && sent.wParam == SC_SCREENSAVE);
}

TEST_F(ProgramCommands, ReportAnActionWithoutAHandler) {
    AnswerBoxes({IDOK, IDOK, IDOK});
    for (const int id : {-1, int{ACTION_FLASH_VIEW}, int{NUM_ACTIONS}})
        DoAction(MainWnd, id, nullptr);
    EXPECT_EQ(LastBox(), "Actually, I don't handle that one yet./Sorry.");
    EXPECT_TRUE(Desk.boxAnswers.empty());
}

#include "core/main_window.h"

#include "support/quorl_test.h"

class MainWindow : public RunningQuorl {};

static LRESULT Send(UINT message, void* record = nullptr) {
    Desk.trace.clear();
    return MainWndProc(MainWnd, message, 0, reinterpret_cast<LPARAM>(record));
}

TEST_F(MainWindow, EveryEndAsksTheSameQuestionAndDestroysNothing) {
    for (const UINT message : {WM_CLOSE, WM_DESTROY, WM_QUIT}) {
        WillAnswer({IDNO});
        EXPECT_EQ(Send(message), 0) << message;
        EXPECT_EQ(CallsOf("MessageBoxA"), static_cast<int>(Desk.trace.size())) << message;
        EXPECT_EQ(LastBox(), "QUIT?/QUIT?");
    }
}

TEST_F(MainWindow, NewColoursRepaintTheMap) {
    for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_DEVMODECHANGE}) {
        BackBrush = nullptr;
        EXPECT_EQ(Send(message), 0);
        EXPECT_NE(BackBrush, nullptr) << message;
        EXPECT_TRUE(CameInOrder({"GetSysColorBrush", "InvalidateRect", "UpdateWindow"})) << message;
    }
}

TEST_F(MainWindow, AnotherProgramMayAskForTheDesktopsSize) {
    MINMAXINFO record{};
    EXPECT_EQ(Send(1134, &record), 0);
    EXPECT_EQ(record.ptMaxTrackSize, (POINT{4096, 1536}));
    EXPECT_EQ(Send(1134), 0) << "without a record, too";
}

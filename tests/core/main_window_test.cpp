#include "core/main_window.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class MainWindow : public QuorlTest {
  protected:
    void Start() {
        ASSERT_EQ(StartQuorl(), 1);
        Settle();
        Desk.trace.clear();
    }

    static LRESULT Send(UINT message, void* record = nullptr) {
        return MainWndProc(MainWnd, message, 0, reinterpret_cast<LPARAM>(record));
    }
};

TEST_F(MainWindow, EveryEndAsksTheSameQuestionAndDestroysNothing) {
    Start();
    const std::size_t hotkeys = Desk.hotkeys.size();
    for (const UINT message : {WM_CLOSE, WM_DESTROY, WM_QUIT}) {
        WillAnswer({message == WM_CLOSE ? IDCANCEL : IDNO});
        EXPECT_EQ(Send(message), 0) << message;
        EXPECT_EQ(Desk.boxes.back().text + "/" + Desk.boxes.back().caption, "QUIT?/QUIT?");
        EXPECT_EQ(Desk.boxes.back().type, MB_YESNO);
    }
    EXPECT_EQ(Desk.boxes.size(), 3U);
    EXPECT_EQ(CallsOf("DestroyWindow") + CallsOf("DefWindowProcA") + CallsOf("PostQuitMessage"), 0);
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys);
    EXPECT_TRUE(Desk.files.empty());
}

TEST_F(MainWindow, WhatTheMouseDoesOnTheMapIsAnsweredBy0) {
    Start();
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONDOWN})
        EXPECT_EQ(Send(message), 0) << message;
}

TEST_F(MainWindow, NewColoursRepaintTheMap) {
    Start();
    for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_DEVMODECHANGE}) {
        BackBrush = nullptr;
        Desk.trace.clear();
        EXPECT_EQ(Send(message), 0);
        EXPECT_NE(BackBrush, nullptr) << message;
        EXPECT_TRUE(CameInOrder({"GetSysColorBrush", "InvalidateRect", "UpdateWindow"})) << message;
    }
}

TEST_F(MainWindow, AnotherProgramMayAskForTheDesktopsSize) {
    Start();
    MINMAXINFO record{};
    EXPECT_EQ(Send(1134, &record), 0);
    EXPECT_EQ(record.ptMaxTrackSize, (POINT{4096, 1536}));
    EXPECT_EQ(record.ptMinTrackSize, POINT{}) << "nothing else is written";
    EXPECT_EQ(Send(1134), 0) << "without a record, too";
}

} // namespace

#include "core/main.h"

#include "core/main_window.h"
#include "support/quorl_test.h"

class Life : public QuorlTest {};

TEST_F(Life, StartsOnceAndOnTopWithTheDefaultsOfANewUser) {
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_TRUE(CameInOrder({"RegisterHotKey", "LoadLibraryA", "ShowWindow"}));
    const DeskWindow& toolwin = RowOf(MainWnd);
    EXPECT_EQ(toolwin.place, Rect(100, 100, 300, 200));
    EXPECT_EQ(toolwin.exStyle, DWORD{WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED});
    EXPECT_EQ(toolwin.style, DWORD{WS_POPUP | WS_THICKFRAME | WS_VISIBLE});
    EXPECT_EQ(toolwin.alpha, 255);
    EXPECT_TRUE(Desk.classes.at(MAIN_CLASS).style & CS_DBLCLKS);
    EXPECT_EQ(Hook.window, MainWnd);
    std::string turnedOn;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row) {
        EXPECT_EQ(ActionTable[row].id, row);
        turnedOn += ActionTable[row].value ? std::to_string(row) + " " : "";
    }
    EXPECT_EQ(turnedOn, "58 70 71 72 73 77 89 114 122 ");
    EXPECT_EQ(StartQuorl(), 0) << "there is one already";
}

TEST_F(Life, WhatTheSystemLacksIsNotOfferedAndTheRestRuns) {
    Desk.modules["user32.dll"].exports.erase("SetLayeredWindowAttributes");
    Desk.modules["quorl.dll"].bInstalled = 0;
    ActionTable[85].value = 1;
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(ActionTable[ROW_TRANSPARENCY].flags, ACTION_OFF);
    EXPECT_FALSE(RowOf(MainWnd).exStyle & WS_EX_LAYERED);
    EXPECT_EQ(Desk.beeps, std::vector<UINT>{0});
    for (const ActionId row : {85, 90}) // what needs the mouse
        EXPECT_TRUE(ActionTable[row].flags == ACTION_OFF && !ActionTable[row].value) << row;
    EXPECT_NE(ActionTable[91].flags, ACTION_OFF);
    ShutDown();
}

TEST_F(Life, RunsUntilTheUserQuitsAndThenEndsInItsOrder) {
    WillAnswer({IDNO, IDYES});
    Desk.script.assign(2, [] { PostMessageA(MainWnd, WM_CLOSE, 0, 0); });
    EXPECT_EQ(WinMain(nullptr, nullptr, nullptr, 0), 0);
    EXPECT_FALSE(Desk.bRunDry) << "it ended by the quit message";
    EXPECT_EQ(Desk.boxes.size(), 2u);
    EXPECT_EQ(Hook.set, (std::vector<int>{1, 0}));
    EXPECT_EQ(Desk.modules["quorl.dll"].loads, 0);
    EXPECT_TRUE(CameInOrder({"PostQuitMessage", "UnregisterHotKey", "EnumWindows", "FreeLibrary"}));
}

TEST_F(Life, ACrashFoldsTheWindowsBackOnceAndAsksNothing) {
    const HWND far = OpenWindow("far", {1100, 200, 1300, 300});
    RowOf(far).answer = DeskAnswer::Fails;
    RowOf(far).error = ERROR_ACCESS_DENIED;
    std::vector<LONG> verdicts;
    Desk.script.assign(2, [&] { verdicts.push_back(Desk.crashFilter(nullptr)); });
    WinMain(nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(verdicts, std::vector<LONG>(2, EXCEPTION_CONTINUE_SEARCH)) << "the system reports the crash";
    EXPECT_EQ(CallsOf("SendMessageTimeoutA"), 1) << "a crash inside of that does not start it again";
}

#include "app/main.h"
#include "support/quorl_test.h"

static bool IsOffScreen(HWND window) {
    const RECT rect = RectOf(window);
    return rect.left < 0 || rect.left >= 1024 || rect.top < 0 || rect.top >= 768;
}

// Starts Quorl, scrolls, waits for the map, scrolls back half the way and quits, several times if a hotkey is
// lost. Saves nothing: the settings file has a fault test of its own.
static void UseQuorl() {
    Desk.files["quorl.ini"] = "[Quorl]\r\nAction71=-1|-1|-1|-1|0\r\n";
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    const HWND far = OpenWindow("far", {1100, 900, 1300, 1000});
    const HWND list = OpenWindow("list", {10, 10, 50, 50}, "SysListView32");
    const HWND bar = OpenWindow("", {0, 748, 1024, 768}, "Shell_TrayWnd");
    Desk.boxAnswers.assign(20, IDYES); // to any report, and to "QUIT?"
    const bool bStarted = StartQuorl();
    if (bStarted) {
        RunAction(ACTION_SCREEN_RIGHT);
        Wait(200);
        RunAction(ACTION_VIEW_LEFT_MIN);
        RunAction(ACTION_SAVE_AT_EXIT);
        for (int attempt = 0; attempt < 3 && !CountCalls("PostQuitMessage"); ++attempt)
            RunAction(ACTION_EXIT);
        ShutDown();
    }
    EXPECT_LE(IsOffScreen(editor) + (IsOffScreen(far) && bStarted) + IsOffScreen(list), 1)
        << "more than the window whose own call failed";
    EXPECT_EQ(RectOf(bar), Rect(0, 748, 1024, 768));
    EXPECT_LT(Desk.now, 10000U);
    EXPECT_EQ(Desk.unexpected, 0);
}

TEST_F(QuorlTest, SurvivesEachFailingPlatformCall) {
    EXPECT_GT(FailEachCall(PrepareDesk, UseQuorl), 250);
}

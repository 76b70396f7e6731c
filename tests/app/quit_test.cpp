#include "app/quit.h"

#include "app/main.h"
#include "settings/settings.h"
#include "support/quorl_test.h"

#include <algorithm>

class Quit : public RunningQuorl {
  protected:
    HWND far = OpenWindow("far", {1100, 200, 1300, 300});
};
class QuitAtStart : public QuorlTest {};

TEST_F(Quit, IgnoresQueuedCommandsAfterConfirmation) {
    RunAction(ACTION_SAVE_SETTINGS);
    const auto saved = Desk.files;
    Desk.files.clear();
    AnswerBoxes({IDYES, IDYES});
    PostMessageA(MainWnd, WM_CLOSE, 0, 0);
    Desk.foreground = far;
    for (const ActionId id : {ACTION_SCREEN_RIGHT, ACTION_ACTIVE_RIGHT_SCREEN}) // while the box is open
        PostMessageA(MainWnd, WM_HOTKEY, static_cast<WPARAM>(id), 0);
    HandleMessages();
    EXPECT_EQ(RectOf(far).left, 76);
    EXPECT_EQ(Desk.files, saved);
    EXPECT_TRUE(ConfirmQuit(MainWnd));
    SendMessageA(MainWnd, WM_ENDSESSION, 1, 0);
    EXPECT_EQ(Desk.files, saved) << "saved again, without the bindings";
}

// The box about a refused hotkey lets the user quit before StartUp has finished.
TEST_F(QuitAtStart, EndsTheMessageLoopAtOnceAndSavesNothing) {
    const std::string stored = "[Quorl]\r\nAction28=-1|-1|4|112|0\r\n";
    Desk.files["quorl.ini"] = stored;
    Desk.fault = {"RegisterHotKey", 1, 0, ERROR_HOTKEY_ALREADY_REGISTERED, 0};
    Desk.duringBox = [] {
        Desk.duringBox = nullptr;
        SaveSettings(); // the user can start the action too
        ConfirmQuit(MainWnd);
    };
    AnswerBoxes({IDYES, IDOK});
    EXPECT_EQ(WinMain(nullptr, nullptr, nullptr, 0), 0);
    EXPECT_FALSE(Desk.timeIsUp);
    EXPECT_TRUE(Desk.tray.empty());
    EXPECT_EQ(Desk.files["quorl.ini"], stored) << "nothing is saved before all hotkeys are registered";
    EXPECT_TRUE(Hook.set.empty());
}

TEST_F(Quit, AtLogoffFoldsEverythingWithinSecondsAndAsksNothing) {
    std::vector<HWND> hung(40);
    for (HWND& window : hung)
        WindowOf(window = OpenWindow("hung", {1100, 200, 1300, 300})).response = DeskResponse::TimesOut;
    SendMessageA(MainWnd, WM_ENDSESSION, 0, 0); // cancelled
    EXPECT_FALSE(bQuitting);
    const DWORD before = Desk.now;
    Desk.trace.clear();
    LogOff();
    EXPECT_EQ(Desk.now - before, 3000U);
    EXPECT_EQ(Desk.rememberedRects[far].left, 76) << "its program ended after Quorl";
    const auto lastCall = [](const std::string& call) {
        return std::find(Desk.trace.rbegin(), Desk.trace.rend(), call);
    };
    EXPECT_EQ(CountCalls("MoveFileExA"), 1);
    EXPECT_LT(lastCall("Shell_NotifyIconA"), lastCall("MoveFileExA")) << "saved first";
    EXPECT_TRUE(Desk.tray.empty() && Desk.hotkeys.empty() && Desk.quitPosted && !Desk.files.empty());
    for (const HWND window : hung) {
        WakeWindow(window);
        EXPECT_EQ(RectOf(window).left, 76) << "the move was posted";
    }
}

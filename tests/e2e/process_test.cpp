// Quorl's process from start to end: saved settings, a second instance, a refused hotkey, a crash.
#include "user.h"

TEST(Process, NextRunStartsWithTheSavedSettings) {
    StartQuorl();
    EXPECT_EQ(Stored("quorl_pos.right"), "");
    RunActions<ACTION_TOOLWIN_RIGHT_MAX, ACTION_EXPAND_WIDTH>();
    ExpectSaved("quorl_pos.right", "405");
    RunActions<ACTION_TOOLWIN_RIGHT_MAX, ACTION_LOAD_SETTINGS>();
    EXPECT_EVENTUALLY(WindowRect(QuorlWindow()), (RECT{200, 100, 405, 200}));

    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    AnswerBox("QUIT?", 'N');
    EXPECT_TRUE(Responds(QuorlWindow()));
    Quit();
    const HWND next = StartQuorl();
    EXPECT_EQ(WindowRect(next), (RECT{200, 100, 405, 200}));
    EXPECT_EQ(WaitForExit(LaunchQuorl()), 0U) << "a second instance exits silently";
    EXPECT_EQ(QuorlWindow(), next);
    EXPECT_FALSE(FindWindowExA(nullptr, next, "Quorltop", "Quorltop"));
}

TEST(Process, RefusedHotkeyIsReportedOnceAndTheOthersWork) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    LaunchQuorl();
    EXPECT_EQ(AnswerBox("Error", VK_RETURN),
              "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
              "\nAnother program has already registered the hotkey combination.");
    EXPECT_EVENTUALLY(IsMapShown(), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, 0, -SCREEN_H));
    Quit();
    EXPECT_EQ(Stored("Action30"), "-1|-1|-1|-1|0");
    EXPECT_TRUE(StartQuorl()) << "no box delays the start";
    UnregisterHotKey(nullptr, 1);
}

TEST(Process, WindowsReturnAfterACrashAndAtTheEndOfTheSession) {
    const HWND editor = OpenWindow("editor", EDITOR);
    for (const bool crash : {false, true}) {
        const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(StartQuorl()));
        RunActions<ACTION_SCREEN_RIGHT>();
        EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, -SCREEN_W, 0));
        const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<UINT_PTR>(16));
        if (crash)
            CreateRemoteThread(process, nullptr, 0, nowhere, nullptr, 0, nullptr);
        else
            SendMessageA(QuorlWindow(), WM_ENDSESSION, TRUE, ENDSESSION_CLOSEAPP);
        EXPECT_EVENTUALLY(WindowRect(editor), EDITOR);
        TerminateProcess(process, 0); // a crashed process waits for the crash reporter
        WaitForExit(process);
        CloseHandle(process);
    }
}

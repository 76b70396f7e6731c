// Quorl from its start to its end: what it finds and leaves, started twice, without a key, and in a crash.
#include "user.h"

TEST(Life, TheNextRunFindsWhatTheLastOneLeft) {
    StartQuorl();
    EXPECT_EQ(Stored("quorl_pos.right"), "");
    DoRow(14); // the Toolwin 100 pixels to the right
    DoRow(43); // and 5 wider
    ExpectSaved("quorl_pos.right", "405");
    DoRow(14);
    DoRow(48); // back to what was saved
    EXPECT_SOON(PlaceOf(QuorlWindow()), (Place{200, 100, 405, 200}));

    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    AnswerBox("QUIT?", 'N');
    EXPECT_TRUE(Answers(QuorlWindow()));
    Quit();
    const HWND next = StartQuorl();
    EXPECT_EQ(PlaceOf(next), (Place{200, 100, 405, 200}));
    EXPECT_EQ(WaitForExit(LaunchQuorl()), 0U) << "a second Quorl ends silently";
    EXPECT_EQ(QuorlWindow(), next);
    EXPECT_FALSE(FindWindowExA(nullptr, next, "Quorltop", "Quorltop"));
}

TEST(Life, ARefusedCombinationIsReportedAtTheFirstStartOnlyAndTheOthersWork) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    LaunchQuorl();
    EXPECT_EQ(AnswerBox("Error", VK_RETURN),
              "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
              "\nAnother program has already registered the hotkey combination.");
    EXPECT_SOON(IsMapShown(), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));
    Quit();
    EXPECT_EQ(Stored("Action30"), "-1|-1|-1|-1|0");
    EXPECT_TRUE(StartQuorl()) << "it is on show: no box holds it up";
    UnregisterHotKey(nullptr, 1);
}

TEST(Life, InACrashAndAtTheEndOfTheSessionTheWindowsComeBack) {
    const HWND editor = OpenWindow("editor", EDITOR);
    for (const bool bCrash : {false, true}) {
        const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(StartQuorl()));
        DoRow(30); // a screen to the right
        EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
        const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<UINT_PTR>(16));
        if (bCrash)
            CreateRemoteThread(process, nullptr, 0, nowhere, nullptr, 0, nullptr);
        else
            SendMessageA(QuorlWindow(), WM_ENDSESSION, TRUE, ENDSESSION_CLOSEAPP);
        EXPECT_SOON(PlaceOf(editor), EDITOR);
        TerminateProcess(process, 0); // a crash waits for whoever reports it
        WaitForExit(process);
        CloseHandle(process);
    }
}

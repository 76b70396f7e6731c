// Quorl in bad circumstances: started twice, without its library, and in a crash.
#include "user.h"

TEST(Life, ASecondQuorlEndsSilently) {
    const HWND first = StartQuorl();
    EXPECT_EQ(WaitForExit(LaunchQuorl()), 0U);
    EXPECT_EQ(QuorlWindow(), first);
    EXPECT_FALSE(FindWindowExA(nullptr, first, "Quorltop", "Quorltop"));
}

TEST(Life, WithoutItsHookLibraryTheKeysWork) {
    const std::string alone = ProgramFolder() + "\\alone";
    CreateDirectoryA(alone.c_str(), nullptr);
    ASSERT_TRUE(CopyFileA((ProgramFolder() + "\\quorl.exe").c_str(), (alone + "\\quorl.exe").c_str(), FALSE));
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl(alone);
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
}

TEST(Life, InACrashTheWindowsComeBackBeforeTheProcessEnds) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(StartQuorl()));
    ASSERT_TRUE(process);
    DoRow(30); // a screen to the right
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));

    const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<UINT_PTR>(16));
    ASSERT_TRUE(CreateRemoteThread(process, nullptr, 0, nowhere, nullptr, 0, nullptr));
    EXPECT_SOON(PlaceOf(editor), EDITOR);
    TerminateProcess(process, 0); // it waits for whoever reports the crash
    CloseHandle(process);
}

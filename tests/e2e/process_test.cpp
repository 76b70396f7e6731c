#include "shared/user.h"

TEST(Process, WindowsReturnAfterACrashAndAtTheEndOfTheSession) {
    const HWND editor = OpenWindow("editor", EDITOR);
    for (const bool crash : {false, true}) {
        const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(StartQuorl()));
        Settle(editor); // while a program is busy, a scroll leaves its window where it is
        RunActions({ACTION_SCREEN_RIGHT});
        EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, -SCREEN_W, 0));
        EXPECT_EQ(WaitForExit(LaunchQuorl()), 0U) << "a second instance exits silently";
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

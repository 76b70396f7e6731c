// A crash of Quorl: its user's windows must not stay out of reach.
#include "user.h"

TEST(Crash, TheWindowsComeBackBeforeTheProcessEnds) {
    const HWND editor = OpenWindow("editor", {300, 200, 700, 500});
    const HWND quorl = StartQuorl();
    DWORD id = 0;
    GetWindowThreadProcessId(quorl, &id);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    ASSERT_TRUE(process);
    DoRow(30); // a screen to the right
    EXPECT_SOON(PlaceOf(editor).left, 300 - SCREEN_W);

    const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<UINT_PTR>(16));
    ASSERT_TRUE(CreateRemoteThread(process, nullptr, 0, nowhere, nullptr, 0, nullptr));

    EXPECT_SOON(PlaceOf(editor), (Place{300, 200, 700, 500}));
    TerminateProcess(process, 0); // it waits for whoever reports the crash
    CloseHandle(process);
}

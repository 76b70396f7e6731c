// What the hook library expects of Windows. The in-memory desktop has no hooks: the library is not built
// there.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<POINT> Seen;
std::vector<WPARAM> Taken;

LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM details) {
    if (code == HC_ACTION && message == WM_MOUSEMOVE)
        Seen.push_back(reinterpret_cast<const MSLLHOOKSTRUCT*>(details)->pt);
    return CallNextHookEx(nullptr, code, message, details);
}

LRESULT CALLBACK OnTaken(int code, WPARAM how, LPARAM details) {
    if (reinterpret_cast<const MSG*>(details)->message == WM_APP)
        Taken.push_back(how);
    return CallNextHookEx(nullptr, code, how, details);
}

// Runs messages until a move to x is seen, or for a second.
bool SawMoveTo(LONG x) {
    const ULONGLONG deadline = GetTickCount64() + 1000;
    MSG message;
    do {
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        for (const POINT& point : Seen)
            if (point.x == x)
                return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    } while (GetTickCount64() < deadline);
    return false;
}

void SendMoveTo(LONG x, LONG y) {
    INPUT move = {};
    move.mi = {(x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN),
               (y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN),
               0,
               MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
               0,
               0};
    SendInput(1, &move, sizeof move);
}

TEST(Hooks, ALowLevelMouseHookSeesEveryMoveUntilItIsTakenBack) {
    SetCursorPos(200, 200);
    const HHOOK hook = SetWindowsHookExA(WH_MOUSE_LL, OnMouse, GetModuleHandleA(nullptr), 0);
    ASSERT_TRUE(hook);
    EXPECT_FALSE(SawMoveTo(301)); // under Wine a thread that never looked for messages is not asked
    for (const LONG x : {301, 402, 403}) {
        SendMoveTo(x, 200);
        EXPECT_TRUE(SawMoveTo(x)) << x;
    }
    EXPECT_TRUE(UnhookWindowsHookEx(hook));
    SendMoveTo(503, 200);
    EXPECT_FALSE(SawMoveTo(503));
}

TEST(Hooks, AMessageHookTellsTakingFromLooking) {
    const HHOOK hook = SetWindowsHookExA(WH_GETMESSAGE, OnTaken, nullptr, GetCurrentThreadId());
    ASSERT_TRUE(hook);
    PostThreadMessageA(GetCurrentThreadId(), WM_APP, 0, 0);
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
    EXPECT_EQ(Taken, std::vector<WPARAM>{PM_NOREMOVE});
    PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);
    EXPECT_EQ(Taken, (std::vector<WPARAM>{PM_NOREMOVE, PM_REMOVE}));
    UnhookWindowsHookEx(hook);
}

TEST(Hooks, WithoutALibraryNoHookReachesIntoOtherProgramsOrAllOfThem) {
    EXPECT_FALSE(SetWindowsHookExA(WH_GETMESSAGE, OnTaken, nullptr, 0))
        << "0 is the thread of a window that is gone";
}

} // namespace

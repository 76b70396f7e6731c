// Sending and posting, to windows of this program and of others; timers.
#include "contract/contract_test.h"

namespace {

using Messages = Contract;

TEST_F(Messages, WhatIsSentIsDoneAtOnceWhatIsPostedWaitsInOrderAndQuitBehindAllOfIt) {
    const HWND window = OpenOwn();
    std::vector<WPARAM> order;
    Replies[WM_USER] = [&order](const MSG& arrived) {
        order.push_back(arrived.wParam);
        return arrived.lParam + 1;
    };
    PostQuitMessage(7);
    EXPECT_TRUE(PostMessageA(window, WM_USER, 1, 0));
    EXPECT_TRUE(PostMessageA(window, WM_USER, 2, 0));
    EXPECT_EQ(SendMessageA(window, WM_USER, 3, 41), 42);
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    EXPECT_EQ(order, (std::vector<WPARAM>{3, 1, 2}));
    EXPECT_EQ(message.wParam, 7U);
}

// Hands a record to a window, which answers if no error is expected, and gives what is in it then.
RECT Moving(HWND window, DWORD error) {
    RECT record = PLACE;
    DWORD_PTR answer = 0;
    SetLastError(0);
    const LRESULT result =
        SendMessageTimeoutA(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&record), SMTO_ABORTIFHUNG,
                            error == ERROR_TIMEOUT ? 100 : 2000, &answer);
    EXPECT_EQ(result ? 0 : GetLastError(), error);
    return record;
}

TEST_F(Messages, AWindowAnswersWmMovingInItsRecordUnlessItIsSlowOrGone) {
    EXPECT_EQ(Moving(OpenStranger("answers"), 0), PLACE);
    EXPECT_EQ(Moving(OpenStranger("slow", 1), ERROR_TIMEOUT), PLACE);
    const HWND own = OpenOwn();
    Replies[WM_MOVING] = [](const MSG& arrived) {
        reinterpret_cast<RECT*>(arrived.lParam)->left = 99;
        return TRUE;
    };
    EXPECT_EQ(Moving(own, 0).left, 99);
    DestroyWindow(own);
    Moving(own, ERROR_INVALID_WINDOW_HANDLE);
}

std::vector<UINT_PTR> Ticks; // ids

void CALLBACK KeepTick(HWND, UINT, UINT_PTR id, DWORD) {
    Ticks.push_back(id);
}

TEST_F(Messages, ATimerCallsBackOrTellsItsWindowAndEndsWithItOrWhenItIsKilled) {
    const HWND window = OpenOwn();
    SetTimer(window, 2, 60000, KeepTick);
    SetTimer(window, 1, 200, KeepTick);
    Handle(120);
    EXPECT_NE(SetTimer(window, 1, 200, KeepTick), 0U);
    Handle(120);
    EXPECT_TRUE(Ticks.empty()) << "set again, its time starts anew";
    Handle(120);
    EXPECT_EQ(Ticks, std::vector<UINT_PTR>{1});
    SetTimer(window, 1, 100, nullptr);
    Handle(150);
    EXPECT_TRUE(KillTimer(window, 1));
    SetTimer(window, 2, 20, KeepTick);
    DestroyWindow(window);
    Handle(50);
    EXPECT_EQ(SeenOf({WM_TIMER}), Numbers{WM_TIMER}) << "none has come since";
    EXPECT_EQ(Ticks.size(), 1U);
}

} // namespace

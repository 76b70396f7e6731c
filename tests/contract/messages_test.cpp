// Sending and posting, to windows of this program and of others; the order in which messages come.
#include "contract/contract_test.h"

namespace {

using Messages = Contract;

// The next message of this thread's queue that one of our windows or nobody is meant by.
MSG Next() {
    MSG message{};
    GetMessageA(&message, nullptr, 0, 0);
    return message;
}

TEST_F(Messages, WhatIsSentIsDoneAtOnceAndWhatIsPostedWaitsInOrder) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    Replies[WM_USER] = [](const MSG& arrived) { return arrived.lParam + 1; };

    EXPECT_TRUE(PostMessageA(window, WM_USER, 1, 0));
    EXPECT_TRUE(PostMessageA(window, WM_USER, 2, 0));
    EXPECT_EQ(SendMessageA(window, WM_USER, 3, 41), 42);
    ASSERT_EQ(SeenOf({WM_USER}).size(), 1U) << "a posted message waits for the loop";

    Handle(20);
    std::vector<WPARAM> order;
    for (const MSG& arrived : Seen)
        if (arrived.message == WM_USER)
            order.push_back(arrived.wParam);
    EXPECT_EQ(order, (std::vector<WPARAM>{3, 1, 2}));
}

TEST_F(Messages, QuitComesBehindEverythingThatWasPosted) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 1, 0);
    MSG message{};
    EXPECT_GT(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(message.message, WM_USER);
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_EQ(message.wParam, 7U);

    PostMessageA(window, WM_USER, 2, 0);
    EXPECT_GT(GetMessageA(&message, nullptr, 0, 0), 0) << "a quit message comes once";
}

TEST_F(Messages, PaintAndTimersWaitBehindPostedMessages) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    Handle(50);
    EXPECT_NE(SetTimer(window, 5, 10, nullptr), 0U);
    Pass(60);
    InvalidateRect(window, nullptr, FALSE);
    PostMessageA(window, WM_USER, 0, 0);

    EXPECT_EQ(Next().message, WM_USER);
    const MSG paint = Next();
    EXPECT_EQ(paint.message, WM_PAINT);
    DispatchMessageA(&paint);
    EXPECT_EQ(Next().message, WM_TIMER);
    EXPECT_TRUE(KillTimer(window, 5));
}

struct Sent {
    LRESULT result;
    DWORD error;
    DWORD took; // milliseconds
    RECT record;
};

Sent SendMoving(HWND window) {
    Sent sent{
        0, 0, 0, {5, 6, 70, 80}
    };
    DWORD_PTR answer = 0;
    const DWORD start = Clock();
    SetLastError(12345);
    sent.result = SendMessageTimeoutA(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&sent.record),
                                      SMTO_ABORTIFHUNG, 100, &answer);
    sent.error = GetLastError();
    sent.took = Clock() - start;
    return sent;
}

TEST_F(Messages, WmMovingGoesToOtherProgramsAndBringsTheRecordBack) {
    const Sent plain = SendMoving(OpenStranger("answers", {10, 10, 300, 200}));
    EXPECT_NE(plain.result, 0);
    EXPECT_EQ(plain.record, Rect(5, 6, 70, 80));

    const Sent rewritten = SendMoving(OpenStranger("rewrites", {10, 10, 300, 200}, Manner::Rewrites));
    EXPECT_NE(rewritten.result, 0);
    EXPECT_EQ(rewritten.record, RewrittenRecord);

    const HWND own = OpenOwn({10, 10, 300, 200});
    Replies[WM_MOVING] = [](const MSG& arrived) {
        reinterpret_cast<RECT*>(arrived.lParam)->left = 99;
        return TRUE;
    };
    EXPECT_EQ(SendMoving(own).record, Rect(99, 6, 70, 80)) << "and to windows of this program";
}

TEST_F(Messages, ASlowProgramCostsItsTimeAndFailsWithATimeout) {
    const Sent slow = SendMoving(OpenStranger("slow", {10, 10, 300, 200}, Manner::Slow));
    EXPECT_EQ(slow.result, 0);
    EXPECT_EQ(slow.error, ERROR_TIMEOUT);
    EXPECT_GE(slow.took, 90U);
    EXPECT_LT(slow.took, 400U);
}

TEST_F(Messages, AHungProgramFailsAtOnceWithATimeout) {
    const Sent hung = SendMoving(OpenStranger("hung", {10, 10, 300, 200}, Manner::Hung));
    EXPECT_EQ(hung.result, 0);
    EXPECT_EQ(hung.error, ERROR_TIMEOUT);
    EXPECT_LT(hung.took, 60U);
}

TEST_F(Messages, AWindowThatIsGoneOrGoesMeanwhileFails) {
    const HWND own = OpenOwn({10, 10, 300, 200});
    DestroyWindow(own);
    const Sent gone = SendMoving(own);
    EXPECT_EQ(gone.result, 0);
    EXPECT_EQ(gone.error, ERROR_INVALID_WINDOW_HANDLE);

    const HWND leaving = OpenStranger("leaves", {10, 10, 300, 200}, Manner::Leaves);
    const Sent left = SendMoving(leaving);
    EXPECT_EQ(left.result, 0);
    EXPECT_NE(left.error, ERROR_TIMEOUT) << "that is no timeout";
    EXPECT_LT(left.took, 90U);
    Pass(100);
    EXPECT_FALSE(IsWindow(leaving));
}

} // namespace

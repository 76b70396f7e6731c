// Sending and posting, to windows of this program and of others; the order in which messages come.
#include "contract/contract_test.h"

namespace {

using Messages = Contract;

TEST_F(Messages, WhatIsSentIsDoneAtOnceAndWhatIsPostedWaitsInOrder) {
    const HWND window = OpenOwn();
    std::vector<WPARAM> order;
    Replies[WM_USER] = [&order](const MSG& arrived) {
        order.push_back(arrived.wParam);
        return arrived.lParam + 1;
    };
    EXPECT_TRUE(PostMessageA(window, WM_USER, 1, 0));
    EXPECT_TRUE(PostMessageA(window, WM_USER, 2, 0));
    EXPECT_EQ(SendMessageA(window, WM_USER, 3, 41), 42);
    Handle(20);
    EXPECT_EQ(order, (std::vector<WPARAM>{3, 1, 2}));
}

TEST_F(Messages, QuitComesOnceAndBehindEverythingThatWasPosted) {
    const HWND window = OpenOwn();
    MSG message{};
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 7, 0);
    for (const UINT next : {WM_USER, WM_QUIT}) {
        EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0) > 0, next != WM_QUIT);
        EXPECT_EQ(message.message, next);
        EXPECT_EQ(message.wParam, 7U);
    }
    PostMessageA(window, WM_USER, 7, 0);
    EXPECT_GT(GetMessageA(&message, nullptr, 0, 0), 0);
}

struct Sent {
    LRESULT result;
    DWORD error;
    DWORD took; // milliseconds
    RECT record;
};

const RECT RECORD{5, 6, 70, 80};

Sent SendMoving(HWND window, UINT patience) {
    Sent sent{0, 0, 0, RECORD};
    DWORD_PTR answer = 0;
    const DWORD start = Clock();
    SetLastError(12345);
    sent.result = SendMessageTimeoutA(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&sent.record),
                                      SMTO_ABORTIFHUNG, patience, &answer);
    sent.error = GetLastError();
    sent.took = Clock() - start;
    return sent;
}

TEST_F(Messages, OtherProgramsTakeWmMovingEachInItsManner) {
    const struct {
        const char* title;
        Manner manner;
        RECT record; // when it answers
        int bAnswers, bTimeout;
        UINT patience; // milliseconds, as what follows
        DWORD least, most;
    } rows[] = {
        {"answers",  Manner::Answers,  RECORD,          1, 0, 2000, 0,  2000},
        {"rewrites", Manner::Rewrites, RewrittenRecord, 1, 0, 2000, 0,  2000},
        {"slow",     Manner::Slow,     {},              0, 1, 100,  90, 450 },
        {"hung",     Manner::Hung,     {},              0, 1, 2000, 0,  1000},
        {"leaves",   Manner::Leaves,   {},              0, 0, 2000, 0,  2000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        const HWND window = OpenStranger(row.title, row.manner);
        const Sent sent = SendMoving(window, row.patience);
        EXPECT_EQ(sent.result != 0, row.bAnswers);
        EXPECT_EQ(sent.error == ERROR_TIMEOUT, row.bTimeout);
        EXPECT_TRUE(sent.took >= row.least && sent.took < row.most) << sent.took;
        EXPECT_TRUE(!row.bAnswers || sent.record == row.record);
        Pass(100);
        EXPECT_EQ(IsWindow(window), row.manner != Manner::Leaves);
    }
}

TEST_F(Messages, AWindowOfThisProgramTakesWmMovingUnlessItIsGone) {
    const HWND own = OpenOwn();
    Replies[WM_MOVING] = [](const MSG& arrived) {
        reinterpret_cast<RECT*>(arrived.lParam)->left = 99;
        return TRUE;
    };
    EXPECT_EQ(SendMoving(own, 2000).record, Rect(99, 6, 70, 80));
    DestroyWindow(own);
    const Sent gone = SendMoving(own, 2000);
    EXPECT_EQ(gone.result, 0);
    EXPECT_EQ(gone.error, ERROR_INVALID_WINDOW_HANDLE);
}

} // namespace

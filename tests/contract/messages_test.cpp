// Sending, posting and peeking, to windows of this program and of others; timers; notification icons.
#include "contract/contract_test.h"

namespace {

using Messages = Contract;

TEST_F(Messages, SentAreHandledAtOncePostedInOrderAndQuitLast) {
    const HWND window = OpenOwn();
    std::vector<WPARAM> order;
    Handlers[WM_USER] = [&order](const MSG& received) {
        order.push_back(received.wParam);
        return received.lParam + 1;
    };
    PostQuitMessage(7);
    EXPECT_TRUE(PostMessageA(window, WM_USER, 1, 0) && PostMessageA(window, WM_USER, 2, 0));
    EXPECT_EQ(SendMessageA(window, WM_USER, 3, 41), 42);
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    EXPECT_EQ(order, (std::vector<WPARAM>{3, 1, 2}));
    EXPECT_EQ(message.wParam, 7U);
}

// Sends a rect with a timeout, and returns it as it is afterwards.
RECT Moving(HWND window, DWORD expectedError) {
    RECT rect = RECT_OF_WINDOWS;
    DWORD_PTR result = 0;
    SetLastError(0);
    const LRESULT handled =
        SendMessageTimeoutA(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&rect), SMTO_ABORTIFHUNG,
                            expectedError == ERROR_TIMEOUT ? 100 : 2000, &result);
    EXPECT_EQ(handled ? 0 : GetLastError(), expectedError);
    return rect;
}

TEST_F(Messages, WmMovingReturnsTheRectUnlessTheWindowIsSlowOrDestroyed) {
    EXPECT_EQ(Moving(OpenOther("responds"), 0), RECT_OF_WINDOWS);
    EXPECT_EQ(Moving(OpenOther("slow", true), ERROR_TIMEOUT), RECT_OF_WINDOWS);
    const HWND own = OpenOwn();
    Handlers[WM_MOVING] = [](const MSG& received) {
        reinterpret_cast<RECT*>(received.lParam)->left = 99;
        return TRUE;
    };
    EXPECT_EQ(Moving(own, 0).left, 99);
    DestroyWindow(own);
    Moving(own, ERROR_INVALID_WINDOW_HANDLE);
}

std::vector<UINT_PTR> Ticks; // ids

void CALLBACK RecordTick(HWND, UINT, UINT_PTR id, DWORD) {
    Ticks.push_back(id);
}

TEST_F(Messages, TimersRestartWhenSetAgainAndEndWithTheirWindow) {
    const HWND window = OpenOwn();
    SetTimer(window, 2, 60000, RecordTick);
    SetTimer(window, 1, 200, RecordTick);
    HandleFor(120);
    EXPECT_NE(SetTimer(window, 1, 200, RecordTick), 0U);
    HandleFor(120);
    EXPECT_TRUE(Ticks.empty());
    HandleFor(120);
    EXPECT_EQ(Ticks, std::vector<UINT_PTR>{1});
    SetTimer(window, 1, 100, nullptr);
    HandleFor(150);
    EXPECT_TRUE(KillTimer(window, 1));
    SetTimer(window, 2, 20, RecordTick);
    DestroyWindow(window);
    HandleFor(50);
    EXPECT_EQ(ReceivedOf({WM_TIMER}), Numbers{WM_TIMER}) << "without a callback the window gets a message";
    EXPECT_EQ(Ticks.size(), 1U);
}

TEST_F(Messages, PeekFindsTheWantedOneAndQuitWhateverTheFilter) {
    const HWND window = OpenOwn();
    HandleFor(50);
    PostMessageA(window, WM_USER, 1, 0);
    PostMessageA(window, WM_USER + 1, 2, 0);
    MSG message{};
    const auto peek = [&](HWND of, UINT wanted, UINT flags) {
        return PeekMessageA(&message, of, wanted, wanted, flags) ? message.message : 0;
    };
    EXPECT_EQ(peek(window, WM_USER + 1, PM_NOREMOVE), UINT{WM_USER + 1}) << "not the earlier one";
    EXPECT_EQ(peek(window, WM_USER + 1, PM_REMOVE), UINT{WM_USER + 1});
    EXPECT_EQ(peek(window, WM_USER + 1, PM_REMOVE), 0U);
    EXPECT_EQ(peek(window, WM_USER, PM_REMOVE), UINT{WM_USER});
    PostQuitMessage(7);
    EXPECT_EQ(peek(nullptr, WM_HOTKEY, PM_REMOVE), UINT{WM_QUIT});
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(Messages, NotificationIconIsAddedOnceAndModifiedOrDeletedOnlyThen) {
    NOTIFYICONDATAA icon{};
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
    icon.hWnd = OpenOwn();
    icon.uFlags = NIF_ICON;
    icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_MODIFY, &icon) || Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &icon) && Shell_NotifyIconA(NIM_DELETE, &icon));
}

} // namespace

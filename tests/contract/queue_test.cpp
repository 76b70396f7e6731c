// The message queue as PeekMessageA sees it, what precedes a mouse press, changes of a notification icon.
#include "contract/contract_test.h"

namespace {

using Queue = Contract;

TEST_F(Queue, PeekLeavesTheMessageUnlessToldToRemoveIt) {
    const HWND window = OpenOwn();
    HandleFor(50);
    PostMessageA(window, WM_USER, 1, 0);
    PostMessageA(window, WM_USER + 1, 2, 0);
    MSG message{};
    const auto peek = [&](UINT wanted, UINT flags) {
        return PeekMessageA(&message, window, wanted, wanted, flags);
    };
    EXPECT_TRUE(peek(WM_USER + 1, PM_NOREMOVE));
    EXPECT_EQ(message.wParam, 2U) << "the filter skips earlier messages";
    EXPECT_TRUE(peek(WM_USER + 1, PM_REMOVE));
    EXPECT_FALSE(peek(WM_USER + 1, PM_REMOVE));
    EXPECT_TRUE(peek(WM_USER, PM_REMOVE));
}

TEST_F(Queue, PeekReturnsQuitWhateverTheFilter) {
    PostQuitMessage(7);
    MSG message{};
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_HOTKEY, WM_HOTKEY, PM_REMOVE));
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(Queue, ARegisteredMessageHasOneNumberPerName) {
    const UINT created = RegisterWindowMessageA("TaskbarCreated");
    EXPECT_GE(created, 0xC000U);
    EXPECT_EQ(RegisterWindowMessageA("TaskbarCreated"), created);
    EXPECT_NE(RegisterWindowMessageA("QuorlContract"), created);
}

TEST_F(Queue, AnInactiveWindowCanRefuseActivationByAPress) {
    Handlers[WM_MOUSEACTIVATE] = [](const MSG&) { return MA_NOACTIVATE; };
    OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    const HWND front = OpenOwn(WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(front);
    MoveMouse(450, 380); // beside `front`
    HandleFor(200);
    PressMouse(VK_RBUTTON, true);
    HandleFor(100);
    PressMouse(VK_RBUTTON, false);
    HandleFor(100);
    EXPECT_EQ(ReceivedOf({WM_MOUSEACTIVATE, WM_RBUTTONDOWN}), (Numbers{WM_MOUSEACTIVATE, WM_RBUTTONDOWN}));
    EXPECT_EQ(GetForegroundWindow(), front);
}

TEST_F(Queue, ANotificationIconIsAddedOnceAndModifiedOrDeletedOnlyThen) {
    NOTIFYICONDATAA icon{};
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
    icon.hWnd = OpenOwn();
    icon.uFlags = NIF_ICON;
    icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_MODIFY, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
}

} // namespace

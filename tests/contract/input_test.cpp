// Hotkeys, keys, cursor and mouse, capture, focus and foreground.
#include "contract/contract_test.h"

namespace {

using Input = Contract;

TEST_F(Input, HotkeyIsHeldOnceAndFreedWithItsWindow) {
    constexpr UINT modifiers = MOD_CONTROL | MOD_ALT;
    EXPECT_EQ(VkKeyScanA('z'), 'Z');
    const HWND window = OpenOwn();
    EXPECT_TRUE(RegisterHotKey(window, 1, modifiers, VK_F12));
    EXPECT_FALSE(RegisterHotKey(window, 2, modifiers, VK_F12));
    EXPECT_TRUE(UnregisterHotKey(window, 1));
    EXPECT_TRUE(RegisterHotKey(window, 3, modifiers, VK_F12));
    DestroyWindow(window);
    EXPECT_TRUE(RegisterHotKey(OpenOwn(), 1, modifiers, VK_F12));
}

// The last such message; zeros if there is none.
MSG LastOf(UINT message) {
    MSG last{};
    for (const MSG& received : Received)
        if (received.message == message)
            last = received;
    return last;
}

TEST_F(Input, MouseMessagesUseClientCoordinatesAndKeyStateFollowsTheMessage) {
    std::vector<int> down;
    Handlers[WM_RBUTTONDOWN] = Handlers[WM_RBUTTONUP] = [&down](const MSG&) {
        down.insert(down.end(), {GetKeyState(VK_LSHIFT) < 0, GetKeyState(VK_RBUTTON) < 0});
        return 0;
    };
    const HWND window = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    MoveMouse(350, 340);
    HandleUntil([] { return LastOf(WM_MOUSEMOVE).lParam == MAKELPARAM(50, 40); });
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).lParam, MAKELPARAM(50, 40));
    SetCapture(window);
    HoldKey(VK_LSHIFT, true);
    EXPECT_LT(GetAsyncKeyState(VK_LSHIFT), 0) << "the current state, before any message";
    PressMouse(VK_RBUTTON, true);
    MoveMouse(250, 280);
    PressMouse(VK_RBUTTON, false);
    HoldKey(VK_LSHIFT, false);
    HandleUntil([] { return LastOf(WM_RBUTTONUP).hwnd != nullptr; });
    EXPECT_EQ(down, (std::vector{1, 1, 1, 0}));
    EXPECT_EQ(LastOf(WM_RBUTTONDOWN).wParam, MK_RBUTTON | MK_SHIFT);
    EXPECT_EQ(static_cast<DWORD>(LastOf(WM_RBUTTONUP).lParam), MAKELPARAM(-50, -20))
        << "outside, with the capture";
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(LastOf(WM_CAPTURECHANGED).hwnd, window);
    Received.clear();
    MoveMouse(240, 270);
    HandleFor(200);
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).hwnd, nullptr);
    POINT at{};
    EXPECT_TRUE(SetCursorPos(-50, 5000) && GetCursorPos(&at));
    EXPECT_TRUE(at.x == 0 && at.y == GetSystemMetrics(SM_CYSCREEN) - 1) << "clamped to the screen";
}

TEST_F(Input, OtherProgramsWindowTakesTheForegroundButNotTheFocus) {
    const HWND first = OpenOwn(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND second = OpenOwn(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND other = OpenOther("foreground");
    SetActiveWindow(first);
    EXPECT_EQ(GetForegroundWindow(), first);
    EXPECT_NE(SetFocus(second), nullptr) << "activation gave `first` the focus";
    EXPECT_TRUE(!SetFocus(other) && !SetActiveWindow(other));
    EXPECT_EQ(GetForegroundWindow(), second) << "the focus activates";
    for (const HWND window : {other, first}) {
        EXPECT_TRUE(SetForegroundWindow(window));
        HandleUntil([window] { return GetForegroundWindow() == window; }); // its program has to handle it
        EXPECT_EQ(GetForegroundWindow(), window);
    }
}

TEST_F(Input, PressOnAnInactiveWindowCanLeaveItInactive) {
    Handlers[WM_MOUSEACTIVATE] = [](const MSG&) { return MA_NOACTIVATE; };
    OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    const HWND front = OpenOwn(WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(front);
    MoveMouse(450, 380); // beside `front`
    HandleUntil([] { return LastOf(WM_MOUSEMOVE).hwnd != nullptr; });
    for (const bool down : {true, false})
        PressMouse(VK_RBUTTON, down);
    HandleUntil([] { return LastOf(WM_RBUTTONUP).hwnd != nullptr; });
    EXPECT_EQ(ReceivedOf({WM_MOUSEACTIVATE, WM_RBUTTONDOWN}), (Numbers{WM_MOUSEACTIVATE, WM_RBUTTONDOWN}));
    EXPECT_EQ(GetForegroundWindow(), front);
}

} // namespace

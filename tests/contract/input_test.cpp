// The user's hands: hotkeys, keys, cursor and mouse, capture, focus and foreground.
#include "contract/contract_test.h"

#include <algorithm>

namespace {

using Input = Contract;

TEST_F(Input, ACombinationHasOneHolderAtATimeAndIsFreeWhenItsWindowEnds) {
    constexpr UINT chord = MOD_CONTROL | MOD_ALT;
    EXPECT_EQ(VkKeyScanA('z'), 'Z');
    const HWND window = OpenOwn();
    EXPECT_TRUE(RegisterHotKey(window, 1, chord, VK_F12));
    EXPECT_FALSE(RegisterHotKey(window, 2, chord, VK_F12));
    EXPECT_TRUE(UnregisterHotKey(window, 1));
    EXPECT_TRUE(RegisterHotKey(window, 3, chord, VK_F12));
    DestroyWindow(window);
    EXPECT_TRUE(RegisterHotKey(OpenOwn(), 1, chord, VK_F12));
}

// The last message of this kind; all 0 if none has come.
MSG LastOf(UINT message) {
    const auto last = std::find_if(Seen.rbegin(), Seen.rend(),
                                   [message](const MSG& arrived) { return arrived.message == message; });
    return last == Seen.rend() ? MSG{} : *last;
}

// Where it says that the mouse is, as MAKELPARAM puts it.
LPARAM SpotOf(UINT message) {
    return static_cast<DWORD>(LastOf(message).lParam);
}

TEST_F(Input, TheMouseCountsFromTheClientAreaAndTheKeyStateIsThatOfTheMessageInHand) {
    std::vector<int> down;
    Replies[WM_RBUTTONDOWN] = Replies[WM_RBUTTONUP] = [&down](const MSG&) {
        down.push_back(GetKeyState(VK_LSHIFT) < 0);
        down.push_back(GetKeyState(VK_RBUTTON) < 0);
        return 0;
    };
    const HWND window = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    MoveMouse(350, 340);
    Handle(200);
    EXPECT_EQ(SpotOf(WM_MOUSEMOVE), MAKELPARAM(50, 40));
    SetCapture(window);
    HoldKey(VK_LSHIFT, 1);
    EXPECT_LT(GetAsyncKeyState(VK_LSHIFT), 0) << "that of the moment is there before";
    PressMouse(VK_RBUTTON, 1);
    MoveMouse(250, 280);
    PressMouse(VK_RBUTTON, 0);
    HoldKey(VK_LSHIFT, 0);
    Handle(200);
    EXPECT_EQ(down, (std::vector{1, 1, 1, 0}));
    EXPECT_EQ(LastOf(WM_RBUTTONDOWN).wParam, MK_RBUTTON | MK_SHIFT);
    EXPECT_EQ(SpotOf(WM_RBUTTONUP), MAKELPARAM(-50, -20)) << "beyond it, too, while it is captured";
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(LastOf(WM_CAPTURECHANGED).hwnd, window) << "it is told that it lost it";
    Seen.clear();
    MoveMouse(240, 270);
    Handle(200);
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).hwnd, nullptr);
    POINT at{};
    EXPECT_TRUE(SetCursorPos(-50, 5000));
    EXPECT_TRUE(GetCursorPos(&at));
    EXPECT_TRUE(at.x == 0 && at.y == 767) << "it stays on the screen";
}

TEST_F(Input, AnotherProgramsWindowTakesTheForegroundButNeitherFocusNorActivation) {
    const HWND first = OpenOwn(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND second = OpenOwn(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND stranger = OpenStranger("foreground");
    SetActiveWindow(first);
    EXPECT_EQ(GetForegroundWindow(), first);
    EXPECT_NE(SetFocus(second), nullptr) << "activation had brought the focus";
    EXPECT_EQ(SetFocus(stranger), nullptr);
    EXPECT_EQ(SetActiveWindow(stranger), nullptr);
    EXPECT_EQ(GetForegroundWindow(), second) << "the focus activates";
    for (const HWND window : {stranger, first}) {
        EXPECT_TRUE(SetForegroundWindow(window));
        Handle(100); // its program has a say in it
        EXPECT_EQ(GetForegroundWindow(), window);
    }
}

} // namespace

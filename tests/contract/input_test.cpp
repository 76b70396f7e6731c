// Hotkeys, keys, cursor, capture, focus and foreground.
#include "contract/contract_test.h"

namespace {

using Input = Contract;

TEST_F(Input, ACombinationHasOneHolderAtATimeAndIsFreeWhenItsWindowEnds) {
    constexpr UINT chord = MOD_CONTROL | MOD_ALT;
    const HWND window = OpenOwn();
    EXPECT_TRUE(RegisterHotKey(window, 1, chord, VK_F12));
    EXPECT_FALSE(RegisterHotKey(window, 2, chord, VK_F12));
    EXPECT_EQ(GetLastError(), ERROR_HOTKEY_ALREADY_REGISTERED);
    EXPECT_TRUE(RegisterHotKey(window, 2, chord | MOD_SHIFT, VK_F12));
    EXPECT_TRUE(UnregisterHotKey(window, 1));
    EXPECT_FALSE(UnregisterHotKey(window, 1));
    EXPECT_TRUE(RegisterHotKey(window, 3, chord, VK_F12));
    DestroyWindow(window);
    EXPECT_TRUE(RegisterHotKey(OpenOwn(), 1, chord, VK_F12));
}

TEST_F(Input, EachCharacterOfTheBindingsHasItsKey) {
    for (char letter = 'a'; letter <= 'z'; ++letter)
        EXPECT_EQ(VkKeyScanA(letter), letter - 'a' + 'A');
    for (char same = '0'; same <= '9'; ++same)
        EXPECT_EQ(VkKeyScanA(same), same);
    EXPECT_EQ(VkKeyScanA(' '), VK_SPACE);
    EXPECT_EQ(VkKeyScanA('\t'), VK_TAB);
    EXPECT_EQ(VkKeyScanA('A'), 0x100 + 'A') << "Shift in the high byte";
    EXPECT_EQ(VkKeyScanA('!'), 0x100 + '1');
}

TEST_F(Input, TheCursorStaysOnTheScreen) {
    POINT at{};
    EXPECT_TRUE(SetCursorPos(-50, 5000));
    EXPECT_TRUE(GetCursorPos(&at));
    EXPECT_TRUE(at.x == 0 && at.y == 767) << at.x << ", " << at.y;
}

TEST_F(Input, TheCaptureIsHeldByOneWindowAndEndsWithIt) {
    const HWND first = OpenOwn();
    const HWND second = OpenOwn();
    EXPECT_EQ(SetCapture(first), nullptr);
    EXPECT_EQ(SetCapture(second), first);
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(SeenOf({WM_CAPTURECHANGED}).size(), 2U) << "each is told that it lost it";
    SetCapture(first);
    DestroyWindow(first);
    EXPECT_EQ(SetCapture(second), nullptr);
    ReleaseCapture();
}

TEST_F(Input, AnotherProgramsWindowTakesTheForegroundButNeitherFocusNorActivation) {
    const HWND first = OpenOwn(WS_OVERLAPPEDWINDOW);
    const HWND second = OpenOwn(WS_OVERLAPPEDWINDOW);
    ShowWindow(first, SW_SHOW);
    ShowWindow(second, SW_SHOW);
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

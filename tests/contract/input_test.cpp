// Hotkeys, keys, cursor, capture, focus and foreground.
#include "contract/contract_test.h"

namespace {

using Input = Contract;

constexpr UINT CHORD = MOD_CONTROL | MOD_ALT;

TEST_F(Input, ACombinationHasOneHolderAtATime) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_TRUE(RegisterHotKey(window, 1, CHORD, VK_F12));
    EXPECT_FALSE(RegisterHotKey(window, 2, CHORD, VK_F12));
    EXPECT_EQ(GetLastError(), ERROR_HOTKEY_ALREADY_REGISTERED);
    EXPECT_TRUE(RegisterHotKey(window, 2, CHORD | MOD_SHIFT, VK_F12))
        << "other modifiers, another combination";
    EXPECT_TRUE(UnregisterHotKey(window, 1));
    EXPECT_FALSE(UnregisterHotKey(window, 1));
    EXPECT_EQ(GetLastError(), ERROR_HOTKEY_NOT_REGISTERED);
    EXPECT_TRUE(RegisterHotKey(window, 3, CHORD, VK_F12));

    DestroyWindow(window);
    const HWND later = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_TRUE(RegisterHotKey(later, 1, CHORD, VK_F12)) << "hotkeys end with their window";
    EXPECT_TRUE(UnregisterHotKey(later, 1));
}

TEST_F(Input, AHotkeyArrivesWithItsIdWhoeverHasTheForeground) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    const HWND other = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    ShowWindow(other, SW_SHOW);
    EXPECT_TRUE(RegisterHotKey(window, 28, CHORD, VK_LEFT));
    PressCombination(CHORD, VK_LEFT);
    EXPECT_TRUE(SeenOf({WM_HOTKEY}).empty()) << "it is posted";
    Handle(200);
    ASSERT_EQ(SeenOf({WM_HOTKEY}).size(), 1U);
    for (const MSG& arrived : Seen) {
        if (arrived.message != WM_HOTKEY)
            continue;
        EXPECT_EQ(arrived.hwnd, window);
        EXPECT_EQ(arrived.wParam, 28U);
        EXPECT_EQ(arrived.lParam, MAKELPARAM(CHORD, VK_LEFT));
    }
    Seen.clear();
    EXPECT_TRUE(UnregisterHotKey(window, 28));
    PressCombination(CHORD, VK_LEFT);
    Handle(100);
    EXPECT_TRUE(SeenOf({WM_HOTKEY}).empty());
}

TEST_F(Input, AHeldKeyIsSeenByItsSignBitAtOnce) {
    for (const int key : {VK_LSHIFT, VK_LCONTROL, VK_LMENU}) {
        EXPECT_GE(GetAsyncKeyState(key), 0);
        HoldKey(key, 1);
        EXPECT_LT(GetAsyncKeyState(key), 0);
        HoldKey(key, 0);
        EXPECT_GE(GetAsyncKeyState(key), 0);
    }
    Handle(100);
    EXPECT_GE(GetKeyState(VK_LSHIFT), 0);
}

TEST_F(Input, EachCharacterOfTheBindingsHasItsKey) {
    for (char letter = 'a'; letter <= 'z'; ++letter)
        EXPECT_EQ(VkKeyScanA(letter), letter - 'a' + 'A');
    for (char digit = '0'; digit <= '9'; ++digit)
        EXPECT_EQ(VkKeyScanA(digit), digit);
    EXPECT_EQ(VkKeyScanA(' '), VK_SPACE);
    EXPECT_EQ(VkKeyScanA('\t'), VK_TAB);
    EXPECT_EQ(VkKeyScanA('A'), 0x100 + 'A') << "Shift in the high byte";
    EXPECT_EQ(VkKeyScanA('!'), 0x100 + '1');
}

TEST_F(Input, TheCursorGoesWhereItIsPutButNotOffTheScreen) {
    POINT at{};
    EXPECT_TRUE(SetCursorPos(300, 200));
    EXPECT_TRUE(GetCursorPos(&at));
    EXPECT_EQ(at.x, 300);
    EXPECT_EQ(at.y, 200);
    EXPECT_TRUE(SetCursorPos(-50, 5000));
    EXPECT_TRUE(GetCursorPos(&at));
    EXPECT_EQ(at.x, 0);
    EXPECT_EQ(at.y, 767);
}

TEST_F(Input, TheCaptureIsHeldByOneWindowAndEndsWithIt) {
    const HWND first = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    const HWND second = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_EQ(SetCapture(first), nullptr);
    EXPECT_EQ(SetCapture(second), first);
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(SeenOf({WM_CAPTURECHANGED}).size(), 2U) << "each is told that it lost it";
    EXPECT_EQ(SetCapture(first), nullptr);
    DestroyWindow(first);
    EXPECT_EQ(SetCapture(second), nullptr);
    EXPECT_TRUE(ReleaseCapture());
}

TEST_F(Input, OnlyTheForegroundCanBeGivenToAnotherProgram) {
    const HWND own = OpenOwn({10, 10, 300, 200});
    ShowWindow(own, SW_SHOW);
    const HWND stranger = OpenStranger("foreground", {400, 300, 700, 500});
    EXPECT_EQ(GetForegroundWindow(), own) << "it opened without activation";

    EXPECT_EQ(SetFocus(stranger), nullptr);
    EXPECT_EQ(SetActiveWindow(stranger), nullptr);
    EXPECT_EQ(GetForegroundWindow(), own);

    EXPECT_TRUE(SetForegroundWindow(stranger));
    Handle(100); // its program has a say in it
    EXPECT_EQ(GetForegroundWindow(), stranger);
    EXPECT_TRUE(SetForegroundWindow(own));
    Handle(100);
    EXPECT_EQ(GetForegroundWindow(), own);
}

TEST_F(Input, FocusAndActivationPassBetweenWindowsOfOneProgram) {
    const HWND first = OpenOwn({10, 10, 300, 200});
    const HWND second = OpenOwn({10, 10, 300, 200});
    ShowWindow(first, SW_SHOW);
    ShowWindow(second, SW_SHOW);
    EXPECT_EQ(SetActiveWindow(first), second) << "the one that was active";
    EXPECT_EQ(GetForegroundWindow(), first);
    EXPECT_NE(SetFocus(second), nullptr) << "activation had brought the focus";
    EXPECT_EQ(GetForegroundWindow(), second) << "and the focus activates";
}

} // namespace

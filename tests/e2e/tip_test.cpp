// The strip that says where the view stands.
#include "user.h"

TEST(Tip, TheStripSitsOnTheMapAndGoesByItself) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    EXPECT_FALSE(TipStrip());
    DoRow(30);
    EXPECT_SOON(TipStrip() != nullptr, true);
    const ULONGLONG shown = GetTickCount64();
    const HWND strip = TipStrip();
    const Place place = PlaceOf(strip);
    EXPECT_EQ(place.left, 100);
    EXPECT_EQ(place.right, 300);
    EXPECT_EQ(place.bottom, 100) << "flush on the map's upper edge";

    constexpr LONG_PTR STYLE = static_cast<LONG_PTR>(WS_POPUP) | WS_BORDER;
    EXPECT_EQ(GetWindowLongPtrA(strip, GWL_STYLE) & STYLE & 0xffffffff, STYLE & 0xffffffff);
    EXPECT_EQ(GetWindowLongPtrA(strip, GWL_EXSTYLE) & 136, 136);

    EXPECT_SOON(TipStrip(), HWND{});
    EXPECT_GT(GetTickCount64() - shown, 700U);
    EXPECT_LT(GetTickCount64() - shown, 4000U) << "two seconds, with room for a slow machine";
}

TEST(Tip, UnderTheScreensEdgeTheStripHangsBelowTheMap) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    SetWindowPos(quorl, nullptr, 400, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    DoRow(30);
    EXPECT_SOON(TipStrip() != nullptr, true);
    EXPECT_EQ(PlaceOf(TipStrip()).left, 400);
    EXPECT_EQ(PlaceOf(TipStrip()).top, 105);
}

TEST(Tip, TheKeyboardStaysWithTheProgramThatTheUserTypesInto) {
    const HWND editor = OpenWindow("editor", {200, 150, 600, 450});
    ASSERT_TRUE(StartQuorl());
    Activate(editor);
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(TipStrip() != nullptr, true);
    EXPECT_EQ(GetForegroundWindow(), editor);
    EXPECT_SOON(TipStrip(), HWND{});
    EXPECT_EQ(GetForegroundWindow(), editor);
}

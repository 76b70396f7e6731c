// Opacity, Help and About.
#include "dialogs.h"
#include "settings_file.h"

namespace {

int AlphaOf(HWND window) {
    BYTE alpha = 0;
    DWORD flags = 0;
    return GetLayeredWindowAttributes(window, nullptr, &alpha, &flags) && flags == LWA_ALPHA ? alpha : -1;
}

// The place of a control in its dialog's client area.
Place Inside(HWND dialog, int id) {
    const Place place = PlaceOf(Control(dialog, id));
    POINT origin = {0, 0};
    ClientToScreen(dialog, &origin);
    return Moved(place, -origin.x, -origin.y);
}

} // namespace

TEST(Transparency, TheMapFollowsTheSliderAndKeepsWhatItShowed) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    EXPECT_EQ(AlphaOf(quorl), 255);
    const HWND dialog = OpenByRow(116, "Toolwin Transparency...");
    ASSERT_TRUE(dialog);
    const HWND slider = Control(dialog, 1079);
    Press(slider);
    const int paged = Soon([quorl] { return AlphaOf(quorl) < 255; }, true) ? AlphaOf(quorl) : 0;
    EXPECT_GT(paged, 10) << "a click beside the thumb moves it a little";
    PressKeys({VK_HOME});
    EXPECT_SOON(AlphaOf(quorl), 10);
    CloseBy(dialog, IDOK);
    EXPECT_EQ(AlphaOf(quorl), 10);
    DoRow(47);
    EXPECT_SOON(Stored("alpha"), std::string("10"));
}

TEST(Help, ItsTextAndItsButtonFollowTheWindowsSize) {
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(56, "Quorl Help");
    ASSERT_TRUE(dialog);
    EXPECT_NE(ControlText(dialog, 1068).find("archive"), std::string::npos);
    for (const SIZE& size : {
             SIZE{900, 600},
             SIZE{100, 100}
    }) {
        SetWindowPos(dialog, nullptr, 50, 50, size.cx, size.cy, SWP_NOZORDER);
        RECT client = {};
        GetClientRect(dialog, &client);
        const Place button = Inside(dialog, IDOK);
        EXPECT_EQ(button.right, client.right - 10);
        EXPECT_EQ(button.bottom, client.bottom - 10);
        EXPECT_EQ(Inside(dialog, 1068), (Place{10, 10, client.right - 10, button.top - 10}));
    }
    EXPECT_EQ(PlaceOf(dialog), (Place{50, 50, 450, 250})) << "no smaller than this";
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(dialog));
}

TEST(About, ItNamesTheProgramAndShowsItsPicture) {
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(57, "About...");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(ControlText(dialog, 1072).substr(0, 7), "Quorl 1");
    EXPECT_NE(SendMessageA(Control(dialog, 119), STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
    PressKeys({VK_TAB}); // to the read-only text, and round to the button
    PressKeys({VK_TAB});
    PressKeys({VK_SPACE});
    EXPECT_TRUE(WaitForEnd(dialog));
}

// Opacity, Help and About.
#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"

namespace {

constexpr int HELP = 56, ABOUT = 57, TRANSPARENCY = 116; // rows
constexpr int SLIDER = 1079, HELP_TEXT = 1068, CONTACT = 1011, PROGRAM = 1072;

using SmallDialogs = DialogTest;

TEST_F(SmallDialogs, TheMapFollowsTheSliderAtOnce) {
    Options.alpha = 0x7fffff04; // from a file; only the low 8 bits count
    Open(TRANSPARENCY);
    EXPECT_EQ(Kept(SLIDER).position, 10) << "the least that one can see";
    for (const int alpha : {120, 255}) {
        DragSlider(At(SLIDER), alpha);
        EXPECT_EQ(RowOf(MainWnd).alpha, alpha);
    }
    EXPECT_EQ(Kept(SLIDER).most, 255);
    EXPECT_EQ(Options.alpha, 255U);
    Press(VK_RETURN);
    EXPECT_TRUE(IsOpen()) << "the dialog is offered no keys";
    Click(IDOK);
    EXPECT_FALSE(IsOpen());
}

TEST_F(SmallDialogs, WhereTheSystemCannotDoItTransparencySaysSoOnce) {
    pSetLayeredWindowAttributes = nullptr;
    WillAnswer({IDOK});
    Command(TRANSPARENCY);
    Command(TRANSPARENCY);
    EXPECT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(LastBox(), "Transparency cannot be done on this OS./Blame Microsoft!");
    EXPECT_FALSE(IsWindowVisible(DialogSlots[9].handle));
}

TEST_F(SmallDialogs, HelpAndAboutShowTheirTextsAndEndByTheirButton) {
    Open(HELP);
    EXPECT_NE(TextOf(HELP_TEXT), "");
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    Open(ABOUT);
    EXPECT_NE(TextOf(PROGRAM), "");
    EXPECT_NE(TextOf(CONTACT), "");
    Press(VK_SPACE); // the focus is on the button
    EXPECT_FALSE(IsOpen());
}

TEST_F(SmallDialogs, HelpKeepsItsMarginsWhenItsSizeChanges) {
    Open(HELP);
    MINMAXINFO limits{};
    SendMessageA(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize, (POINT{400, 200}));
    const RECT before = PlaceOf(At(IDOK));
    SendMessageA(dialog, WM_SIZE, 0, MAKELPARAM(700, 500));
    const RECT after = PlaceOf(At(IDOK));
    EXPECT_EQ(after, Moved(before, after.left - before.left, after.top - before.top)) << "its size stays";
    const POINT first = OnScreen(dialog, 10, 10), last = OnScreen(dialog, 690, 490);
    EXPECT_EQ((POINT{after.right, after.bottom}), last);
    EXPECT_EQ(PlaceOf(At(HELP_TEXT)), Rect(first.x, first.y, last.x, after.top - 10));
}

} // namespace

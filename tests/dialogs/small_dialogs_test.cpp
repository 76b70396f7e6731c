// Opacity, Help and About.
#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"

#include <algorithm>

namespace {

constexpr int HELP = 56, ABOUT = 57, TRANSPARENCY = 116; // rows
constexpr int SLIDER = 1079;
constexpr int HELP_TEXT = 1068;

class SmallDialogs : public DialogTest {
  protected:
    auto LinesOf(int id) const { return 1 + std::count(TextOf(id).begin(), TextOf(id).end(), '\n'); }
};

TEST_F(SmallDialogs, TheMapFollowsTheSliderAtOnce) {
    Options.alpha = 0x7fffff04; // from a file; only the low 8 bits count
    Open(TRANSPARENCY);
    EXPECT_EQ(Kept(SLIDER).position, 10) << "the least that one can see";
    EXPECT_EQ(Options.alpha, 0x7fffff04U);
    for (const int alpha : {120, 10, 255}) {
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
    ASSERT_EQ(Desk.boxes.size(), 1u);
    EXPECT_EQ(Desk.boxes[0].text, "Transparency cannot be done on this OS.");
    EXPECT_EQ(RowOf(DialogSlots[9].handle).style & WS_VISIBLE, 0U);
}

TEST_F(SmallDialogs, HelpAndAboutShowTheirTextsAndEndByTheirButton) {
    Open(HELP);
    EXPECT_EQ(LinesOf(HELP_TEXT), 3);
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    Open(ABOUT);
    EXPECT_EQ(LinesOf(1072), 4);
    EXPECT_EQ(LinesOf(1011), 2);
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
    const POINT corner = OnScreen(dialog, 10, 10);
    const RECT button = PlaceOf(At(IDOK));
    EXPECT_EQ(button, Rect(button.right - (before.right - before.left),
                           button.bottom - (before.bottom - before.top), corner.x + 680, corner.y + 480));
    EXPECT_EQ(PlaceOf(At(HELP_TEXT)), Rect(corner.x, corner.y, corner.x + 680, button.top - 10));
}

} // namespace

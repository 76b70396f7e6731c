#include "dialogs/help_dialog.h"

#include "core/state.h"
#include "dialogs/registry.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

class SmallDialogs : public QuorlTest {};

HWND OpenByRow(int row) {
    Command(row);
    return Desk.foreground;
}

auto LinesOf(HWND dialog, int id) {
    const std::string& text = RowOf(ControlOf(dialog, id)).title;
    return 1 + std::count(text.begin(), text.end(), '\n');
}

TEST_F(SmallDialogs, TheMapFollowsTheSliderAtOnce) {
    ASSERT_EQ(StartQuorl(), 1);
    Options.alpha = 0x7fffff04; // from a file; only the low 8 bits count
    const HWND dialog = OpenByRow(116);
    const HWND slider = ControlOf(dialog, 1079);
    EXPECT_EQ(RowOf(slider).control.position, 10) << "the least that one can see";
    EXPECT_EQ(Options.alpha, 0x7fffff04U);
    DragSlider(slider, 120);
    EXPECT_EQ(RowOf(MainWnd).alpha, 120);
    EXPECT_EQ(Options.alpha, 120U);
    DragSlider(slider, 0);
    EXPECT_EQ(RowOf(MainWnd).alpha, 10);
    DragSlider(slider, 999);
    EXPECT_EQ(RowOf(MainWnd).alpha, 255);
    PressKey(VK_RETURN);
    Settle();
    EXPECT_NE(RowOf(dialog).handle, nullptr) << "the dialog is offered no keys";
    ClickControl(ControlOf(dialog, IDOK));
    EXPECT_EQ(RowOf(dialog).handle, nullptr);
    EXPECT_EQ(Options.alpha, 255U);
}

TEST_F(SmallDialogs, WhereTheSystemCannotDoItTransparencySaysSoOnce) {
    Desk.modules["user32.dll"].exports.erase("SetLayeredWindowAttributes");
    ASSERT_EQ(StartQuorl(), 1);
    WillAnswer({IDOK});
    Command(116);
    Command(116);
    ASSERT_EQ(Desk.boxes.size(), 1u);
    EXPECT_EQ(Desk.boxes[0].text, "Transparency cannot be done on this OS.");
    EXPECT_EQ(Desk.boxes[0].caption, "Blame Microsoft!");
    const HWND dialog = DialogSlots[9].handle;
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(RowOf(dialog).style & WS_VISIBLE, 0U);
}

TEST_F(SmallDialogs, HelpAndAboutShowTheirTextsAndEndByTheirButton) {
    ASSERT_EQ(StartQuorl(), 1);
    struct {
        int row, text, lines;
    } const cases[] = {
        {56, 1068, 3},
        {57, 1072, 4},
        {57, 1011, 2}
    };
    for (const auto& shown : cases) {
        const HWND dialog = OpenByRow(shown.row);
        EXPECT_EQ(LinesOf(dialog, shown.text), shown.lines) << shown.text;
        EXPECT_EQ(Desk.focus, ControlOf(dialog, IDOK));
        PressKey(VK_RETURN);
        Settle();
        EXPECT_EQ(RowOf(dialog).handle, nullptr) << shown.row;
    }
}

TEST_F(SmallDialogs, HelpKeepsItsMargins) {
    struct {
        int width, height;
        RECT text, button;
    } const cases[] = {
        {400, 200, {10, 10, 390, 160}, {340, 170, 390, 190}},
        {900, 600, {10, 10, 890, 560}, {840, 570, 890, 590}},
        {0,   0,   {10, 10, -10, -40}, {-60, -30, -10, -10}},
    };
    for (const auto& client : cases) {
        const HelpLayout layout = LayOutHelp(client.width, client.height, 50, 20);
        EXPECT_EQ(layout.text, client.text);
        EXPECT_EQ(layout.button, client.button);
    }
}

TEST_F(SmallDialogs, HelpIsLaidOutAnewWhenItsSizeChanges) {
    ASSERT_EQ(StartQuorl(), 1);
    const HWND dialog = OpenByRow(56);
    MINMAXINFO limits{};
    SendMessageA(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize, (POINT{400, 200}));
    SendMessageA(dialog, WM_SIZE, 0, MAKELPARAM(700, 500));
    const POINT corner = OnScreen(dialog, 10, 10);
    EXPECT_EQ(PlaceOf(ControlOf(dialog, 1068)).left, corner.x);
    EXPECT_EQ(PlaceOf(ControlOf(dialog, 1068)).right, corner.x + 680);
    EXPECT_EQ(PlaceOf(ControlOf(dialog, IDOK)).bottom, corner.y + 480);
}

} // namespace

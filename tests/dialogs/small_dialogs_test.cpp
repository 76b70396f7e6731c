// Find Window, Find Region, Resize Windows, Transparency, Help and About.
#include "dialogs/dialog_test.h"

namespace {

// Rows, and controls of their dialogs.
constexpr int FIND_WINDOW = 52, RESIZE = 53, HELP = 56, ABOUT = 57, FIND_REGION = 111, TRANSPARENCY = 116;
constexpr int APPLY = 2, HEIGHT = 1000, WIDTH = 1001, LIST = 1041, DESKTOP = 1043, RESIZE_OK = 1044;
constexpr int SLIDER = 1079;

using SmallDialogs = DialogTest;

TEST_F(SmallDialogs, FindWindowListsWhatQuorlMayTouchAndBringsTheViewThereUnlessItIsGoneOrHangs) {
    const HWND untitled = OpenWindow("", {2000, 300, 2400, 500});
    const HWND gone = OpenWindow("gone", {3000, 300, 3400, 500});
    const HWND hung = OpenWindow("hung", {3000, 300, 3400, 500});
    OpenWindow("flat", {0, 0, 100, 0});
    Open(FIND_WINDOW);
    EXPECT_EQ(Kept(LIST).rows.size(), 3U) << "not the flat one";
    RowOf(hung).answer = DeskAnswer::Hung;
    KillWindow(gone);
    for (const int row : {1, 2}) {
        Choose(LIST, row);
        EXPECT_EQ(VDesk.left, 0) << "row " << row;
        EXPECT_EQ(Desk.foreground, dialog);
    }
    Desk.fault = {"GetForegroundWindow", 1, 1, 0, 0}; // it has not taken the foreground yet
    Choose(LIST, 0);
    EXPECT_EQ(VDesk.left, 2200 - 512);
    EXPECT_EQ(Desk.foreground, untitled);
}

TEST_F(SmallDialogs, FindRegionBringsTheViewToTheCornerOfTheChosenOne) {
    Mark("web", 2048, 100);
    Mark("far", 32000, 32000);
    Open(FIND_REGION);
    Choose(LIST, 1);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 100}));
    Choose(LIST, 0);
    EXPECT_EQ(ViewCorner(), (POINT{3072, 768}));
}

TEST_F(SmallDialogs, ResizeAppliesASizeAtTheCornerOfTheWindowThatWasChosenLast) {
    const auto apply = [this](const char* width, const char* height) {
        Type(WIDTH, width);
        Type(HEIGHT, height);
        Click(APPLY);
    };
    const HWND mail = OpenWindow("mail", {500, 100, 800, 300});
    Open(RESIZE);
    EXPECT_EQ(TextOf(DESKTOP), "4096x1536");
    apply("400", "400"); // none is chosen yet
    Choose(LIST, 0);
    EXPECT_EQ(TextOf(WIDTH) + "x" + TextOf(HEIGHT), "300x200") << "choosing overwrites what was typed";
    apply("1500", "250");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 2000, 350));
    Click(RESIZE_OK);
    Open(RESIZE);
    apply("600", "100");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 1100, 200)) << "also before this dialog was opened";
    RowOf(mail).answer = DeskAnswer::Hung;
    Choose(LIST, 0);
    apply("300", "250");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 1100, 200)) << "one that hangs keeps its size";
}

TEST_F(SmallDialogs, KeysEndAllButTransparency) {
    Open(HELP);
    SendMessageA(dialog, WM_SIZE, 0, MAKELPARAM(500, 400));
    EXPECT_EQ(PlaceOf(At(IDOK)).top - PlaceOf(At(1068)).bottom, 10) << "the text gives way to the button";
    for (const int row : {FIND_WINDOW, FIND_REGION, HELP, ABOUT, TRANSPARENCY}) {
        Open(row);
        EXPECT_NE(Desk.focus, dialog) << row;
        Press(VK_RETURN);
        EXPECT_EQ(IsOpen(), row == TRANSPARENCY) << row;
    }
}

TEST_F(SmallDialogs, TheMapFollowsTheSliderAtOnce) {
    Options.alpha = 0x7fffff04; // from a file; only the low 8 bits count
    Open(TRANSPARENCY);
    EXPECT_EQ(Kept(SLIDER).position, 10) << "the least that one can see";
    EXPECT_EQ(Kept(SLIDER).most, 255);
    DragSlider(At(SLIDER), 120);
    EXPECT_EQ(RowOf(MainWnd).alpha, 120);
    EXPECT_EQ(Options.alpha, 120U);
}

} // namespace

// Find Window, Find Region, Resize Windows, Transparency, Help and About.
#include "dialogs/dialog_test.h"

using SmallDialogs = DialogTest;

TEST_F(SmallDialogs, FindWindowGoesToALivingManagedWindow) {
    const HWND untitled = OpenWindow("", {2000, 300, 2400, 500});
    const HWND hung = OpenWindow("\u0416ung", {3000, 300, 3400, 500});
    OpenWindow("empty", {0, 0, 100, 0});
    OpenWindow(std::string(300, 'a').c_str(), {100, 100, 500, 400});
    Open(ACTION_FIND_WINDOW);
    EXPECT_EQ(Control(IDC_FIND_LIST).items.size(), 3U);
    EXPECT_EQ(Control(IDC_FIND_LIST).items.at(1).text.size(), 255U);
    EXPECT_EQ(Control(IDC_FIND_LIST).items.at(2).text, "\u0416ung");
    WindowOf(hung).response = DeskResponse::Hung;
    Choose(IDC_FIND_LIST, 2);
    EXPECT_EQ(Desk.foreground, dialog);
    EXPECT_EQ(VDesk.left, 0);
    Desk.fault = {"GetForegroundWindow", 1, true, 0, 0}; // it takes the foreground later
    Choose(IDC_FIND_LIST, 0);
    EXPECT_EQ(Desk.foreground, untitled);
    EXPECT_EQ(VDesk.left, 2200 - 512);
}

TEST_F(SmallDialogs, FindRegionGoesToTheCornerOfTheRegion) {
    AddRegion("far", 32000, 32000);
    AddRegion("web", 2048, 100);
    Open(ACTION_FIND_REGION);
    Choose(IDC_FIND_LIST, 1); // they are sorted
    EXPECT_EQ(ViewCorner(), (POINT{2048, 100}));
}

TEST_F(SmallDialogs, ResizeKeepsTheCornerAndTheChosenWindow) {
    const auto apply = [this](const char* width, const char* height) {
        Open(ACTION_RESIZE_WINDOW);
        Type(IDC_RESIZE_WIDTH, width);
        Type(IDC_RESIZE_HEIGHT, height);
        Click(IDC_RESIZE_APPLY, IDC_RESIZE_OK);
    };
    const HWND mail = OpenWindow("mail", {500, 100, 800, 300});
    apply("400", "400");
    EXPECT_EQ(RectOf(mail), Rect(500, 100, 800, 300)) << "none is chosen";
    Open(ACTION_RESIZE_WINDOW);
    Choose(IDC_RESIZE_LIST, 0);
    EXPECT_EQ(Text(IDC_RESIZE_WIDTH) + " " + Text(IDC_RESIZE_HEIGHT) + " " + Text(IDC_RESIZE_DESKTOP),
              "300 200 4096x1536");
    apply("1500", "250");
    EXPECT_EQ(RectOf(mail), Rect(500, 100, 2000, 350));
    apply("600", "100");
    EXPECT_EQ(RectOf(mail), Rect(500, 100, 1100, 200)) << "chosen before the dialog closed";
    WindowOf(mail).response = DeskResponse::Hung;
    apply("300", "250");
    EXPECT_EQ(RectOf(mail), Rect(500, 100, 1100, 200));
}

TEST_F(SmallDialogs, AboutNamesTheProgramAndItsLicense) {
    Open(ACTION_ABOUT);
    EXPECT_EQ(Text(IDC_ABOUT_PROGRAM).find("Quorl "), 0U);
    EXPECT_NE(Text(IDC_ABOUT_PROGRAM).find("MIT License"), std::string::npos);
}

TEST_F(SmallDialogs, HelpTextShrinksWithTheDialog) {
    Open(ACTION_HELP);
    const LONG height = Height(RectOf(Item(IDOK)));
    SendMessageA(dialog, WM_SIZE, 0, MAKELPARAM(500, 400));
    const RECT text = RectOf(Item(IDC_HELP_TEXT));
    EXPECT_EQ(RectOf(Item(IDOK)).top - text.bottom, 10);
    EXPECT_EQ(Width(text), 480);
    EXPECT_EQ(Height(text), 400 - height - 30);
    EXPECT_EQ(RectOf(Item(IDOK)).right, text.right);
    EXPECT_EQ(Height(RectOf(Item(IDOK))), height);
}

TEST_F(SmallDialogs, TheMapFollowsTheTransparencySlider) {
    Options.alpha = 0x7fffff64; // only the low 8 bits count
    Open(ACTION_TRANSPARENCY);
    EXPECT_EQ(Control(IDC_TRANSPARENCY_SLIDER).position, 0x64);
    DragSlider(Item(IDC_TRANSPARENCY_SLIDER), 120);
    EXPECT_EQ(WindowOf(MainWnd).alpha, 120);
    EXPECT_EQ(Options.alpha, 120);
}

#include "dialogs/dialog_test.h"
#include "scroll/scroll_view.h"

namespace {

constexpr int FIND_WINDOW = 52, RESIZE_WINDOWS = 53, FIND_REGION = 111; // rows
// Their controls.
constexpr int APPLY = 2, HEIGHT = 1000, WIDTH = 1001, LIST = 1041, DESKTOP = 1043, RESIZE_OK = 1044;

class FindDialogs : public DialogTest {
  protected:
    Texts Listed() const {
        Texts texts;
        for (const DeskRow& row : Kept(LIST).rows)
            texts.push_back(row.text);
        return texts;
    }
    void Apply(const char* width, const char* height) const {
        Type(WIDTH, width);
        Type(HEIGHT, height);
        Click(APPLY);
    }
};

TEST_F(FindDialogs, TheWindowsThatQuorlMayTouchAreListedByTitle) {
    OpenWindow("mail", {0, 0, 100, 100});
    OpenWindow("", {0, 0, 100, 100});
    OpenWindow("flat", {0, 0, 100, 0});
    OpenWindow(std::string(300, 'x').c_str(), {0, 0, 100, 100});
    Open(FIND_WINDOW);
    EXPECT_EQ(Listed(), (Texts{"", "mail", std::string(255, 'x')}));
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
}

TEST_F(FindDialogs, TheViewComesToTheChosenWindowUnlessItIsGoneOrHangs) {
    const HWND untitled = OpenWindow("", {2000, 300, 2400, 500});
    const HWND hung = OpenWindow("hung", {3000, 300, 3400, 500});
    const HWND gone = OpenWindow("gone", {3000, 300, 3400, 500});
    Open(FIND_WINDOW);
    RowOf(hung).answer = DeskAnswer::Hung;
    KillWindow(gone);
    for (const int row : {1, 2}) {
        Choose(LIST, row);
        EXPECT_EQ(VDesk.left, 0) << "row " << row;
        EXPECT_EQ(Desk.foreground, dialog);
    }
    for (const int bLate : {1, 0}) {
        ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
        Desk.fault = {"GetForegroundWindow", bLate, 1, 0, 0};
        Choose(LIST, 0);
        EXPECT_EQ(VDesk.left, 2200 - 512) << (bLate ? "though it has not taken the foreground yet" : "");
    }
    EXPECT_EQ(Desk.foreground, untitled);
}

TEST_F(FindDialogs, TheViewComesToTheCornerOfTheChosenRegion) {
    Mark("web", 2048, 100);
    Mark("far", 32000, 32000);
    Open(FIND_REGION);
    ASSERT_EQ(Listed(), (Texts{"far", "web"}));
    Choose(LIST, 1);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 100}));
    Choose(LIST, 0);
    EXPECT_EQ(ViewCorner(), (POINT{3072, 768}));
    Command(51);
    Choose(LIST, 1);
    EXPECT_EQ(VDesk.left, 0) << "an unmarked region leads to the desktop's corner, as its hotkey does";
    EXPECT_EQ(RowOf(dialog).title, "Find Region...");
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
}

TEST_F(FindDialogs, ASizeIsAppliedAtTheCornerOfTheWindowThatWasChosenLast) {
    const HWND mail = OpenWindow("mail", {500, 100, 800, 300});
    const HWND web = OpenWindow("web", {0, 0, 100, 100});
    Quorl.left = -1000;
    Open(RESIZE_WINDOWS);
    EXPECT_EQ(TextOf(DESKTOP), "5096x1536");
    Apply("400", "400"); // none is chosen yet
    Choose(LIST, 0);
    EXPECT_EQ(TextOf(WIDTH), "300") << "choosing overwrites what was typed";
    EXPECT_EQ(TextOf(HEIGHT), "200");
    Apply("1500", "250");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 2000, 350));
    Click(RESIZE_OK);

    Open(RESIZE_WINDOWS);
    Apply("600", "100");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 1100, 200)) << "also before this dialog was opened";
    KillWindow(web);
    Choose(LIST, 1);
    EXPECT_EQ(TextOf(WIDTH), "600") << "a window that is gone has no numbers";
    RowOf(mail).answer = DeskAnswer::Hung;
    Choose(LIST, 0);
    Apply("300", "250");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 1100, 200)) << "one that hangs keeps its size";
}

} // namespace

#include "dialogs/find_dialogs.h"

#include "core/state.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

namespace {

constexpr int LIST = 1041;
constexpr int WIDTH = 1001;
constexpr int HEIGHT = 1000;
constexpr int APPLY = 2;
constexpr int RESIZE_OK = 1044;

class FindDialogs : public QuorlTest {
  protected:
    void SetUp() override {
        QuorlTest::SetUp();
        ASSERT_EQ(StartQuorl(), 1);
    }
};

HWND OpenByRow(int row) {
    Command(row);
    return Desk.foreground;
}

std::vector<std::string> ListTexts(HWND dialog) {
    std::vector<std::string> texts;
    for (const DeskRow& row : RowOf(ControlOf(dialog, LIST)).control.rows)
        texts.push_back(row.text);
    return texts;
}

using Texts = std::vector<std::string>;

void Type(HWND dialog, const char* width, const char* height) {
    TypeInto(ControlOf(dialog, WIDTH), width);
    TypeInto(ControlOf(dialog, HEIGHT), height);
}

TEST_F(FindDialogs, TheWindowsThatQuorlMayTouchAreListedByTitle) {
    OpenWindow("web", {0, 0, 100, 100});
    OpenWindow("mail", {0, 0, 100, 100});
    OpenWindow("mail", {0, 0, 100, 100});
    OpenWindow("", {0, 0, 100, 100});
    OpenWindow("flat", {0, 0, 100, 0});
    OpenWindow(std::string(300, 'x').c_str(), {0, 0, 100, 100});
    const Texts wanted{"", "mail", "mail", "web", std::string(255, 'x')};
    for (const int row : {52, 53}) {
        const HWND dialog = OpenByRow(row);
        EXPECT_EQ(ListTexts(dialog), wanted) << "row " << row;
        ClickControl(ControlOf(dialog, row == 52 ? IDOK : RESIZE_OK));
        EXPECT_EQ(RowOf(dialog).handle, nullptr);
    }
}

TEST_F(FindDialogs, TheViewComesToTheChosenWindowUnlessItIsGoneOrHangs) {
    const HWND untitled = OpenWindow("", {2000, 300, 2400, 500});
    const HWND hung = OpenWindow("hung", {3000, 300, 3400, 500});
    const HWND gone = OpenWindow("gone", {3000, 300, 3400, 500});
    const HWND dialog = OpenByRow(52);
    const HWND list = ControlOf(dialog, LIST);
    ASSERT_EQ(ListTexts(dialog), (Texts{"", "gone", "hung"}));
    SendMessageA(dialog, WM_COMMAND, MAKELPARAM(LIST, LBN_SELCHANGE), 0);
    EXPECT_EQ(VDesk.left, 0) << "no row is chosen";

    RowOf(hung).answer = DeskAnswer::Hung;
    KillWindow(gone);
    for (const int row : {1, 2}) {
        ChooseRow(list, row);
        EXPECT_EQ(VDesk.left, 0) << "row " << row;
        EXPECT_EQ(Desk.foreground, dialog);
    }
    for (const int bLate : {1, 0}) {
        ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
        Desk.fault = {"GetForegroundWindow", bLate, 1, 0, 0};
        ChooseRow(list, 0);
        EXPECT_EQ(VDesk.left, 2200 - 512) << (bLate ? "though it has not taken the foreground yet" : "");
    }
    EXPECT_EQ(Desk.foreground, untitled);
    EXPECT_NE(RowOf(dialog).handle, nullptr);
}

TEST_F(FindDialogs, TheViewComesToTheCornerOfTheChosenRegion) {
    RegionTable[0] = {0, "web", 2048, 100, 0, 0, 0};
    RegionTable[1] = {1, "far", 32000, 32000, 0, 0, 0};
    num_regions = 2;
    const HWND dialog = OpenByRow(111);
    EXPECT_EQ(RowOf(dialog).title, "Find Region...");
    ASSERT_EQ(ListTexts(dialog), (Texts{"far", "web"}));
    const HWND list = ControlOf(dialog, LIST);
    ChooseRow(list, 1);
    EXPECT_EQ(VDesk.left, 2048);
    EXPECT_EQ(VDesk.top, 100);
    ChooseRow(list, 0);
    EXPECT_EQ(VDesk.left, 4096 - 1024);
    EXPECT_EQ(VDesk.top, 1536 - 768);
    Command(51);
    ChooseRow(list, 1);
    EXPECT_EQ(VDesk.left, 0) << "an unmarked region leads to the desktop's corner, as its hotkey does";
}

TEST_F(FindDialogs, OnlyOneOfTheTwoIsOpen) {
    const HWND windows = OpenByRow(52);
    EXPECT_EQ(OpenByRow(111), windows);
    EXPECT_EQ(RowOf(windows).title, "Find Windows...");
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(RowOf(windows).handle, nullptr);
    const HWND regions = OpenByRow(111);
    EXPECT_EQ(RowOf(regions).title, "Find Region...");
    EXPECT_EQ(OpenByRow(52), regions);
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(RowOf(regions).handle, nullptr);
}

TEST_F(FindDialogs, ARowThatDoesNotFitIsLeftOut) {
    OpenWindow("mail", {0, 0, 100, 100});
    OpenWindow("web", {0, 0, 100, 100});
    const HWND dialog = OpenByRow(52);
    const HWND list = ControlOf(dialog, LIST);
    RowOf(list).control.room = 2;
    EXPECT_EQ(AddWindowToList(OpenWindow("more", {0, 0, 100, 100}), reinterpret_cast<LPARAM>(list)), 1);
    EXPECT_EQ(ListTexts(dialog), (Texts{"mail", "web"}));
}

TEST_F(FindDialogs, ASizeIsAppliedAtTheWindowsCorner) {
    const HWND mail = OpenWindow("mail", {500, 100, 800, 300});
    Quorl.left = -1000;
    HWND dialog = OpenByRow(53);
    EXPECT_EQ(RowOf(ControlOf(dialog, 1043)).title, "5096x1536");
    Type(dialog, "400", "400");
    ClickControl(ControlOf(dialog, APPLY));
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 800, 300)) << "none is chosen yet";
    ChooseRow(ControlOf(dialog, LIST), 0);
    EXPECT_EQ(RowOf(ControlOf(dialog, WIDTH)).title, "300") << "choosing overwrites what was typed";
    EXPECT_EQ(RowOf(ControlOf(dialog, HEIGHT)).title, "200");
    Type(dialog, "1500", "250");
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 800, 300));
    ClickControl(ControlOf(dialog, APPLY));
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 2000, 350));
    ClickControl(ControlOf(dialog, RESIZE_OK));

    dialog = OpenByRow(53);
    EXPECT_EQ(RowOf(ControlOf(dialog, WIDTH)).title, "");
    Type(dialog, "600", "100");
    ClickControl(ControlOf(dialog, APPLY));
    EXPECT_EQ(PlaceOf(mail), Rect(500, 100, 1100, 200)) << "the window chosen last is still the one";
}

TEST_F(FindDialogs, AWindowThatIsGoneOrHangsKeepsItsSize) {
    const HWND gone = OpenWindow("gone", {0, 0, 100, 100});
    const HWND hung = OpenWindow("hung", {500, 100, 800, 300});
    const HWND dialog = OpenByRow(53);
    RowOf(hung).answer = DeskAnswer::Hung;
    KillWindow(gone);
    for (const int row : {1, 0}) {
        ChooseRow(ControlOf(dialog, LIST), row);
        EXPECT_EQ(RowOf(ControlOf(dialog, WIDTH)).title, "300") << "a window that is gone has no numbers";
        ClickControl(ControlOf(dialog, APPLY));
    }
    EXPECT_EQ(PlaceOf(hung), Rect(500, 100, 800, 300));
}

} // namespace

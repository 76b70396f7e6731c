#include "dialogs/dialog_test.h"
#include "menus/entries.h"

namespace {

// Its controls.
constexpr int INTO = 3, OUT_OF = 4, INSERT_LINE = 5, TEST_ACTION = 10, UP = 1065, DOWN = 1066;
constexpr int MENU_LIST = 1061, ACTION_LIST = 1062;

constexpr ActionId ITSELF = 74, FIND_WINDOW = 52; // rows

class CustomizeMenuDialog : public DialogTest {
  protected:
    void OpenWith(const Entries& entries) {
        SetMenu(entries);
        Open(ITSELF);
    }
    void ChooseAction(ActionId row) const {
        const Rows& rows = Kept(ACTION_LIST).rows;
        const auto place = std::find(rows.begin(), rows.end(), DeskRow{ActionTable[row].desc, row});
        Choose(ACTION_LIST, static_cast<int>(place - rows.begin()));
    }
    // The menu after a click, with a mark at what is selected there, and whether it beeped.
    std::string After(int button) const {
        Desk.beeps.clear();
        Click(button);
        std::string told;
        for (int place = 0; place < quorl_menu_count; ++place)
            told += std::to_string(MenuList[place]) + (place == Kept(MENU_LIST).chosen ? "* " : " ");
        return told + (Desk.beeps.empty() ? "" : "beep");
    }
};

TEST_F(CustomizeMenuDialog, OffersWhatTheMenuDoesNotHoldWhichGoesToItsEndAndComesBack) {
    OpenWith({54, -1, 0});
    const Rows offered = Kept(ACTION_LIST).rows;
    EXPECT_NE(Kept(UP).image, Kept(DOWN).image);
    EXPECT_EQ(offered.size(), 101U) << "of 103 with a key not row 0 and 54";
    EXPECT_EQ(Kept(MENU_LIST).rows.at(0), (DeskRow{"Options...", 54}));
    EXPECT_EQ(Kept(MENU_LIST).rows.at(2), (DeskRow{"<---------------->", -2}));
    ChooseAction(FIND_WINDOW);
    EXPECT_EQ(After(INTO), "54 -1 0 52* ");
    EXPECT_EQ(Kept(ACTION_LIST).rows.size(), 100U);
    EXPECT_EQ(After(OUT_OF), "54 -1 0 ");
    EXPECT_EQ(Kept(ACTION_LIST).rows, offered);
}

TEST_F(CustomizeMenuDialog, AfterARemovalTheNextOfItsKindIsSelected) {
    OpenWith({-1, 57, -2, 54, 57});
    Choose(MENU_LIST, 1);
    EXPECT_EQ(After(OUT_OF), "-1 -2 54 57* ") << "an action that stood there twice";
    EXPECT_EQ(After(OUT_OF), "-1 -2 54 ");
    Choose(MENU_LIST, 0);
    EXPECT_EQ(After(OUT_OF), "-2* 54 ") << "the first line of this dialog";
    EXPECT_EQ(After(OUT_OF), "54 ");
    Choose(MENU_LIST, 0);
    EXPECT_EQ(After(OUT_OF), "54* beep") << "Options stays";
}

TEST_F(CustomizeMenuDialog, LinesAreInsertedAndEntriesMoveByOne) {
    OpenWith({54, 57, 59});
    Choose(MENU_LIST, 1);
    EXPECT_EQ(After(INSERT_LINE), "54 -2 57* 59 ") << "the same row as before";
    EXPECT_EQ(After(UP), "54 57* -2 59 ");
    EXPECT_EQ(After(UP), "57* 54 -2 59 ");
    EXPECT_EQ(After(UP), "57* 54 -2 59 beep");
    EXPECT_EQ(After(DOWN), "54 57* -2 59 ");
}

TEST_F(CustomizeMenuDialog, TestRunsTheActionThatIsSelectedInEitherList) {
    OpenWith({54, ROW_TOOLTIP});
    Choose(MENU_LIST, 1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_TOOLTIP].value, 0);
    ChooseAction(ROW_SNAP);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_SNAP].value, 0);
    Choose(MENU_LIST, 1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_TOOLTIP].value, 1);
}

TEST_F(CustomizeMenuDialog, CancelRestoresWhatStoodAtTheOpeningAndOkKeepsTheEdits) {
    const Entries before{54, -1, 57, 59}, after{54, -1, 59};
    for (const int id : {IDCANCEL, IDOK}) {
        OpenWith(before);
        Choose(MENU_LIST, 2);
        Click(OUT_OF);
        EXPECT_EQ(Menu(), after) << "at once, for a menu that opens meanwhile";
        Click(id);
        EXPECT_EQ(Menu(), id == IDOK ? after : before);
    }
}

} // namespace

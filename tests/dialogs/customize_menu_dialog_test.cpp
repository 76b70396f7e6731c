#include "dialogs/dialog_test.h"
#include "menus/entries.h"

namespace {

// Its controls.
constexpr int INTO = 3, OUT_OF = 4, INSERT_LINE = 5, TEST_ACTION = 10, UP = 1065, DOWN = 1066;
constexpr int MENU_LIST = 1061, ACTION_LIST = 1062;

constexpr int ITSELF = 74; // its row
constexpr ActionId FIND_WINDOW = 52;
const char LINE[] = "<---------------->";

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
};

TEST_F(CustomizeMenuDialog, OffersWhatTheMenuDoesNotHoldWhichGoesToItsEndAndComesBack) {
    OpenWith({54, -1, 0});
    const Rows shown = {
        {"Options...", 54},
        {LINE,         -2},
        {LINE,         -2}
    };
    EXPECT_EQ(Kept(MENU_LIST).rows, shown);
    const Rows offered = Kept(ACTION_LIST).rows;
    EXPECT_EQ(offered.size(), 101U) << "of 103 with a key not row 0 and 54";
    EXPECT_NE(Kept(UP).image, Kept(DOWN).image);
    Click(INTO);
    EXPECT_EQ(Kept(MENU_LIST).rows, shown) << "nothing is selected";
    EXPECT_TRUE(Desk.beeps.empty()) << "and nothing is said";
    ChooseAction(FIND_WINDOW);
    Click(INTO);
    EXPECT_EQ(Menu(), (Entries{54, -1, 0, FIND_WINDOW}));
    EXPECT_EQ(Kept(ACTION_LIST).rows.size(), 100U);
    EXPECT_EQ(Kept(MENU_LIST).chosen, 3);
    Click(OUT_OF);
    EXPECT_EQ(Kept(MENU_LIST).rows, shown);
    EXPECT_EQ(Kept(ACTION_LIST).rows, offered);
}

TEST_F(CustomizeMenuDialog, AfterARemovalTheNextOfItsKindIsSelected) {
    OpenWith({-1, 57, -2, 54, 57});
    Choose(MENU_LIST, 1);
    Click(OUT_OF);
    EXPECT_EQ(Menu(), (Entries{-1, -2, 54, 57}));
    EXPECT_EQ(Kept(MENU_LIST).chosen, 3) << "an action that stood there twice";
    Click(OUT_OF);
    EXPECT_EQ(Kept(MENU_LIST).chosen, -1);
    Choose(MENU_LIST, 0);
    Click(OUT_OF);
    EXPECT_EQ(Menu(), (Entries{-2, 54}));
    EXPECT_EQ(Kept(MENU_LIST).chosen, 0) << "the first line of this dialog";
    Click(OUT_OF);
    EXPECT_TRUE(Desk.beeps.empty());
    Click(OUT_OF);
    EXPECT_EQ(Desk.beeps.size(), 1U) << "none is selected";
    Choose(MENU_LIST, 0);
    Click(OUT_OF);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "Options stays";
    EXPECT_EQ(Menu(), Entries{54});
}

TEST_F(CustomizeMenuDialog, LinesAreInsertedAndEntriesMoveByOne) {
    OpenWith({54, 57, 59});
    Click(INSERT_LINE);
    Choose(MENU_LIST, 1);
    Click(INSERT_LINE);
    EXPECT_EQ(Menu(), (Entries{54, -2, 57, 59}));
    EXPECT_EQ(Kept(MENU_LIST).chosen, 2) << "the same row as before";
    Click(UP);
    Click(UP);
    EXPECT_EQ(Menu(), (Entries{57, 54, -2, 59}));
    EXPECT_TRUE(Desk.beeps.empty());
    Click(UP);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    Click(DOWN);
    EXPECT_EQ(Kept(MENU_LIST).chosen, 1);
    EXPECT_EQ(Menu(), (Entries{54, 57, -2, 59}));
    ChooseAction(FIND_WINDOW);
    Click(DOWN);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "no entry is selected";
}

TEST_F(CustomizeMenuDialog, TestRunsTheActionThatIsSelectedInEitherList) {
    OpenWith({54, ROW_TOOLTIP});
    Click(TEST_ACTION);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    Choose(MENU_LIST, 1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_TOOLTIP].value, 0);
    ChooseAction(ROW_SNAP);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_SNAP].value, 0);
    EXPECT_EQ(Kept(MENU_LIST).chosen, -1);
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

TEST_F(CustomizeMenuDialog, AMenuThatWasLoadedMeanwhileIsShownBeforeItIsChanged) {
    const Entries loaded{54, 57, 52, 59};
    for (const int id : {OUT_OF, INSERT_LINE, UP}) {
        OpenWith({54, -1, 57, 59});
        Choose(MENU_LIST, 1);
        SetMenu(loaded);
        Click(id);
        EXPECT_EQ(Menu(), loaded) << id;
        EXPECT_EQ(Kept(MENU_LIST).rows[1].data, 57);
        EXPECT_EQ(Desk.beeps.size(), 1U);
        Click(IDOK);
    }
}

} // namespace

#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"
#include "menus/entries.h"
#include "support/faults.h"

#include <algorithm>

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
        Desk.beeps.clear();
    }

    int PlaceOfAction(ActionId row) const {
        const Rows& rows = Kept(ACTION_LIST).rows;
        const auto found =
            std::find_if(rows.begin(), rows.end(), [row](const DeskRow& shown) { return shown.data == row; });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    void ChooseAction(ActionId row) const { Choose(ACTION_LIST, PlaceOfAction(row)); }
};

TEST_F(CustomizeMenuDialog, OffersWhatTheMenuMayHoldAndDoesNotYet) {
    OpenWith({54, -1, 0, 1, 59});
    const Rows wanted = {
        {"Options...",                           54},
        {LINE,                                   -2},
        {LINE,                                   -2},
        {"Move visible desktop to x,y position", 1 },
        {"Exit",                                 59}
    };
    EXPECT_EQ(Kept(MENU_LIST).rows, wanted);
    EXPECT_EQ(Kept(ACTION_LIST).rows.size(), 100U) << "of 103 with a key not row 0, 54 and 59";
    EXPECT_EQ(Kept(ACTION_LIST).rows[0].text, "About...");
    EXPECT_NE(Kept(UP).image, nullptr);
    EXPECT_NE(Kept(DOWN).image, nullptr);
    EXPECT_TRUE(IsWindowVisible(dialog));
}

TEST_F(CustomizeMenuDialog, AnActionGoesToTheEndAndComesBackInItsSortedPlace) {
    OpenWith({54, -1});
    Click(INTO);
    EXPECT_TRUE(Desk.beeps.empty()) << "nothing is selected, and nothing is said";
    const int place = PlaceOfAction(FIND_WINDOW);
    ChooseAction(FIND_WINDOW);
    Click(INTO);
    EXPECT_EQ(Menu(), (Entries{54, -1, FIND_WINDOW}));
    EXPECT_EQ(PlaceOfAction(FIND_WINDOW), -1);
    EXPECT_EQ(Kept(MENU_LIST).chosen, 2);
    EXPECT_EQ(Kept(ACTION_LIST).chosen, -1);
    Click(OUT_OF);
    EXPECT_EQ(Menu(), (Entries{54, -1}));
    EXPECT_EQ(PlaceOfAction(FIND_WINDOW), place);
}

TEST_F(CustomizeMenuDialog, WhatIsSelectedAfterARemoval) {
    struct {
        Entries menu;
        int row;
        Entries left;
        int selected;
        const char* why;
    } const cases[] = {
        {{54, 57, 59, 57}, 1,  {54, 59, 57}, 2,  "an action that stood there twice"},
        {{-1, 54, -1},     0,  {54, -1},     -1, "a line of the start list"        },
        {{-2, 54, 59, -2}, 3,  {-2, 54, 59}, 0,  "the first line of this dialog"   },
        {{57, 54},         1,  {57, 54},     1,  "Options stays, with a beep"      },
        {{57, 54},         -1, {57, 54},     -1, "none is selected: a beep"        },
    };
    for (const auto& [menu, row, left, selected, why] : cases) {
        OpenWith(menu);
        if (row >= 0)
            Choose(MENU_LIST, row);
        Click(OUT_OF);
        EXPECT_EQ(Menu(), left) << why;
        EXPECT_EQ(Kept(MENU_LIST).chosen, selected) << why;
        EXPECT_EQ(Desk.beeps.size(), menu == left ? 1U : 0U) << why;
        Click(IDCANCEL);
    }
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
    EXPECT_EQ(Kept(MENU_LIST).chosen, 0);
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
    OpenWith({54, 70});
    Click(TEST_ACTION);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    Choose(MENU_LIST, 1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_TOOLTIP].value, 0);
    ChooseAction(73);
    EXPECT_EQ(Kept(MENU_LIST).chosen, -1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_SNAP].value, 0);
}

TEST_F(CustomizeMenuDialog, CancelRestoresWhatStoodAtTheOpeningAndOkKeepsTheEdits) {
    const Entries before{54, -1, 57, 59};
    for (const int id : {IDCANCEL, IDOK}) {
        OpenWith(before);
        Choose(MENU_LIST, 2);
        Click(OUT_OF);
        EXPECT_EQ(Menu(), (Entries{54, -1, 59})) << "at once, for a menu that opens meanwhile";
        Command(ITSELF); // raises it
        Click(id);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Menu(), id == IDOK ? (Entries{54, -1, 59}) : before);
    }
}

TEST_F(CustomizeMenuDialog, AMenuThatWasLoadedMeanwhileIsShownBeforeItIsChanged) {
    const Entries loaded{54, 57, FIND_WINDOW, 59};
    for (const int id : {OUT_OF, INSERT_LINE, UP, DOWN, INTO}) {
        OpenWith({54, -1, 57, 59});
        Choose(MENU_LIST, 1);
        if (id == INTO)
            ChooseAction(FIND_WINDOW);
        SetMenu(loaded);
        Click(id);
        EXPECT_EQ(Menu(), loaded) << id;
        EXPECT_EQ(Kept(MENU_LIST).rows[1].data, 57);
        EXPECT_EQ(Desk.beeps.size(), id == INTO ? 0U : 1U) << "it is there already";
        Choose(MENU_LIST, 1);
        Click(id == INTO ? OUT_OF : id);
        EXPECT_NE(Menu(), loaded) << id;
        Click(IDOK);
    }
}

TEST_F(CustomizeMenuDialog, WhicheverCallFailsCancelRestoresTheMenu) {
    const Entries before{54, -1, 57, 59};
    SetMenu(before);
    const auto editAndCancel = [&] {
        Desk.answers.assign(2, IDOK); // to the missing icon
        Command(ITSELF);
        dialog = DialogHandles[KEYS_CUSTOMIZE_MENU];
        if (dialog) {
            Choose(MENU_LIST, 2);
            Click(OUT_OF);
            Click(IDCANCEL);
        }
        EXPECT_EQ(Menu(), before);
        EXPECT_EQ(Desk.surprises, 0);
    };
    EXPECT_GT(FailEachCall(editAndCancel), 100);
}

} // namespace

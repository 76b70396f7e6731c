#include "dialogs/customize_menu_dialog.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "menus/menu_list.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

enum ControlId {
    INTO = 3,
    OUT_OF = 4,
    INSERT_LINE = 5,
    TEST_ACTION = 10,
    MENU_LIST = 1061,
    ACTION_LIST = 1062,
    UP = 1065,
    DOWN = 1066,
};

using Entries = std::vector<int>;

const char LINE[] = "<---------------->";

Entries Menu() {
    return {MenuList, MenuList + quorl_menu_count};
}

void SetMenu(const Entries& entries) {
    std::copy(entries.begin(), entries.end(), MenuList);
    quorl_menu_count = static_cast<int>(entries.size());
}

class CustomizeMenuDialog : public QuorlTest {
  protected:
    HWND dialog = nullptr;

    void SetUp() override {
        QuorlTest::SetUp();
        ASSERT_EQ(StartQuorl(), 1);
    }

    void Open(const Entries& entries) {
        SetMenu(entries);
        Command(74);
        dialog = DialogHandles[KEYS_CUSTOMIZE_MENU];
        ASSERT_NE(dialog, nullptr);
        Desk.beeps.clear();
    }

    HWND At(int id) const { return ControlOf(dialog, id); }
    DeskControl& Kept(int id) const { return RowOf(At(id)).control; }
    void Click(int id) const { ClickControl(At(id)); }
    void Choose(int list, int row) const { ChooseRow(At(list), row); }
    void ChooseAction(ActionId row) const { Choose(ACTION_LIST, PlaceOfAction(row)); }

    int PlaceOfAction(ActionId row) const {
        const std::vector<DeskRow>& rows = Kept(ACTION_LIST).rows;
        const auto found =
            std::find_if(rows.begin(), rows.end(), [row](const DeskRow& shown) { return shown.data == row; });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
};

TEST_F(CustomizeMenuDialog, OffersWhatTheMenuMayHoldAndDoesNotYet) {
    Open({54, -1, 0, 1, -2, 59});
    const std::vector<DeskRow>& shown = Kept(MENU_LIST).rows;
    const DeskRow wanted[] = {
        {"Options...",                           54},
        {LINE,                                   -2},
        {LINE,                                   -2},
        {"Move visible desktop to x,y position", 1 },
        {LINE,                                   -2},
        {"Exit",                                 59},
    };
    ASSERT_EQ(shown.size(), std::size(wanted));
    for (std::size_t row = 0; row < shown.size(); ++row) {
        EXPECT_EQ(shown[row].text, wanted[row].text) << row;
        EXPECT_EQ(shown[row].data, wanted[row].data) << row;
    }
    const std::vector<DeskRow>& offered = Kept(ACTION_LIST).rows;
    EXPECT_EQ(offered.size(), 100U) << "of 103 with a key not row 0, 54 and 59";
    EXPECT_EQ(offered[0].text, "About...");
    for (const ActionId row : {0, 1, 23, 54, 59})
        EXPECT_EQ(PlaceOfAction(row), -1) << row;
    EXPECT_NE(Kept(UP).image, nullptr);
    EXPECT_NE(Kept(DOWN).image, nullptr);
    EXPECT_TRUE(IsWindowVisible(dialog));
}

TEST_F(CustomizeMenuDialog, AnActionGoesToTheEndAndComesBackInItsSortedPlace) {
    Open({54, -1});
    Click(INTO);
    EXPECT_TRUE(Desk.beeps.empty()) << "nothing is selected, and nothing is said";
    const int place = PlaceOfAction(52);
    ChooseAction(52);
    Click(INTO);
    EXPECT_EQ(Menu(), (Entries{54, -1, 52}));
    EXPECT_EQ(PlaceOfAction(52), -1);
    EXPECT_EQ(Kept(MENU_LIST).chosen, 2);
    EXPECT_EQ(Kept(ACTION_LIST).chosen, -1);
    Click(OUT_OF);
    EXPECT_EQ(Menu(), (Entries{54, -1}));
    EXPECT_EQ(PlaceOfAction(52), place);
    EXPECT_EQ(Kept(MENU_LIST).chosen, -1);
}

TEST_F(CustomizeMenuDialog, WhatIsSelectedAfterARemoval) {
    struct {
        Entries menu;
        int row;
        Entries left;
        int selected;
        const char* why;
    } const cases[] = {
        {{54, 57},         1,  {54},         -1, "an action is gone"               },
        {{54, 57, 59, 57}, 1,  {54, 59, 57}, 2,  "unless it stood there twice"     },
        {{-1, 54, -1},     0,  {54, -1},     -1, "lines of the start list"         },
        {{-1, -2, 54, -2}, 0,  {-2, 54, -2}, 0,  "the first line of this dialog"   },
        {{-2, 54, 59, -2}, 3,  {-2, 54, 59}, 0,  "a line goes by its place"        },
        {{57, 23, 54},     1,  {57, 54},     -1, "an action that is no longer kept"},
        {{57, 54},         1,  {57, 54},     1,  "Options stays, with a beep"      },
        {{57, 54},         -1, {57, 54},     -1, "none is selected: a beep"        },
    };
    for (const auto& [menu, row, left, selected, why] : cases) {
        Open(menu);
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
    Open({54, 57, 59});
    Click(INSERT_LINE);
    EXPECT_TRUE(Desk.beeps.empty());
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
    for (int step = 0; step < 4; ++step)
        Click(DOWN);
    EXPECT_EQ(Menu(), (Entries{54, -2, 59, 57}));
    EXPECT_EQ(Kept(MENU_LIST).chosen, 3);
    EXPECT_EQ(Desk.beeps.size(), 2U);
    ChooseAction(52);
    Click(UP);
    Click(DOWN);
    EXPECT_EQ(Desk.beeps.size(), 4U) << "no entry is selected";
    EXPECT_EQ(Menu(), (Entries{54, -2, 59, 57}));
}

TEST_F(CustomizeMenuDialog, AFullMenuTakesNoMore) {
    Open(Entries(MAX_MENU_ENTRIES, 54));
    ChooseAction(52);
    Click(INTO);
    EXPECT_EQ(Kept(MENU_LIST).chosen, MAX_MENU_ENTRIES - 1);
    Choose(MENU_LIST, 7);
    Click(INSERT_LINE);
    EXPECT_EQ(Kept(MENU_LIST).chosen, 8);
    EXPECT_EQ(Menu(), Entries(MAX_MENU_ENTRIES, 54));
    EXPECT_TRUE(Desk.beeps.empty());
}

TEST_F(CustomizeMenuDialog, TestRunsTheActionThatIsSelectedInEitherList) {
    Open({54, 70, -1});
    Click(TEST_ACTION);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    Choose(MENU_LIST, 1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_TOOLTIP].value, 0);
    ChooseAction(73);
    EXPECT_EQ(Kept(MENU_LIST).chosen, -1);
    Click(TEST_ACTION);
    EXPECT_EQ(ActionTable[ROW_SNAP].value, 0);
    Choose(MENU_LIST, 2);
    WillAnswer({IDOK});
    Click(TEST_ACTION);
    ASSERT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(Desk.boxes[0].caption, "Sorry.") << "a line is no action";
    EXPECT_NE(RowOf(dialog).handle, nullptr);
}

TEST_F(CustomizeMenuDialog, CancelRestoresWhatStoodAtTheOpeningAndOkKeepsTheEdits) {
    const Entries before{54, -1, 57, 59};
    for (const int id : {IDCANCEL, IDOK}) {
        Open(before);
        Choose(MENU_LIST, 2);
        Click(OUT_OF);
        EXPECT_EQ(Menu(), (Entries{54, -1, 59})) << "at once, for a menu that opens meanwhile";
        Command(74); // raises it
        Click(id);
        EXPECT_EQ(RowOf(dialog).handle, nullptr);
        EXPECT_EQ(Menu(), id == IDOK ? (Entries{54, -1, 59}) : before);
    }
}

TEST_F(CustomizeMenuDialog, AMenuThatWasLoadedMeanwhileIsShownBeforeItIsChanged) {
    const Entries loaded{54, 57, 52, 59};
    for (const int id : {OUT_OF, INSERT_LINE, UP, DOWN, INTO}) {
        Open({54, -1, 57, 59});
        Choose(MENU_LIST, 1);
        if (id == INTO)
            ChooseAction(52);
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

TEST_F(CustomizeMenuDialog, WithoutItsIconOrARowThatTheListRefusesItStillWorks) {
    Desk.fault = {"LoadIconA", 1, 0, 0, 0};
    WillAnswer({IDOK});
    Open({54, 57});
    ASSERT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(Desk.boxes[0].text, "FAILED ICONUP");
    EXPECT_EQ(Kept(UP).image, nullptr);
    EXPECT_NE(Kept(DOWN).image, nullptr);
    Kept(MENU_LIST).room = 1;
    ChooseAction(52);
    Click(INTO);
    EXPECT_EQ(Kept(MENU_LIST).rows.size(), 1U);
    EXPECT_EQ(Menu(), (Entries{54, 57, 52}));
}

TEST_F(CustomizeMenuDialog, WhicheverCallFailsCancelRestoresTheMenu) {
    const Entries before{54, -1, 57, 59};
    SetMenu(before);
    const auto editAndCancel = [&] {
        Desk.answers.assign(2, IDOK); // to the missing icon
        Command(74);
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

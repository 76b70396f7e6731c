#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"
#include "menus/entries.h"

class CustomizeMenuDialog : public DialogTest {
  protected:
    void OpenWith(const Entries& entries) {
        SetMenu(entries);
        Open(ACTION_CUSTOMIZE_MENU);
    }
    // The menu after a click, with a star after the selected entry, and "beep".
    std::string MenuAfter(int button) const {
        Desk.beeps.clear();
        Click(button);
        std::string text;
        for (int i = 0; i < quorl_menu_count; ++i)
            text += std::to_string(MenuList[i]) + (i == Control(IDC_MENU_LIST).selected ? "* " : " ");
        return text + (Desk.beeps.empty() ? "" : "beep");
    }
};

// The first action that the dialog offers is About, 57.
TEST_F(CustomizeMenuDialog, MovesActionsIntoTheMenuAndBack) {
    OpenWith({54, -1, 0});
    EXPECT_EQ(Control(IDC_MENU_LIST).items.at(2).text, "<---------------->");
    const auto& offered = Control(IDC_MENU_ACTIONS).items;
    const std::size_t before = offered.size();
    Choose(IDC_MENU_ACTIONS, 0);
    EXPECT_EQ(MenuAfter(IDC_MENU_ADD), "54 -1 0 57* ");
    EXPECT_EQ(offered.size(), before - 1);
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "54 -1 0 ");
    EXPECT_EQ(offered.size(), before);
    Choose(IDC_MENU_LIST, 2);
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "54 -1 ");
    Choose(IDC_MENU_ACTIONS, 0);
    SetMenu({57, 54}); // as loading the settings does
    EXPECT_EQ(MenuAfter(IDC_MENU_ADD), "57 54* ") << "each action once";
    Choose(IDC_MENU_LIST, 0);
    SetMenu({54, 57});
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "54 57 beep") << "shows the new one first";
}

TEST_F(CustomizeMenuDialog, ARemovalSelectsTheNextEqualEntry) {
    OpenWith({57, -2, 54, -2});
    Choose(IDC_MENU_LIST, 1);
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "57 54 -2* ");
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "57 54 ");
    Choose(IDC_MENU_LIST, 0);
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "54 ");
    Choose(IDC_MENU_LIST, 0);
    EXPECT_EQ(MenuAfter(IDC_MENU_REMOVE), "54* beep") << "Options cannot be removed";
}

TEST_F(CustomizeMenuDialog, InsertsLinesAndMovesEntries) {
    OpenWith({54, 57, 59});
    Choose(IDC_MENU_LIST, 1);
    EXPECT_EQ(MenuAfter(IDC_MENU_INSERT_LINE), "54 -2 57* 59 ");
    EXPECT_EQ(MenuAfter(IDC_MENU_DOWN), "54 -2 59 57* ");
    EXPECT_EQ(MenuAfter(IDC_MENU_DOWN), "54 -2 59 57* beep");
    EXPECT_EQ(MenuAfter(IDC_MENU_UP), "54 -2 57* 59 ");
}

TEST_F(CustomizeMenuDialog, TestRunsTheActionSelectedLast) {
    OpenWith({54, ACTION_TOOLTIP});
    EXPECT_EQ(Control(IDC_MENU_ACTIONS).items.size(), 100U) << "without the action that opens the menu";
    EXPECT_TRUE(MenuAfter(IDC_MENU_TEST).ends_with("beep")) << "none is selected";
    Choose(IDC_MENU_ACTIONS, 0);
    Choose(IDC_MENU_LIST, 1);
    Click(IDC_MENU_TEST);
    EXPECT_FALSE(IsOn(ACTION_TOOLTIP) || DialogHandles[DIALOG_ABOUT]);
    Choose(IDC_MENU_ACTIONS, 0);
    Click(IDC_MENU_TEST);
    EXPECT_EQ(Desk.focus, FindControl(DialogHandles[DIALOG_ABOUT], IDOK));
}

TEST_F(CustomizeMenuDialog, CancelRevertsEdits) {
    for (const int id : {IDCANCEL, IDOK}) {
        OpenWith({54, 57});
        Choose(IDC_MENU_LIST, 1);
        Click(IDC_MENU_REMOVE, id);
        EXPECT_EQ(quorl_menu_count, id == IDOK ? 1 : 2);
    }
}

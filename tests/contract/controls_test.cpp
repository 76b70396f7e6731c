// The controls of the program's dialogs: what they keep, and what they tell when the user works them.
#include "contract/dialogs_test.h"

namespace {

using Controls = Dialogs;
using Texts = std::vector<std::string>;

constexpr WPARAM NONE = static_cast<WPARAM>(-1);

Ids CheckedOf(HWND dialog, std::initializer_list<int> ids) {
    Ids checked;
    for (const int id : ids)
        if (IsDlgButtonChecked(dialog, id) == BST_CHECKED)
            checked.push_back(id);
    return checked;
}

Texts RowsOf(HWND dialog, int id) {
    Texts rows;
    for (LRESULT row = 0; row < Ask(dialog, id, LB_GETCOUNT); ++row) {
        char text[64] = "";
        Ask(dialog, id, LB_GETTEXT, static_cast<WPARAM>(row), text);
        rows.emplace_back(text);
    }
    return rows;
}

void Click(HWND dialog, int id) {
    ClickControl(GetDlgItem(dialog, id));
}

TEST_F(Controls, ARadioButtonUnchecksWhatShowsOfItsGroupWhenItIsClickedOnly) {
    const HWND dialog = ShowTemplate(101);
    const auto checked = [dialog] { return CheckedOf(dialog, {1073, 1074, 1076, 1079, 1080, 1082}); };
    for (const int id : {1073, 1079, 1082}) // the last one is hidden
        CheckDlgButton(dialog, id, BST_CHECKED);
    EXPECT_EQ(checked(), (Ids{1073, 1079, 1082})) << "the program's own check is alone";
    Click(dialog, 1080);
    EXPECT_EQ(checked(), (Ids{1073, 1080, 1082}));
    Click(dialog, 1076);
    EXPECT_EQ(checked(), (Ids{1076, 1080, 1082}));
    EnableWindow(GetDlgItem(dialog, 1074), FALSE);
    Click(dialog, 1074);
    EXPECT_EQ(checked(), (Ids{1076, 1080, 1082}));
    EXPECT_EQ(Clicked(), (Ids{1080, 1076}));
}

// Tab stops at a group's checked button, or at the one that is told to be a stop.
TEST_F(Controls, ARadioButtonThatIsClearedIsNoTabStopUntilItsStyleSaysSo) {
    const HWND dialog = ShowTemplate(113);
    const HWND radio = GetDlgItem(dialog, 1034);
    const auto style = [radio] { return GetWindowLongPtrA(radio, GWL_STYLE); };
    EXPECT_TRUE(style() & WS_TABSTOP);
    CheckDlgButton(dialog, 1034, BST_UNCHECKED);
    EXPECT_FALSE(style() & WS_TABSTOP);
    SetWindowLongPtrA(radio, GWL_STYLE, style() | WS_TABSTOP);
    EXPECT_TRUE(style() & WS_TABSTOP);
}

TEST_F(Controls, AnEditBoxTellsOfEachChangeAndOfTheFocus) {
    constexpr UINT update = 0x0400, change = 0x0300;
    const HWND dialog = ShowTemplate(101);
    SetDlgItemTextA(dialog, 1000, "5");
    EXPECT_EQ(CodesOf(1000), (Codes{update, change}));
    TypeInto(GetDlgItem(dialog, 1001), "12x3");
    EXPECT_EQ(TextOf(dialog, 1001), "123") << "it takes digits only";
    News.clear();
    SetFocus(GetDlgItem(dialog, 1002));
    EXPECT_EQ(CodesOf(1001), Codes{EN_KILLFOCUS});

    const HWND help = ShowTemplate(106);
    SetDlgItemTextA(help, 1068, "one\r\ntwo");
    EXPECT_EQ(CodesOf(1068), Codes{}) << "one of several lines keeps still";
    TypeInto(GetDlgItem(help, 1068), "x");
    EXPECT_EQ(TextOf(help, 1068), "one\r\ntwo") << "it is read only";
}

TEST_F(Controls, ASortedListBoxTellsWhereARowWentAndKeepsItsNumber) {
    const HWND dialog = OpenTemplate(116);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "pear"), 0);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "Apple"), 0);
    EXPECT_NE(Ask(dialog, 1062, LB_SETITEMDATA, 0, 7), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "orange"), 1);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, ""), 0);
    EXPECT_EQ(RowsOf(dialog, 1062), (Texts{"", "Apple", "orange", "pear"}));
    EXPECT_EQ(Ask(dialog, 1062, LB_GETITEMDATA, 1), 7);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETITEMDATA, 4), LB_ERR);

    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETCURSEL, 2), 2);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETCURSEL, 4), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), 2);
    Ask(dialog, 1062, LB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), LB_ERR);

    Ask(dialog, 1061, WM_SETREDRAW, FALSE);
    Ask(dialog, 1061, LB_ADDSTRING, 0, "b");
    EXPECT_EQ(Ask(dialog, 1061, LB_ADDSTRING, 0, "a"), 1) << "one that does not sort appends";
    EXPECT_EQ(RowsOf(dialog, 1061), (Texts{"b", "a"})) << "painted or not";
    EXPECT_TRUE(News.empty()) << "what the program does is not told";
}

TEST_F(Controls, AListBoxWithoutNotifyTellsOnlyThatItGotTheFocus) {
    constexpr UINT killFocus = 5;
    const HWND dialog = ShowTemplate(116);
    for (const int list : {1061, 1062})
        for (const char* row : {"a", "b", "c"})
            Ask(dialog, list, LB_ADDSTRING, 0, row);
    SetFocus(GetDlgItem(dialog, 10));
    News.clear();
    ChooseRow(GetDlgItem(dialog, 1061), 1);
    EXPECT_EQ(CodesOf(1061), Codes{LBN_SETFOCUS});
    ChooseRow(GetDlgItem(dialog, 1061), 2);
    EXPECT_EQ(CodesOf(1061), Codes{});
    EXPECT_EQ(Ask(dialog, 1061, LB_GETCURSEL), 2);
    ChooseRow(GetDlgItem(dialog, 1062), 2);
    Codes codes;
    for (const Told& told : News)
        codes.push_back(told.code);
    EXPECT_EQ(codes, (Codes{killFocus, LBN_SETFOCUS, LBN_SELCHANGE}));
}

TEST_F(Controls, ADropDownListFindsWholeTextsInAnyCaseAndHasNoTextOfItsOwn) {
    const HWND dialog = OpenTemplate(113);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, NONE, "Left"), 0);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, NONE, "F1"), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, NONE, "F10"), 2);
    EXPECT_EQ(Ask(dialog, 1038, CB_FINDSTRINGEXACT, NONE, "f10"), 2);
    EXPECT_EQ(Ask(dialog, 1038, CB_FINDSTRINGEXACT, NONE, "F"), CB_ERR);
    Ask(dialog, 1038, CB_SETITEMDATA, 1, 112);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETITEMDATA, 1), 112);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETITEMDATA, 3), CB_ERR);

    EXPECT_EQ(Ask(dialog, 1038, WM_SETTEXT, 0, "Left"), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, CB_SETCURSEL, 1), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_SETCURSEL, NONE), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), CB_ERR);
}

TEST_F(Controls, AListViewOfTheOwnersDataCountsAsksForTextsAndTellsTheSelection) {
    std::map<std::pair<int, int>, int> asked; // by row and column
    int selected = -1;
    DialogReplies[WM_NOTIFY] = [&](const MSG& arrived) {
        const UINT code = reinterpret_cast<const NMHDR*>(arrived.lParam)->code;
        const auto& request = *reinterpret_cast<const NMLVDISPINFOA*>(arrived.lParam);
        if (code == LVN_GETDISPINFOA && request.item.mask & LVIF_TEXT)
            ++asked[{request.item.iItem, request.item.iSubItem}];
        const auto& news = *reinterpret_cast<const NMLISTVIEW*>(arrived.lParam);
        if (code == LVN_ITEMCHANGED && (news.uNewState ^ news.uOldState) & LVIS_SELECTED)
            selected = news.uNewState & LVIS_SELECTED ? news.iItem : -1;
        return 0;
    };
    const HWND dialog = ShowTemplate(113);
    LVCOLUMNA column{};
    column.mask = LVCF_WIDTH;
    column.cx = 120;
    for (const WPARAM place : {0U, 1U})
        Ask(dialog, 1051, LVM_INSERTCOLUMNA, place, reinterpret_cast<LPARAM>(&column));
    LVITEMA item{};
    for (item.iItem = 0; item.iItem < 3; ++item.iItem)
        EXPECT_EQ(Ask(dialog, 1051, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item)), item.iItem);
    EXPECT_TRUE(Ask(dialog, 1051, LVM_SETITEMCOUNT, 5));
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETITEMCOUNT), 5);
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), -1);
    InvalidateRect(GetDlgItem(dialog, 1051), nullptr, TRUE);
    Handle(100);
    EXPECT_TRUE((asked[{0, 0}]) && (asked[{2, 1}]));
    asked.clear();
    EXPECT_TRUE(Ask(dialog, 1051, LVM_REDRAWITEMS, 1, 1));
    Handle(100);
    EXPECT_TRUE((asked[{1, 0}]));

    for (const int row : {1, 2}) {
        ChooseRow(GetDlgItem(dialog, 1051), row);
        EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), row);
        EXPECT_EQ(selected, row) << "after the other one has lost it";
    }
    EXPECT_TRUE(Ask(dialog, 1051, LVM_DELETEALLITEMS));
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETITEMCOUNT), 0);
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), -1);
}

TEST_F(Controls, ATabControlAsksBeforeTheUserChangesTheTab) {
    const HWND dialog = ShowTemplate(113);
    char title[] = "title";
    TCITEMA tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = title;
    for (const WPARAM place : {0U, 1U})
        Ask(dialog, 1050, TCM_INSERTITEMA, place, reinterpret_cast<LPARAM>(&tab));
    EXPECT_EQ(Ask(dialog, 1050, TCM_GETCURSEL), 0);
    EXPECT_EQ(Ask(dialog, 1050, TCM_SETCURSEL, 1), 0) << "the one before";
    EXPECT_EQ(Ask(dialog, 1050, TCM_SETCURSEL, 0), 1);
    EXPECT_EQ(CodesOf(1050), Codes{}) << "what the program does is not told";

    std::vector<LRESULT> inside;
    DialogReplies[WM_NOTIFY] = [&](const MSG& arrived) {
        if (reinterpret_cast<const NMHDR*>(arrived.lParam)->code == TCN_SELCHANGING)
            inside.push_back(Ask(arrived.hwnd, 1050, TCM_GETCURSEL));
        return 0;
    };
    for (int click = 0; click < 2; ++click) {
        ChooseRow(GetDlgItem(dialog, 1050), 1);
        EXPECT_EQ(inside, std::vector<LRESULT>{0}) << "once: then the tab is on top already";
        EXPECT_EQ(Ask(dialog, 1050, TCM_GETCURSEL), 1);
    }
}

} // namespace

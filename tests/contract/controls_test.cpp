// The controls of the program's dialogs: what they keep, and what they tell when the user works them.
#include "contract/dialogs_test.h"

namespace {

using Controls = Dialogs;
using Texts = std::vector<std::string>;
using Told = std::vector<Heard>;

std::vector<int> CheckedOf(HWND dialog, std::initializer_list<int> ids) {
    std::vector<int> checked;
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

TEST_F(Controls, ARadioButtonUnchecksItsGroupWhenItIsClickedOnly) {
    const HWND dialog = ShowTemplate(101);
    const auto checked = [dialog] { return CheckedOf(dialog, {1073, 1074, 1075, 1076, 1079, 1080, 1078}); };
    CheckDlgButton(dialog, 1073, BST_CHECKED);
    CheckDlgButton(dialog, 1079, BST_CHECKED);
    CheckDlgButton(dialog, 1078, BST_CHECKED);
    EXPECT_EQ(checked(), (std::vector<int>{1073, 1079, 1078})) << "the program's own check is alone";
    Click(dialog, 1080);
    EXPECT_EQ(checked(), (std::vector<int>{1073, 1080}));
    Click(dialog, 1076);
    EXPECT_EQ(checked(), (std::vector<int>{1076, 1080}));
    EXPECT_EQ(NewsOf(1076), (Told{
                                {WM_COMMAND, 1076, BN_CLICKED}
    }));

    EnableWindow(GetDlgItem(dialog, 1074), FALSE);
    Click(dialog, 1074);
    EXPECT_EQ(checked(), (std::vector<int>{1076, 1080}));
    EXPECT_EQ(NewsOf(1074), Told{});
}

TEST_F(Controls, AClickLeavesTheCheckOfAHiddenRadioButtonAlone) {
    const HWND dialog = ShowTemplate(101);
    CheckDlgButton(dialog, 1082, BST_CHECKED);
    Click(dialog, 1080);
    EXPECT_EQ(CheckedOf(dialog, {1079, 1080, 1082, 1078}), (std::vector<int>{1080, 1082}));
}

// Tab stops at a group's checked button, or at the one that is told to be a stop.
TEST_F(Controls, ARadioButtonThatIsClearedIsNoTabStopUntilItsStyleSaysSo) {
    const HWND dialog = ShowTemplate(113);
    const HWND radio = GetDlgItem(dialog, 1034);
    const auto style = [radio] { return GetWindowLongPtrA(radio, GWL_STYLE); };
    const LONG_PTR stop = style();
    EXPECT_TRUE(stop & WS_TABSTOP);
    CheckDlgButton(dialog, 1034, BST_UNCHECKED);
    EXPECT_FALSE(style() & WS_TABSTOP);
    const LONG_PTR cleared = style();
    EXPECT_EQ(SetWindowLongPtrA(radio, GWL_STYLE, cleared | WS_TABSTOP), cleared);
    EXPECT_EQ(style(), cleared | WS_TABSTOP);
}

TEST_F(Controls, ACheckBoxTurnsByItself) {
    const HWND dialog = ShowTemplate(113);
    Click(dialog, 1028);
    EXPECT_EQ(CheckedOf(dialog, {1028, 1030}), std::vector<int>{1028});
    Click(dialog, 1028);
    EXPECT_EQ(CheckedOf(dialog, {1028, 1030}), std::vector<int>{});
    EXPECT_EQ(NewsOf(1028).size(), 2u);
}

TEST_F(Controls, AButtonKeepsTheImageThatItIsGiven) {
    const HWND dialog = OpenTemplate(116);
    const LPARAM icon = reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_APPLICATION));
    EXPECT_EQ(Ask(dialog, 1065, BM_SETIMAGE, IMAGE_ICON, icon), 0);
    EXPECT_EQ(Ask(dialog, 1065, BM_SETIMAGE, IMAGE_ICON, LPARAM{0}), icon);
}

TEST_F(Controls, AnEditBoxTellsOfEachChangeAndOfTheFocus) {
    const HWND dialog = ShowTemplate(101);
    SetDlgItemTextA(dialog, 1000, "5");
    EXPECT_EQ(NewsOf(1000), (Told{
                                {WM_COMMAND, 1000, 0x0400},
                                {WM_COMMAND, 1000, 0x0300}
    }))
        << "EN_UPDATE, EN_CHANGE";
    TypeInto(GetDlgItem(dialog, 1001), "12x3");
    EXPECT_EQ(TextOf(dialog, 1001), "123") << "it takes digits only";
    News.clear();
    GoToControl(GetDlgItem(dialog, 1002));
    EXPECT_EQ(NewsOf(1001), (Told{
                                {WM_COMMAND, 1001, EN_KILLFOCUS}
    }));

    const HWND help = ShowTemplate(106);
    SetDlgItemTextA(help, 1068, "one\r\ntwo");
    EXPECT_EQ(TextOf(help, 1068), "one\r\ntwo");
    EXPECT_EQ(NewsOf(1068), Told{}) << "one of several lines keeps still";
    TypeInto(GetDlgItem(help, 1068), "x");
    EXPECT_EQ(TextOf(help, 1068), "one\r\ntwo") << "it is read only";
}

TEST_F(Controls, ASortedListBoxTellsWhereARowWentAndKeepsItsNumber) {
    const HWND dialog = OpenTemplate(116);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "pear"), 0);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "Apple"), 0);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETITEMDATA, 0, 7), 1);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, "orange"), 1);
    EXPECT_EQ(Ask(dialog, 1062, LB_ADDSTRING, 0, ""), 0);
    EXPECT_EQ(RowsOf(dialog, 1062), (Texts{"", "Apple", "orange", "pear"}));
    EXPECT_EQ(Ask(dialog, 1062, LB_GETITEMDATA, 1), 7);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETITEMDATA, 2), 0);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETITEMDATA, 4), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETITEMDATA, 4, 7), LB_ERR);

    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETCURSEL, 2), 2);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETCURSEL, 4), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), 2);
    EXPECT_EQ(Ask(dialog, 1062, LB_SETCURSEL, static_cast<WPARAM>(-1)), LB_ERR);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), LB_ERR);
    Ask(dialog, 1062, LB_SETCURSEL, 2);
    Ask(dialog, 1062, LB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCOUNT), 0);
    EXPECT_EQ(Ask(dialog, 1062, LB_GETCURSEL), LB_ERR);

    Ask(dialog, 1061, WM_SETREDRAW, FALSE);
    Ask(dialog, 1061, LB_ADDSTRING, 0, "b");
    EXPECT_EQ(Ask(dialog, 1061, LB_ADDSTRING, 0, "a"), 1) << "one that does not sort appends";
    Ask(dialog, 1061, WM_SETREDRAW, TRUE);
    EXPECT_EQ(RowsOf(dialog, 1061), (Texts{"b", "a"})) << "painted or not";
    EXPECT_TRUE(News.empty()) << "what the program does is not told";
}

TEST_F(Controls, AListBoxWithoutNotifyTellsOnlyThatItGotTheFocus) {
    const HWND dialog = ShowTemplate(116);
    for (const int list : {1061, 1062})
        for (const char* row : {"a", "b", "c"})
            Ask(dialog, list, LB_ADDSTRING, 0, row);
    GoToControl(GetDlgItem(dialog, 10));
    News.clear();
    ChooseRow(GetDlgItem(dialog, 1061), 1);
    EXPECT_EQ(News, (Told{
                        {WM_COMMAND, 1061, LBN_SETFOCUS}
    }));
    EXPECT_EQ(Ask(dialog, 1061, LB_GETCURSEL), 1);
    News.clear();
    ChooseRow(GetDlgItem(dialog, 1061), 2);
    EXPECT_EQ(News, Told{});

    ChooseRow(GetDlgItem(dialog, 1062), 2);
    EXPECT_EQ(News, (Told{
                        {WM_COMMAND, 1061, 5            }, // LBN_KILLFOCUS
                        {WM_COMMAND, 1062, LBN_SETFOCUS },
                        {WM_COMMAND, 1062, LBN_SELCHANGE}
    }));
}

TEST_F(Controls, ADropDownListFindsWholeTextsInAnyCase) {
    const HWND dialog = OpenTemplate(113);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, static_cast<WPARAM>(-1), "Left"), 0);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, static_cast<WPARAM>(-1), "F1"), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_INSERTSTRING, static_cast<WPARAM>(-1), "F10"), 2);
    EXPECT_NE(Ask(dialog, 1038, CB_SETITEMDATA, 1, 112), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETITEMDATA, 1), 112);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETITEMDATA, 3), CB_ERR);
    const WPARAM start = static_cast<WPARAM>(-1);
    EXPECT_EQ(Ask(dialog, 1038, CB_FINDSTRINGEXACT, start, "f10"), 2);
    EXPECT_EQ(Ask(dialog, 1038, CB_FINDSTRINGEXACT, start, "F"), CB_ERR);

    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, WM_SETTEXT, 0, "Left"), CB_ERR) << "it has no text of its own";
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(Ask(dialog, 1038, CB_SETCURSEL, 1), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCURSEL), 1);
    EXPECT_EQ(Ask(dialog, 1038, CB_SETCURSEL, start), CB_ERR);
    Ask(dialog, 1038, CB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, 1038, CB_GETCOUNT), 0);
}

// Three items in two columns.
HWND ShowFilledList() {
    const HWND dialog = ShowTemplate(113);
    LVCOLUMNA column{};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
    column.cx = 120;
    char title[] = "title";
    column.pszText = title;
    EXPECT_EQ(Ask(dialog, 1051, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column)), 0);
    EXPECT_EQ(Ask(dialog, 1051, LVM_INSERTCOLUMNA, 1, reinterpret_cast<LPARAM>(&column)), 1);
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.pszText = LPSTR_TEXTCALLBACKA;
    for (item.iItem = 0; item.iItem < 3; ++item.iItem)
        EXPECT_EQ(Ask(dialog, 1051, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item)), item.iItem);
    return dialog;
}

TEST_F(Controls, AListViewOfTheOwnersDataCountsAndAsksForTexts) {
    std::map<std::pair<int, int>, int> asked;
    char text[] = "text";
    DialogReplies[WM_NOTIFY] = [&](const MSG& arrived) {
        auto& request = *reinterpret_cast<NMLVDISPINFOA*>(arrived.lParam);
        if (request.hdr.code != LVN_GETDISPINFOA || !(request.item.mask & LVIF_TEXT))
            return 0;
        ++asked[{request.item.iItem, request.item.iSubItem}];
        request.item.pszText = text;
        return 0;
    };
    const HWND dialog = ShowFilledList();
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETITEMCOUNT), 3);
    EXPECT_TRUE(Ask(dialog, 1051, LVM_SETITEMCOUNT, 5));
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETITEMCOUNT), 5);
    EXPECT_TRUE(Ask(dialog, 1051, LVM_SETITEMCOUNT, 3));
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), -1);
    InvalidateRect(GetDlgItem(dialog, 1051), nullptr, TRUE);
    Handle(100);
    for (int item = 0; item < 3; ++item)
        EXPECT_GT((asked[{item, 0}]), 0) << item;
    EXPECT_GT((asked[{2, 1}]), 0);

    asked.clear();
    EXPECT_TRUE(Ask(dialog, 1051, LVM_REDRAWITEMS, 1, 1));
    Handle(100);
    EXPECT_GT((asked[{1, 0}]), 0);

    EXPECT_TRUE(Ask(dialog, 1051, LVM_DELETEALLITEMS));
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETITEMCOUNT), 0);
}

TEST_F(Controls, AListViewTellsWhatGetsTheSelectionAndWhatLosesIt) {
    std::vector<std::pair<int, UINT>> selections;
    DialogReplies[WM_NOTIFY] = [&](const MSG& arrived) {
        const auto& news = *reinterpret_cast<const NMLISTVIEW*>(arrived.lParam);
        if (news.hdr.code == LVN_ITEMCHANGED && (news.uNewState ^ news.uOldState) & LVIS_SELECTED)
            selections.emplace_back(news.iItem, news.uNewState & LVIS_SELECTED);
        return 0;
    };
    const HWND dialog = ShowFilledList();
    ChooseRow(GetDlgItem(dialog, 1051), 1);
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), 1);
    ASSERT_FALSE(selections.empty());
    EXPECT_EQ(selections.back(), (std::pair<int, UINT>{1, LVIS_SELECTED}));
    ChooseRow(GetDlgItem(dialog, 1051), 2);
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), 2);
    EXPECT_EQ(selections.back(), (std::pair<int, UINT>{2, LVIS_SELECTED}));
    Ask(dialog, 1051, LVM_DELETEALLITEMS);
    EXPECT_EQ(Ask(dialog, 1051, LVM_GETSELECTIONMARK), -1);
}

TEST_F(Controls, ATabControlAsksBeforeTheUserChangesTheTab) {
    const HWND dialog = ShowTemplate(113);
    TCITEMA tab{};
    tab.mask = TCIF_TEXT;
    char title[] = "title";
    tab.pszText = title;
    Ask(dialog, 1050, TCM_DELETEALLITEMS);
    EXPECT_EQ(Ask(dialog, 1050, TCM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&tab)), 0);
    EXPECT_EQ(Ask(dialog, 1050, TCM_INSERTITEMA, 1, reinterpret_cast<LPARAM>(&tab)), 1);
    EXPECT_EQ(Ask(dialog, 1050, TCM_GETCURSEL), 0);
    EXPECT_EQ(Ask(dialog, 1050, TCM_SETCURSEL, 1), 0) << "the one before";
    EXPECT_EQ(Ask(dialog, 1050, TCM_SETCURSEL, 0), 1);
    EXPECT_EQ(NewsOf(1050), Told{}) << "what the program does is not told";

    std::vector<LRESULT> inside;
    DialogReplies[WM_NOTIFY] = [&](const MSG& arrived) {
        if (reinterpret_cast<const NMHDR*>(arrived.lParam)->code == TCN_SELCHANGING)
            inside.push_back(Ask(arrived.hwnd, 1050, TCM_GETCURSEL));
        return 0;
    };
    ChooseRow(GetDlgItem(dialog, 1050), 1);
    EXPECT_EQ(inside, std::vector<LRESULT>{0});
    EXPECT_EQ(Ask(dialog, 1050, TCM_GETCURSEL), 1);
    ChooseRow(GetDlgItem(dialog, 1050), 1);
    EXPECT_EQ(inside.size(), 1u) << "the tab that is on top already";
}

TEST_F(Controls, ATrackbarStaysInItsRange) {
    const HWND dialog = OpenTemplate(120);
    Ask(dialog, 1079, TBM_SETRANGE, TRUE, MAKELPARAM(10, 255));
    EXPECT_EQ(Ask(dialog, 1079, TBM_GETPOS), 10);
    const int cases[][2] = {
        {128, 128},
        {5,   10 },
        {255, 255},
        {300, 255}
    };
    for (const auto& [set, got] : cases) {
        Ask(dialog, 1079, TBM_SETPOS, TRUE, set);
        EXPECT_EQ(Ask(dialog, 1079, TBM_GETPOS), got);
    }
}

TEST_F(Controls, ALabelAsksItsDialogForTheBrushThatFillsIt) {
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    HWND swatch = nullptr;
    int asked = 0;
    DialogReplies[WM_CTLCOLORSTATIC] = [&](const MSG& arrived) -> INT_PTR {
        if (GetWindowLongPtrA(reinterpret_cast<HWND>(arrived.lParam), GWLP_ID) != 1040)
            return 0;
        swatch = reinterpret_cast<HWND>(arrived.lParam);
        ++asked;
        return reinterpret_cast<INT_PTR>(brush);
    };
    const HWND dialog = ShowTemplate(108);
    EXPECT_EQ(swatch, GetDlgItem(dialog, 1040));
    const HDC context = GetDC(swatch);
    EXPECT_EQ(GetPixel(context, 5, 5), RGB(1, 2, 3));
    ReleaseDC(swatch, context);
    asked = 0;
    InvalidateRect(swatch, nullptr, TRUE);
    UpdateWindow(swatch);
    EXPECT_EQ(asked, 1);
    DialogReplies.clear();
    EXPECT_TRUE(DeleteObject(brush));
}

TEST_F(Controls, AClickOnALabelOrOnADisabledControlReachesTheDialog) {
    const HWND dialog = ShowTemplate(108);
    for (const int id : {1040, 3}) {
        const RECT place = PlaceOf(GetDlgItem(dialog, id));
        News.clear();
        MoveMouse((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        PressMouse(VK_LBUTTON, 1);
        PressMouse(VK_LBUTTON, 0);
        Handle(100);
        EXPECT_EQ(News, (Told{
                            {WM_LBUTTONUP, 0, 0}
        }))
            << id;
    }
}

TEST_F(Controls, SystemColoursAreColours) {
    EXPECT_LE(GetSysColor(COLOR_BACKGROUND), 0xffffffU);
    EXPECT_NE(GetSysColorBrush(COLOR_BACKGROUND), nullptr);
}

} // namespace

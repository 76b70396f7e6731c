// Dialogs: how they are made, end and own each other; numbers and texts; the keys that work in them.
#include "contract/dialogs_test.h"

#include <ostream>

std::vector<Heard> News;
std::map<UINT, std::function<INT_PTR(const MSG&)>> DialogReplies;

static std::vector<HWND> Opened;

static void Keep(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        News.push_back({message, LOWORD(wParam), HIWORD(wParam)});
    if (message == WM_NOTIFY)
        News.push_back({message, static_cast<int>(wParam), reinterpret_cast<const NMHDR*>(lParam)->code});
    if (message == WM_LBUTTONUP)
        News.push_back({message, 0, 0});
}

static INT_PTR CALLBACK KeepingDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    Keep(message, wParam, lParam);
    const auto reply = DialogReplies.find(message);
    return reply == DialogReplies.end() ? 0 : reply->second({dialog, message, wParam, lParam, 0, {}});
}

void Dialogs::TearDown() {
    DialogReplies.clear();
    for (const HWND dialog : Opened)
        DestroyWindow(dialog);
    Opened.clear();
    Contract::TearDown();
    News.clear();
}

HWND OpenTemplate(int id, HWND owner) {
    const HWND dialog = CreateDialogParamA(Instance(), MAKEINTRESOURCEA(id), owner, KeepingDlgProc, 0);
    EXPECT_NE(dialog, nullptr) << id;
    Opened.push_back(dialog);
    return dialog;
}

HWND ShowTemplate(int id) {
    const HWND dialog = OpenTemplate(id);
    ShowWindow(dialog, SW_SHOW);
    SetForegroundWindow(dialog);
    Handle(100);
    News.clear();
    return dialog;
}

std::vector<Heard> NewsOf(int control) {
    std::vector<Heard> news = News;
    std::erase_if(news, [control](const Heard& heard) { return heard.control != control; });
    return news;
}

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendDlgItemMessageA(dialog, id, message, wParam, lParam);
}

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, const char* text) {
    return Ask(dialog, id, message, wParam, reinterpret_cast<LPARAM>(text));
}

std::string TextOf(HWND dialog, int id) {
    char text[256] = "";
    GetDlgItemTextA(dialog, id, text, sizeof text);
    return text;
}

bool operator==(const Heard& a, const Heard& b) {
    return a.message == b.message && a.control == b.control && a.code == b.code;
}

void PrintTo(const Heard& heard, std::ostream* out) {
    *out << heard.message << " of " << heard.control << ", code " << static_cast<int>(heard.code);
}

namespace {

using Commands = std::vector<Heard>;

// A message as the loop would get it, offered to the dialog.
BOOL Offer(HWND dialog, HWND to, UINT message, WPARAM wParam) {
    MSG offered{to, message, wParam, 0, 0, {}};
    return IsDialogMessageA(dialog, &offered);
}

TEST_F(Dialogs, AllControlsStandHiddenWithTheDialogWhenItIsToldToStart) {
    int found = 0;
    BOOL bVisible = TRUE;
    LPARAM parameter = 0;
    DialogReplies[WM_INITDIALOG] = [&](const MSG& arrived) {
        for (const int id : {1000, 1077, 1082, 1003, 1, 1064})
            found += GetDlgItem(arrived.hwnd, id) != nullptr;
        bVisible = IsWindowVisible(arrived.hwnd) || IsWindowVisible(GetDlgItem(arrived.hwnd, 1));
        parameter = arrived.lParam;
        return 1;
    };
    const HWND dialog = CreateDialogParamA(Instance(), MAKEINTRESOURCEA(101), nullptr, KeepingDlgProc, 77);
    EXPECT_EQ(found, 6);
    EXPECT_FALSE(bVisible);
    EXPECT_EQ(parameter, 77);

    char text[64] = "";
    GetWindowTextA(dialog, text, sizeof text);
    EXPECT_STREQ(text, "Options...");
    EXPECT_EQ(TextOf(dialog, 1079), "Just Go, Baybeee");
    EXPECT_EQ(GetDlgItem(dialog, 4711), nullptr);
    EXPECT_EQ(Order({dialog, GetDlgItem(dialog, 1)}), std::vector{dialog})
        << "a control is no window of the desktop";
    EXPECT_TRUE(DestroyWindow(dialog));
    EXPECT_EQ(CreateDialogParamA(Instance(), MAKEINTRESOURCEA(4711), nullptr, nullptr, 0), nullptr);
}

TEST_F(Dialogs, ControlsAreAsTheTemplateHasThem) {
    const HWND dialog = ShowTemplate(101);
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, 1000)));
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialog, 1022))) << "its line says NOT WS_VISIBLE";
    EXPECT_EQ(GetWindowLongPtrA(GetDlgItem(dialog, 1022), GWLP_ID), 1022);
    EXPECT_EQ(GetParent(GetDlgItem(dialog, 1022)), dialog);
    const HWND region = OpenTemplate(108);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(region, 3)));
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(region, 2)));
}

TEST_F(Dialogs, TheEndOfADialogHidesItAndTheFocusLeavesItsControlFirst) {
    const HWND owner = OpenOwn({300, 300, 500, 400}, WS_POPUP | WS_VISIBLE);
    const HWND dialog = OpenTemplate(101, owner);
    ShowWindow(dialog, SW_SHOW);
    SetFocus(GetDlgItem(dialog, 1001));
    Handle(50);
    News.clear();
    EXPECT_TRUE(EndDialog(dialog, 2));
    EXPECT_EQ(NewsOf(1001), (Commands{
                                {WM_COMMAND, 1001, EN_KILLFOCUS}
    }));
    EXPECT_TRUE(IsWindow(dialog));
    EXPECT_FALSE(IsWindowVisible(dialog));
    EXPECT_EQ(GetForegroundWindow(), owner);
    EXPECT_FALSE(EndDialog(nullptr, 0));
}

TEST_F(Dialogs, WhatAWindowOwnsGoesWithItUnlessItWasHandedOver) {
    const HWND first = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    const HWND second = OpenTemplate(101, first);
    const HWND stays = OpenTemplate(107, second);
    const HWND goes = OpenTemplate(106, second);
    const auto owner = [](HWND window) {
        return reinterpret_cast<HWND>(GetWindowLongPtrA(window, GWLP_HWNDPARENT));
    };
    EXPECT_EQ(owner(stays), second);
    EXPECT_EQ(GetParent(stays), second);
    SetWindowLongPtrA(stays, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(first));
    EXPECT_EQ(owner(stays), first);

    EXPECT_TRUE(DestroyWindow(second));
    EXPECT_FALSE(IsWindow(goes));
    EXPECT_TRUE(IsWindow(stays));
    EXPECT_TRUE(DestroyWindow(first));
    EXPECT_FALSE(IsWindow(stays));
}

TEST_F(Dialogs, AChildHearsOfTheEndAfterItsParentAndIsGoneBeforeIt) {
    const HWND parent = OpenOwn({100, 100, 300, 300}, WS_POPUP);
    const HWND child = CreateWindowExA(0, "Contract", "", WS_CHILD | WS_VISIBLE, 10, 20, 15, 21, parent,
                                       reinterpret_cast<HMENU>(UINT_PTR{54321}), Instance(), nullptr);
    EXPECT_EQ(PlaceOf(child), Rect(110, 120, 125, 141)) << "it counts from its parent";
    EXPECT_EQ(GetWindowLongPtrA(child, GWLP_ID), 54321);
    EXPECT_FALSE(IsWindowVisible(child));
    MoveWindow(parent, 200, 100, 200, 200, FALSE);
    EXPECT_EQ(PlaceOf(child), Rect(210, 120, 225, 141));
    MoveWindow(child, 0, 0, 5, 5, FALSE);
    EXPECT_EQ(PlaceOf(child), Rect(200, 100, 205, 105));

    EXPECT_EQ(SetWindowLongPtrA(child, GWLP_USERDATA, 42), 0);
    EXPECT_EQ(GetWindowLongPtrA(child, GWLP_USERDATA), 42);
    EXPECT_EQ(SetWindowLongPtrA(child, GWLP_USERDATA, 0), 42);

    Seen.clear();
    DestroyWindow(parent);
    std::vector<std::pair<HWND, UINT>> ends;
    for (const MSG& arrived : Seen)
        if (arrived.message == WM_DESTROY || arrived.message == WM_NCDESTROY)
            ends.emplace_back(arrived.hwnd, arrived.message);
    EXPECT_EQ(ends,
              (std::vector<std::pair<HWND, UINT>>{
                  {parent, WM_DESTROY  },
                  {child,  WM_DESTROY  },
                  {child,  WM_NCDESTROY},
                  {parent, WM_NCDESTROY}
    }));
    EXPECT_EQ(CreateWindowExA(0, "Contract", "", WS_CHILD, 0, 0, 5, 5, nullptr, nullptr, Instance(), nullptr),
              nullptr);
}

TEST_F(Dialogs, AClassIsKnownOnceItIsRegistered) {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    EXPECT_FALSE(GetClassInfoExA(Instance(), "Contract child", &description));
    description.lpfnWndProc = DefWindowProcA;
    description.style = CS_OWNDC;
    description.hInstance = Instance();
    description.lpszClassName = "Contract child";
    EXPECT_NE(RegisterClassExA(&description), 0);
    WNDCLASSEXA found{};
    found.cbSize = sizeof found;
    EXPECT_TRUE(GetClassInfoExA(Instance(), "contract CHILD", &found));
    EXPECT_EQ(found.style, CS_OWNDC);
    EXPECT_EQ(RegisterClassExA(&description), 0);
    EXPECT_EQ(GetLastError(), ERROR_CLASS_ALREADY_EXISTS);
}

TEST_F(Dialogs, AChildIsFoundUnderAPointAlsoWhenItIsHiddenOrDisabled) {
    const HWND dialog = ShowTemplate(108);
    const HWND swatch = GetDlgItem(dialog, 1040);
    POINT point{PlaceOf(swatch).left + 1, PlaceOf(swatch).top + 1};
    EXPECT_TRUE(ScreenToClient(dialog, &point));
    EXPECT_EQ(ChildWindowFromPoint(dialog, point), swatch);
    ShowWindow(swatch, SW_HIDE);
    EXPECT_EQ(ChildWindowFromPoint(dialog, point), swatch);
    EXPECT_EQ(ChildWindowFromPoint(dialog, {1, 1}), dialog);
    EXPECT_EQ(ChildWindowFromPoint(dialog, {-1, 1}), nullptr);
}

TEST_F(Dialogs, NumbersAreReadInThirtyTwoBitsAndAreZeroWhenTheyAreNone) {
    const HWND dialog = OpenTemplate(101);
    const struct {
        const char* text;
        UINT number;
        BOOL bRead;
    } cases[] = {
        {"768",         768,         TRUE },
        {"2147483648",  2147483648U, TRUE },
        {"4294967295",  4294967295U, TRUE },
        {"",            0,           FALSE},
        {"99999999999", 0,           FALSE},
    };
    for (const auto& row : cases) {
        BOOL bRead = -1;
        EXPECT_TRUE(SetDlgItemTextA(dialog, 1000, row.text));
        EXPECT_EQ(GetDlgItemInt(dialog, 1000, &bRead, FALSE), row.number) << row.text;
        EXPECT_EQ(bRead, row.bRead) << row.text;
    }
    EXPECT_EQ(GetDlgItemInt(dialog, 4711, nullptr, FALSE), 0u);

    EXPECT_TRUE(SetDlgItemInt(dialog, 1001, static_cast<UINT>(-5), FALSE));
    EXPECT_EQ(TextOf(dialog, 1001), "4294967291");
    SetDlgItemInt(dialog, 1001, static_cast<UINT>(-5), TRUE);
    EXPECT_EQ(TextOf(dialog, 1001), "-5");
}

TEST_F(Dialogs, TextsAreCutAtTheLimit) {
    const HWND dialog = OpenTemplate(108);
    SetDlgItemTextA(dialog, 1025, "a-long-name");
    char text[32] = "";
    EXPECT_EQ(GetDlgItemTextA(dialog, 1025, text, 7), 6u);
    EXPECT_STREQ(text, "a-long");
    EXPECT_EQ(SendMessageA(GetDlgItem(dialog, 1025), WM_GETTEXTLENGTH, 0, 0), 11);
    EXPECT_EQ(GetDlgItemTextA(dialog, 4711, text, 7), 0u);
    EXPECT_TRUE(SetWindowTextA(dialog, "Find Region..."));
    GetWindowTextA(dialog, text, sizeof text);
    EXPECT_STREQ(text, "Find Region...");
}

TEST_F(Dialogs, KeysOfADialogAreTakenAndThoseOfOthersLeft) {
    const HWND dialog = ShowTemplate(108);
    const HWND own = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    const HWND name = GetDlgItem(dialog, 1025);
    EXPECT_FALSE(Offer(nullptr, name, WM_KEYDOWN, VK_RETURN));
    EXPECT_FALSE(Offer(dialog, own, WM_KEYDOWN, VK_RETURN));
    EXPECT_FALSE(Offer(dialog, nullptr, WM_KEYDOWN, VK_RETURN));
    SetFocus(name);
    News.clear();

    EXPECT_TRUE(Offer(dialog, name, WM_KEYDOWN, VK_ESCAPE));
    EXPECT_TRUE(Offer(dialog, name, WM_KEYDOWN, VK_RETURN));
    EXPECT_EQ(News, (Commands{
                        {WM_COMMAND, 2, BN_CLICKED},
                        {WM_COMMAND, 1, BN_CLICKED}
    }));
    EXPECT_TRUE(Offer(dialog, name, WM_KEYDOWN, VK_TAB));
    News.clear();
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 1), WM_KEYDOWN, VK_TAB));
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 2), WM_KEYDOWN, VK_RETURN));
    EXPECT_EQ(News, (Commands{
                        {WM_COMMAND, 2, BN_CLICKED}
    }))
        << "Enter presses the button that has the focus";
    News.clear();
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 2), WM_KEYDOWN, VK_TAB))
        << "past the disabled one, round the end";
    EXPECT_FALSE(NewsOf(1025).empty());
    EXPECT_TRUE(Offer(dialog, name, WM_NULL, 0)) << "whatever is for a control is taken, and done";
}

TEST_F(Dialogs, ADisabledButtonIsNotPressedByAKeyAndANumberWithoutButtonIsToldAllTheSame) {
    const HWND find = ShowTemplate(117); // without default button and without a number 2
    EXPECT_TRUE(Offer(find, GetDlgItem(find, 1041), WM_KEYDOWN, VK_RETURN));
    EXPECT_TRUE(Offer(find, GetDlgItem(find, 1041), WM_KEYDOWN, VK_ESCAPE));
    EXPECT_EQ(News, (Commands{
                        {WM_COMMAND, 1, BN_CLICKED},
                        {WM_COMMAND, 2, BN_CLICKED}
    }));
    EnableWindow(GetDlgItem(find, 1), FALSE);
    News.clear();
    EXPECT_TRUE(Offer(find, GetDlgItem(find, 1041), WM_KEYDOWN, VK_RETURN));
    EXPECT_EQ(News, Commands{});
}

TEST_F(Dialogs, ClosingMeansCancel) {
    const HWND dialog = ShowTemplate(113);
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    Handle(20);
    EXPECT_EQ(NewsOf(2), (Commands{
                             {WM_COMMAND, 2, BN_CLICKED}
    }));
    EXPECT_TRUE(IsWindowVisible(dialog));
}

TEST_F(Dialogs, ADialogWithAFrameSaysItsLeastSizeAndHearsOfItsSize) {
    POINT size{};
    DialogReplies[WM_GETMINMAXINFO] = [](const MSG& arrived) {
        reinterpret_cast<MINMAXINFO*>(arrived.lParam)->ptMinTrackSize = {400, 200};
        return 0;
    };
    DialogReplies[WM_SIZE] = [&size](const MSG& arrived) {
        size = {LOWORD(static_cast<DWORD_PTR>(arrived.lParam)),
                HIWORD(static_cast<DWORD_PTR>(arrived.lParam))};
        return 0;
    };
    const HWND dialog = ShowTemplate(106);
    MoveWindow(dialog, 0, 0, 10, 10, TRUE);
    EXPECT_EQ(PlaceOf(dialog), Rect(0, 0, 400, 200));
    RECT client;
    GetClientRect(dialog, &client);
    EXPECT_EQ(Rect(0, 0, size.x, size.y), client);
}

} // namespace

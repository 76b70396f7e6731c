// A day with Quorl, made of bytes.
#include "lives/life.h"

#include "actions/dispatch.h"
#include "core/main.h"
#include "dialogs/registry.h"
#include "menus/menu_list.h"
#include "mouse/hook_mouse.h"
#include "regions/region_table.h"
#include "scroll/scroll_view.h"
#include "scroll/window_table.h"
#include "settings/ini.h"
#include "support/map_mouse.h"

#include <algorithm>

namespace {

// Bytes that are read up give 0. What is read in one statement is read from left to right only in braces.
struct Day {
    const char* next;
    const char* end;

    int Byte() { return next < end ? static_cast<unsigned char>(*next++) : 0; }
    std::size_t Place(std::size_t count) { return static_cast<std::size_t>(Byte()) % count; }
    int Below(int limit) {
        const int high = Byte();
        return (high * 256 + Byte()) % limit;
    }
    template <typename Item>
    Item OneOf(std::initializer_list<Item> items) {
        return items.begin()[Place(items.size())];
    }
};

constexpr std::size_t MANY = 40; // boxes that the user answers at most before anything else happens

int Faults;               // calls that were made to fail
std::vector<HWND> Others; // windows of other programs, dead ones too

DeskWindow& SomeOther(Day& day) {
    if (Others.empty())
        Others.push_back(OpenWindow("first", {100, 100, 400, 300}));
    return RowOf(Others[day.Place(Others.size())]);
}

RECT SomePlace(Day& day) {
    const int left = day.Below(6000) - 1000;
    const int top = day.Below(3000) - 500;
    return {left, top, left + day.Below(1400), top + day.Below(1000)};
}

void AnswerAll(int answer) {
    Desk.answers.assign(MANY, answer);
    Desk.colorAnswers.assign(2, RGB(answer, 20, 30));
}

void RunRow(Day& day) {
    const int row = day.Byte() % (NUM_ACTIONS + 1);
    if (row != ROW_LOCK_WORK_STATION)
        Command(row);
}

void JumpToRegion(Day& day) {
    Command(FIRST_REGION_ID + day.Byte() - 5);
}

// What the menu does not hold is a choice of nothing.
void ChooseFromMenu(Day& day) {
    const int before = Desk.surprises;
    const int choice = day.Byte() % 2 ? day.Byte() % NUM_ACTIONS : FIRST_REGION_ID + day.Byte();
    Desk.choices = {static_cast<UINT>(choice)};
    Command(0);
    Desk.surprises = before;
}

void MoveTheMouse(Day& day) {
    const int held = day.OneOf({0, VK_LBUTTON, VK_RBUTTON, VK_MBUTTON});
    HoldKey(held, 1);
    const POINT at{day.Below(1024), day.Below(768)};
    MoveMouse(at.x, at.y);
    if (day.Byte() % 2)
        MoveMouse(day.Byte() % 2 ? 0 : ScreenW() - 1, Desk.cursor.y);
    const UINT news =
        day.OneOf<UINT>({WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_LBUTTONUP});
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, news, 0);
    Settle();
    HoldKey(held, 0);
}

void WorkOnTheMap(Day& day) {
    const auto keys = {VK_LSHIFT, VK_LCONTROL, VK_LMENU, VK_RSHIFT};
    int held = day.Byte();
    for (const int key : keys) {
        HoldKey(key, held & 1);
        held >>= 1;
    }
    const int button = day.OneOf({VK_LBUTTON, VK_RBUTTON, VK_MBUTTON});
    const auto move = [&day](int x) { MoveOnMap(x, day.Byte() - 20); };
    move(day.Byte() - 20);
    PressOnMap(button);
    for (int steps = day.Byte() % 3; steps > 0; --steps)
        move(day.Byte() - 20);
    ReleaseOnMap(button);
    for (const int key : keys)
        HoldKey(key, 0);
}

void OpenOther(Day& day) {
    if (Others.size() >= MANY)
        return;
    const auto* title = day.OneOf({"editor", "", "a|b & c", "a title that is longer than a region's name"});
    const RECT place = SomePlace(day);
    const auto* kind = day.OneOf({"Program", "SysListView32", "Shell_TrayWnd", "BaseBar"});
    Others.push_back(OpenWindow(title, place, kind));
}

void ChangeOther(Day& day) {
    if (DeskWindow& window = SomeOther(day); window.handle)
        window.place = SomePlace(day);
}

void HangOther(Day& day) {
    DeskWindow& window = SomeOther(day);
    window.answer = static_cast<DeskAnswer>(day.Byte() % 5);
    window.error = day.OneOf<DWORD>({0, ERROR_TIMEOUT, ERROR_ACCESS_DENIED});
    window.bRewrites = day.Byte() % 8 == 0;
    window.rewritten = SomePlace(day);
    window.diesAtCall = day.Byte() % 8 == 0 ? day.Byte() : 0;
}

void EndOther(Day& day) {
    if (const HWND window = SomeOther(day).handle)
        KillWindow(window);
}

void ShowOther(Day& day) {
    if (const HWND window = SomeOther(day).handle)
        ShowWindow(window, day.OneOf({SW_HIDE, SW_SHOW, SW_MINIMIZE, SW_MAXIMIZE, SW_RESTORE}));
}

void GoToOther(Day& day) {
    if (const HWND window = SomeOther(day).handle)
        SetForegroundWindow(window);
}

void ChangeDisplays(Day& day) {
    const int width = day.OneOf({1024, 640, 1920, 3840});
    Desk.monitors = {Rect(0, 0, width, width < 1900 ? width * 3 / 4 : width * 9 / 16)};
    if (day.Byte() % 4 == 0)
        Desk.monitors.push_back({width, 0, width + 800, 600});
    SendMessageA(MainWnd, WM_SETTINGCHANGE, 0, 0);
}

void LetTimePass(Day& day) {
    Wait(static_cast<DWORD>(day.Byte()) * 20);
}

void HaveACallFail(Day& day) {
    ++Faults;
    Desk.fault = {"", day.Byte() + 1, 0, 87, 0};
}

void WorkInADialog(Day& day) {
    const HWND dialog = DialogSlots[day.Byte() % NUM_DIALOGS].handle;
    if (!dialog || !RowOf(dialog).handle || RowOf(dialog).children.empty())
        return;
    const std::vector<HWND>& children = RowOf(dialog).children;
    const HWND control = children[day.Place(children.size())];
    const std::string& kind = RowOf(control).className;
    const DeskControl& kept = RowOf(control).control;
    const int rows = std::max(static_cast<int>(kept.rows.size()), kept.count);
    if (kind == "Button" || kind == "BUTTON")
        ClickControl(control);
    else if (kind == "Edit" || kind == "EDIT")
        TypeInto(control, day.OneOf({"", "0", "7", "4096", "99999999999", "name|with & bar"}));
    else if (rows > 0)
        ChooseRow(control, day.Byte() % rows);
    Settle();
}

void EditTheFile(Day& day) {
    const auto* key =
        day.OneOf({"Quorl.right", "border", "num_regions", "quorl_menu_count", "quorl_menu", "Region0",
                   "Action28", "minscroll", "quorl_pos.left", "delay", "alpha", "mousescroll_type"});
    const auto* value = day.OneOf({"0", "-1", "2147483647", "-2147483648", "99999999999999", "1|2|3|4|5",
                                   "|||||", "x|1|2|3|4|5", "200", "500", "-1|-1|6|39|0", "\"  a\""});
    WritePrivateProfileStringA(SETTINGS_SECTION, key, value, SETTINGS_FILE);
}

void PressAKey(Day& day) {
    PressKey(day.OneOf({VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE, VK_LEFT, VK_DOWN}));
    Settle();
}

// What is done often stands here often.
const auto Acts = {
    RunRow,        RunRow,        RunRow,        JumpToRegion,   ChooseFromMenu, MoveTheMouse,
    WorkOnTheMap,  WorkOnTheMap,  OpenOther,     OpenOther,      ChangeOther,    HangOther,
    EndOther,      ShowOther,     GoToOther,     ChangeDisplays, LetTimePass,    LetTimePass,
    HaveACallFail, WorkInADialog, WorkInADialog, WorkInADialog,  EditTheFile,    PressAKey,
};

void ExpectTablesWhole() {
    EXPECT_TRUE(num_windows >= 0 && num_windows <= MAX_WINDOWS) << num_windows;
    EXPECT_TRUE(num_regions >= 0 && num_regions <= MAX_REGIONS) << num_regions;
    EXPECT_TRUE(quorl_menu_count >= 0 && quorl_menu_count <= MAX_MENU_ENTRIES) << quorl_menu_count;
    EXPECT_TRUE(Quorl.right >= ScreenW() && Quorl.bottom >= ScreenH()) << Quorl.right << "x" << Quorl.bottom;
    EXPECT_TRUE(LiveContexts() == 0 || Faults) << "its release may have failed";
}

void ExpectScrollsStayInside() {
    for (const int corner : {-5000, 60000, 300, 0}) {
        ScrollView(MainWnd, corner, corner, SV_ABSOLUTE, 0);
        EXPECT_TRUE(VDesk.left >= 0 && VDesk.top >= 0 && VDesk.right <= Quorl.right &&
                    VDesk.bottom <= Quorl.bottom)
            << testing::PrintToString(VDesk) << " on " << testing::PrintToString(Quorl);
    }
}

// A negative place of the map is read as none.
void ExpectSavedIsLoaded() {
    MoveWindow(MainWnd, 100, 100, 200, 100, TRUE);
    Command(47);
    const std::string saved = Desk.files[SETTINGS_FILE];
    Command(48);
    Command(47);
    EXPECT_EQ(Desk.files[SETTINGS_FILE], saved);
}

void ExpectAllGivenBack() {
    std::vector<HWND> windows; // FoldWindows walks those that are managed when the user says Yes
    std::copy_if(Others.begin(), Others.end(), std::back_inserter(windows), [](HWND window) {
        const DeskWindow& row = RowOf(window);
        return row.answer == DeskAnswer::Answers && !row.bRewrites && !row.diesAtCall &&
               IsManagedWindow(window);
    });
    AnswerAll(IDYES);
    Command(59);
    EXPECT_TRUE(bQuitting);
    ShutDown();
    for (const HWND window : windows) {
        const RECT place = PlaceOf(window);
        EXPECT_TRUE(place.left >= 0 && place.left < ScreenW() && place.top >= 0 && place.top < ScreenH())
            << testing::PrintToString(place);
    }
    EXPECT_TRUE(Desk.tray.empty());
    for (const DeskHotkey& hotkey : Desk.hotkeys) // those of regions go with the process
        EXPECT_TRUE(hotkey.window != MainWnd || hotkey.id >= FIRST_REGION_ID);
    for (const DeskMenu& menu : Desk.menus)
        EXPECT_TRUE(!menu.bLive || Faults);
    EXPECT_EQ(Hook.set, (std::vector<int>{1, 0}));
    EXPECT_TRUE(Desk.deletedInUse == 0 || Faults) << "while it was selected";
}

} // namespace

void Live(std::string_view bytes) {
    Day day{bytes.data(), bytes.data() + bytes.size()};
    PrepareDesk();
    AnswerAll(IDOK);
    StartQuorl();
    while (day.next < day.end && !testing::Test::HasFailure()) {
        const std::size_t act = day.Place(Acts.size());
        SCOPED_TRACE(act);
        AnswerAll(IDNO);
        Desk.choices.assign(MANY, 0);
        Acts.begin()[act](day);
        ExpectTablesWhole();
    }
    Desk.fault = {};
    // A change of display counts from the next move of the mouse.
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
    Settle();
    ExpectScrollsStayInside();
    ExpectSavedIsLoaded();
    ExpectAllGivenBack();
}

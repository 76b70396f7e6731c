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
#include "support/quorl_test.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

// Bytes that are read up give 0.
struct Day {
    const std::uint8_t* next;
    const std::uint8_t* end;

    int Byte() { return next < end ? *next++ : 0; }
    int Below(int limit) { return (Byte() * 256 + Byte()) % limit; }
    template <typename Item, std::size_t COUNT>
    const Item& OneOf(const Item (&items)[COUNT]) {
        return items[static_cast<std::size_t>(Byte()) % COUNT];
    }
    bool IsOver() const { return next >= end; }
};

constexpr int QUIT_ROW = 59;
constexpr int LOCK_STATION_ROW = 84;
constexpr std::size_t MANY = 40; // boxes that the user answers at most before anything else happens

const char INI[] = "quorl.ini";

int Faults;               // calls that were made to fail
std::vector<HWND> Others; // windows of other programs, dead ones too

HWND SomeOther(Day& day) {
    if (Others.empty())
        Others.push_back(OpenWindow("first", {100, 100, 400, 300}));
    return Others[static_cast<std::size_t>(day.Byte()) % Others.size()];
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
    if (row != LOCK_STATION_ROW)
        Command(row);
}

void JumpToRegion(Day& day) {
    Command(FIRST_REGION_ID + day.Byte() - 5);
}

// What the menu does not hold is a choice of nothing.
void ChooseFromMenu(Day& day) {
    const int before = Desk.surprises;
    Desk.choices = {
        static_cast<UINT>(day.Byte() % 2 ? day.Byte() % NUM_ACTIONS : FIRST_REGION_ID + day.Byte())};
    Command(0);
    Desk.surprises = before;
}

void MoveTheMouse(Day& day) {
    static const int buttons[] = {0, VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
    static const UINT news[] = {WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_LBUTTONUP};
    const int held = day.OneOf(buttons);
    HoldKey(held, 1);
    MoveMouse(day.Below(1024), day.Below(768));
    if (day.Byte() % 2)
        MoveMouse(day.Byte() % 2 ? 0 : ScreenW() - 1, Desk.cursor.y);
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, day.OneOf(news), 0);
    Settle();
    HoldKey(held, 0);
}

void WorkOnTheMap(Day& day) {
    static const int buttons[] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
    static const int keys[] = {VK_LSHIFT, VK_LCONTROL, VK_LMENU, VK_RSHIFT};
    const int held = day.Byte();
    for (std::size_t key = 0; key < std::size(keys); ++key)
        HoldKey(keys[key], held >> key & 1);
    const int button = day.OneOf(buttons);
    MoveOnMap(day.Byte() - 20, day.Byte() - 20);
    PressOnMap(button);
    for (int steps = day.Byte() % 3; steps > 0; --steps)
        MoveOnMap(day.Byte() - 20, day.Byte() - 20);
    ReleaseOnMap(button);
    for (const int key : keys)
        HoldKey(key, 0);
}

void OpenOther(Day& day) {
    static const char* const classes[] = {"Program", "SysListView32", "Shell_TrayWnd", "BaseBar"};
    static const char* const titles[] = {"editor", "", "a|b & c",
                                         "a title that is longer than a region's name"};
    if (Others.size() < MANY)
        Others.push_back(OpenWindow(day.OneOf(titles), SomePlace(day), day.OneOf(classes)));
}

void ChangeOther(Day& day) {
    DeskWindow& window = RowOf(SomeOther(day));
    if (window.handle)
        window.place = SomePlace(day);
}

void HangOther(Day& day) {
    static const DWORD errors[] = {0, ERROR_TIMEOUT, ERROR_ACCESS_DENIED};
    DeskWindow& window = RowOf(SomeOther(day));
    window.answer = static_cast<DeskAnswer>(day.Byte() % 5);
    window.error = day.OneOf(errors);
    window.bRewrites = day.Byte() % 8 == 0;
    window.rewritten = SomePlace(day);
    window.diesAtCall = day.Byte() % 8 == 0 ? day.Byte() : 0;
}

void EndOther(Day& day) {
    const HWND window = SomeOther(day);
    if (RowOf(window).handle)
        KillWindow(window);
}

void ShowOther(Day& day) {
    static const int ways[] = {SW_HIDE, SW_SHOW, SW_MINIMIZE, SW_MAXIMIZE, SW_RESTORE};
    const HWND window = SomeOther(day);
    if (RowOf(window).handle)
        ShowWindow(window, day.OneOf(ways));
}

void GoToOther(Day& day) {
    const HWND window = SomeOther(day);
    if (RowOf(window).handle)
        SetForegroundWindow(window);
}

void ChangeDisplays(Day& day) {
    static const RECT screens[] = {Rect(0, 0, 1024, 768), Rect(0, 0, 640, 480), Rect(0, 0, 1920, 1080),
                                   Rect(0, 0, 3840, 2160)};
    const RECT screen = day.OneOf(screens);
    Desk.monitors.assign(1, screen);
    if (day.Byte() % 4 == 0)
        Desk.monitors.push_back({screen.right, 0, screen.right + 800, 600});
    SendMessageA(MainWnd, WM_SETTINGCHANGE, 0, 0);
}

void LetTimePass(Day& day) {
    Wait(static_cast<DWORD>(day.Byte()) * 20);
}

void HaveACallFail(Day& day) {
    ++Faults;
    Desk.fault = {"", day.Byte() + 1, 0, 87, 0};
}

HWND SomeDialog(Day& day) {
    const HWND dialog = DialogSlots[day.Byte() % NUM_DIALOGS].handle;
    return dialog && RowOf(dialog).handle ? dialog : nullptr;
}

void WorkInADialog(Day& day) {
    static const char* const texts[] = {"", "0", "7", "4096", "99999999999", "name|with & bar"};
    const HWND dialog = SomeDialog(day);
    if (!dialog || RowOf(dialog).children.empty())
        return;
    const std::vector<HWND>& children = RowOf(dialog).children;
    const HWND control = children[static_cast<std::size_t>(day.Byte()) % children.size()];
    const std::string& kind = RowOf(control).className;
    const DeskControl& kept = RowOf(control).control;
    const int rows = std::max(static_cast<int>(kept.rows.size()), kept.count);
    if (kind == "Button" || kind == "BUTTON")
        ClickControl(control);
    else if (kind == "Edit" || kind == "EDIT")
        TypeInto(control, day.OneOf(texts));
    else if (rows > 0)
        ChooseRow(control, day.Byte() % rows);
    Settle();
}

void EditTheFile(Day& day) {
    static const char* const keys[] = {"Quorl.right",    "border",  "num_regions", "quorl_menu_count",
                                       "quorl_menu",     "Region0", "Action28",    "minscroll",
                                       "quorl_pos.left", "delay",   "alpha",       "mousescroll_type"};
    static const char* const values[] = {
        "0",     "-1",          "2147483647", "-2147483648", "99999999999999", "1|2|3|4|5",
        "|||||", "x|1|2|3|4|5", "200",        "500",         "-1|-1|6|39|0",   "\"  a\""};
    WritePrivateProfileStringA("Quorl", day.OneOf(keys), day.OneOf(values), INI);
}

void PressAKey(Day& day) {
    static const int keys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE, VK_LEFT, VK_DOWN};
    PressKey(day.OneOf(keys));
    Settle();
}

const struct Act {
    const char* name;
    void (*does)(Day& day);
} Acts[] = {
    {"row",      RunRow        },
    {"row",      RunRow        },
    {"row",      RunRow        },
    {"region",   JumpToRegion  },
    {"menu",     ChooseFromMenu},
    {"mouse",    MoveTheMouse  },
    {"map",      WorkOnTheMap  },
    {"map",      WorkOnTheMap  },
    {"open",     OpenOther     },
    {"open",     OpenOther     },
    {"change",   ChangeOther   },
    {"hang",     HangOther     },
    {"end",      EndOther      },
    {"show",     ShowOther     },
    {"go to",    GoToOther     },
    {"displays", ChangeDisplays},
    {"time",     LetTimePass   },
    {"time",     LetTimePass   },
    {"fault",    HaveACallFail },
    {"dialog",   WorkInADialog },
    {"dialog",   WorkInADialog },
    {"dialog",   WorkInADialog },
    {"file",     EditTheFile   },
    {"key",      PressAKey     },
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
    const std::string saved = Desk.files[INI];
    Command(48);
    Command(47);
    EXPECT_EQ(Desk.files[INI], saved);
}

bool Answers(const DeskWindow& window) {
    return window.handle && window.answer == DeskAnswer::Answers && !window.bRewrites && !window.diesAtCall;
}

void ExpectAllGivenBack() {
    std::vector<HWND> windows; // FoldWindows walks those that are managed when the user says Yes
    for (const HWND window : Others)
        if (Answers(RowOf(window)) && IsManagedWindow(window))
            windows.push_back(window);
    AnswerAll(IDYES);
    Command(QUIT_ROW);
    EXPECT_TRUE(bQuitting);
    ShutDown();
    for (const HWND window : windows) {
        const RECT place = PlaceOf(window);
        EXPECT_TRUE(place.left >= 0 && place.left < ScreenW() && place.top >= 0 && place.top < ScreenH())
            << testing::PrintToString(place);
    }
    EXPECT_TRUE(Desk.tray.empty());
    for (const DeskHotkey& hotkey : Desk.hotkeys) // those of regions go with the process
        EXPECT_TRUE(hotkey.window != MainWnd || hotkey.id >= FIRST_REGION_ID) << hotkey.id;
    EXPECT_TRUE(Faults || std::none_of(Desk.menus.begin(), Desk.menus.end(),
                                       [](const DeskMenu& menu) { return menu.bLive; }));
    EXPECT_EQ(Hook.set, (std::vector<int>{1, 0}));
    EXPECT_TRUE(Desk.deletedInUse == 0 || Faults) << "while it was selected";
}

} // namespace

void Live(const std::uint8_t* bytes, std::size_t count) {
    Day day{bytes, bytes + count};
    std::string told;
    AnswerAll(IDOK);
    StartQuorl();
    while (!day.IsOver() && !testing::Test::HasFailure()) {
        const Act& act = day.OneOf(Acts);
        told += act.name;
        told += ' ';
        AnswerAll(IDNO);
        Desk.choices.assign(MANY, 0);
        act.does(day);
        ExpectTablesWhole();
    }
    Desk.fault = {};
    // A change of display counts from the next move of the mouse.
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
    Settle();
    ExpectScrollsStayInside();
    ExpectSavedIsLoaded();
    ExpectAllGivenBack();
    if (testing::Test::HasFailure())
        std::printf("The day: %s\n", told.c_str());
}

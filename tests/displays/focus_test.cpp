// Quorl takes the focus from no program that the user works with.
#include "displays/display_test.h"

#include "hook/hook_message.h"
#include "menus/menu_list.h"
#include "scroll/scroll_view.h"

class Focus : public ModernDesktop {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});

    void SetUp() override {
        Desk.foreground = editor;
        ModernDesktop::SetUp();
    }

    // Chooses an action from the menu that the tray icon opens.
    static void Choose(int id) {
        if (FindMenuEntry(id) < 0)
            InsertMenuEntry(-1, id);
        Desk.menuChoices = {static_cast<UINT>(id)};
        SendMessageA(MainWnd, 1125, 0, WM_RBUTTONDOWN);
        HandleMessages();
    }
};

TEST_F(Focus, StaysWhereItIsAtStartWhileScrollingAndOnTheMap) {
    EXPECT_EQ(Desk.foreground, editor);
    EXPECT_TRUE(WindowOf(MainWnd).style & WS_VISIBLE);
    Wait(2000);
    ShowWindow(other, SW_HIDE);
    Desk.clicksActivate = true;
    for (const HWND window : {editor, OpenAndList("maximized", {600, 100, 900, 400})})
        WindowOf(window).style |= WS_MAXIMIZE;
    for (const ActionId id :
         {ACTION_RESTORE_MAXIMIZED, ACTION_SCREEN_RIGHT, ACTION_SHOW_TOOLWIN, ACTION_SHOW_TOOLWIN})
        RunAction(id);
    MoveOnMap(10, 10);
    PressOnMap(VK_LBUTTON);
    ReleaseOnMap(VK_LBUTTON);
    EXPECT_EQ(Desk.foreground, editor);
}

// Windows denies the foreground to the map, because another program received the last input.
TEST_F(Focus, AWindowLeftBehindByAnEdgeScrollIsNotFollowed) {
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
    Desk.foregroundLock = true;
    Wait(200);
    WindowOf(editor).rect = {-57, 100, 343, 400}; // the scroll moves it onto the desktop as well
    ScrollView(MainWnd, 1920, 0, SV_ABSOLUTE, 0);
    for (const HWND active : {editor, HWND{}, editor}) {
        Desk.foreground = active;
        Wait(200);
    }
    EXPECT_EQ(ViewCorner(), (POINT{1920, 0}));
    EXPECT_TRUE(Desk.foreground == editor);
    WindowOf(other).rect = {600, 100, 900, 400}; // in view, so the view stays where it is
    Desk.foreground = other;
    Wait(100);
    Desk.foreground = editor;
    Wait(100);
    EXPECT_NE(ViewCorner(), (POINT{1920, 0})) << "another one was active";
    ScrollView(MainWnd, 1920, 0, SV_ABSOLUTE, 0);
    Wait(200);
    WindowOf(editor).rect = Moved(RectOf(editor), 5, 0);
    Wait(100);
    EXPECT_NE(ViewCorner(), (POINT{1920, 0})) << "it moved";
}

TEST_F(Focus, AScrollToAWindowGivesItTheForegroundAndNothingElse) {
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
    Wait(200);
    WindowOf(editor).rect = {3000, 100, 3400, 400};
    Desk.trace.clear();
    WindowOf(editor).response = DeskResponse::Hung;
    RunAction(ACTION_VIEW_TO_ACTIVE);
    EXPECT_EQ(CountCalls("SetForegroundWindow"), 1) << "not to the map in between";
    EXPECT_EQ(CountCalls("BringWindowToTop") + CountCalls("SetFocus") + CountCalls("SetActiveWindow"), 0);
    EXPECT_EQ(Desk.foreground, editor);
    WindowOf(editor).response = DeskResponse::Responds;
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 0;
    RunAction(ACTION_TOGGLE_TOPMOST);
    EXPECT_EQ(Desk.foreground, editor) << "hiding it gave the foreground away";
}

TEST_F(Focus, CommandsFromTheMenuAndTheMapActOnTheWindowBefore) {
    Choose(ACTION_ACTIVE_TO_RIGHT);
    EXPECT_EQ(VisibleRect(editor).right, 1920);
    EXPECT_EQ(Desk.foreground, editor);
    Choose(0);
    EXPECT_EQ(Desk.foreground, editor) << "nothing was chosen";
    Choose(ACTION_OPTIONS);
    EXPECT_NE(Desk.foreground, editor) << "the dialog has it";
    Desk.foreground = editor;
    Wait(100);
    Desk.foreground = OpenWindow("", {0, 1040, 1920, 1080}, "Shell_TrayWnd");
    Wait(100);
    MoveWindow(MainWnd, 1000, 700, 200, 100, TRUE); // the dialog is above it
    BindMouse(ACTION_ACTIVE_TO_BOTTOM, KEY_CTRL, MBUTTON);
    HoldKey(VK_LCONTROL, true);
    MoveOnMap(10, 10);
    PressOnMap(VK_MBUTTON);
    EXPECT_EQ(VisibleRect(editor).bottom, 1080);
    KillWindow(editor);
    Choose(ACTION_ACTIVE_TO_LEFT);
    EXPECT_EQ(RectOf(other).left, 600) << "no window is meant";
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
    Desk.foreground = other;
    Choose(0);
    EXPECT_EQ(Desk.foreground, MainWnd) << "or the view would scroll to it";
}

TEST_F(Focus, ShellWindowsAreNoTargets) {
    for (const char* name : {"Progman", "Shell_TrayWnd", "Windows.UI.Core.CoreWindow"}) {
        Desk.foreground = OpenWindow("", {100, 100, 300, 300}, name);
        for (const ActionId id : {ACTION_CENTER_ACTIVE, ACTION_ACTIVE_LEFT_MIN, ACTION_ACTIVE_TO_TOP})
            RunAction(id);
        RunAction(ACTION_TOGGLE_TOPMOST);
        EXPECT_EQ(RectOf(Desk.foreground).left, 100) << name;
        EXPECT_FALSE(WindowOf(Desk.foreground).exStyle & WS_EX_TOPMOST) << name;
    }
}

TEST_F(Focus, AFullScreenProgramIsNotScrolledAway) {
    const HWND game = OpenWindow("game", {0, 0, 1920, 1080});
    WindowOf(game).style = WS_POPUP | WS_VISIBLE;
    Desk.foreground = game;
    ActionTable[ACTION_FOLLOW_MOUSE].value = 1;
    const auto scrolls = [](UINT message) {
        Desk.cursor = {1919, 500};
        PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, message, 0);
        Wait(300);
        return ViewCorner() != POINT{0, 0};
    };
    scrolls(WM_MOUSEMOVE); // the first one never scrolls
    EXPECT_FALSE(scrolls(WM_MOUSEMOVE));
    Options.mousescroll_delay = EDGE_ON_LEFT_CLICK;
    EXPECT_FALSE(scrolls(WM_LBUTTONDOWN));
    Options.mousescroll_delay = EDGE_AFTER_DELAY;
    WindowOf(game).style |= WS_CAPTION;
    Desk.script = {[game] { WindowOf(game).style = WS_POPUP | WS_VISIBLE; }};
    EXPECT_FALSE(scrolls(WM_MOUSEMOVE)) << "checked again after the delay";
    WindowOf(game).style |= WS_CAPTION;
    EXPECT_TRUE(scrolls(WM_MOUSEMOVE));
}

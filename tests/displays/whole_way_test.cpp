// A day with Quorl on two displays of different size and scale, among windows in every state.
#include "displays/display_test.h"

#include "core/displays.h"
#include "hook/hook_message.h"

class WholeWay : public TwoDisplays {
  protected:
    struct Kept {
        HWND window;
        RECT rect;
        LONG tolerance; // pixels
    };
    std::vector<Kept> kept;
    HWND active = OpenWindow("active", {1200, 100, 1500, 400}); // locked and unlocked on the way

    HWND Open(const char* title, const RECT& rect, LONG tolerance = 0) {
        const HWND window = OpenWindow(title, rect);
        kept.push_back({window, rect, tolerance});
        return window;
    }

    void OpenEverything() {
        const HWND maximized = Open("maximized", {200, 200, 600, 500});
        ShowWindow(maximized, SW_MAXIMIZE);
        kept.back().rect = RectOf(maximized);
        Open("snapped", {-7, 0, 967, 1047});
        WindowOf(Open("disabled", {300, 300, 700, 600})).style |= WS_DISABLED;
        WindowOf(Open("cloaked", {400, 300, 800, 600})).cloaked = true;
        WindowOf(Open("elevated", {500, 300, 900, 600})).elevated = true;
        WindowOf(Open("not DPI aware", {-2000, 0, -1401, 301}, 2)).dpiAware = false;
        const HWND minimized = Open("minimized", {600, 300, 900, 600});
        ShowWindow(minimized, SW_MINIMIZE);
        kept.back().rect = RectOf(minimized);
        const HWND editor = Open("editor", {100, 100, 1100, 800});
        WindowOf(editor).movesOwned = true;
        for (const int left : {700, 850})
            WindowOf(Open("palette", {left, 200, left + 100, 500})).owner = editor;
    }

    static void PressAllDefaultHotkeys() {
        for (const DeskHotkey& hotkey : std::vector<DeskHotkey>(Desk.hotkeys))
            if (hotkey.id != ACTION_SHOW_MENU && hotkey.id != ACTION_EXIT) {
                PressHotkey(hotkey.modifiers, hotkey.key);
                Wait(300);
            }
    }

    static void ScrollAtAllEdges() {
        ActionTable[ACTION_FOLLOW_MOUSE].value = 1;
        for (const POINT at : {POINT{1919, 500}, {500, 1079}, {-2559, 500}, {500, 0}, {0, 500}, {-1, 0}}) {
            Desk.cursor = at;
            PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
            Wait(100);
        }
        ActionTable[ACTION_FOLLOW_MOUSE].value = 0;
    }

    void UseQuorl() {
        Desk.foreground = active;
        PressAllDefaultHotkeys();
        ScrollAtAllEdges();
        RunAction(ACTION_VIEW_TO_RIGHT); // where no window is: Windows moves those that a display shows
        Wait(200);
        ChangeDisplays({Primary});
        Wait(2000);
        RunAction(ACTION_VIEW_LEFT_MIN);
        Wait(200);
        ChangeDisplays({Primary, Left});
        Wait(2000);
        PressAllDefaultHotkeys();
        MoveOnMap(190, 80);
        PressOnMap(VK_MBUTTON); // the view goes there
        ReleaseOnMap(VK_MBUTTON);
        Wait(200);
    }
};

TEST_F(WholeWay, EndsWithEveryWindowWhereItWas) {
    OpenEverything();
    Wait(2000);
    UseQuorl();
    Exit();
    EXPECT_TRUE(IsTitleInReach(FromSystem(VisibleRect(active))));
    for (const Kept& row : kept) {
        const RECT now = RectOf(row.window);
        EXPECT_NEAR(now.left, row.rect.left, row.tolerance) << WindowOf(row.window).title;
        EXPECT_NEAR(now.top, row.rect.top, row.tolerance) << WindowOf(row.window).title;
        EXPECT_EQ(now.right - now.left, row.rect.right - row.rect.left) << WindowOf(row.window).title;
        EXPECT_EQ(now.bottom - now.top, row.rect.bottom - row.rect.top) << WindowOf(row.window).title;
    }
}

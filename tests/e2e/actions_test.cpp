// Actions that depend on the focus and the order of real windows; the in-memory desktop tests all others.
#include "shared/user.h"

TEST(Actions, MoveTheActiveWindowAndToggleTopmost) {
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    Activate(editor);
    RunActions({ACTION_LOCK_WINDOW, ACTION_SCREEN_RIGHT, ACTION_UNLOCK_WINDOW, ACTION_SCREEN_LEFT,
                ACTION_ACTIVE_UP_MIN});
    EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, SCREEN_W, -5));
    RunActions({ACTION_CENTER_ACTIVE});
    EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, 112, 84));
    for (const LONG_PTR topmost : {WS_EX_TOPMOST, 0L}) {
        Activate(editor);
        RunActions({ACTION_TOGGLE_TOPMOST});
        EXPECT_EVENTUALLY(GetWindowLongPtrA(editor, GWL_EXSTYLE) & WS_EX_TOPMOST, topmost);
    }
}

TEST(Actions, ActivateOtherWindows) {
    const HWND middle = OpenWindow("middle", {400, 300, 600, 450});
    const HWND around[] = {
        OpenWindow("right", {1500, 300, 1700, 450}), // off the screen
        OpenWindow("left", {50, 300, 250, 450}),
        OpenWindow("above", {400, 50, 600, 200}),
        OpenWindow("below", {400, 550, 600, 700}),
    };
    StartQuorl();
    const auto expect = [](HWND from, int action, HWND wanted) {
        Activate(from);
        RunAction(action);
        EXPECT_EVENTUALLY(GetForegroundWindow(), wanted) << "action " << action;
        Settle(wanted);
    };
    expect(around[3], ACTION_NEXT_IN_VIEW, around[2]);
    expect(around[2], ACTION_CYCLE_IN_VIEW, middle); // the bottom one in view
    for (int side = 0; side < 4; ++side)
        expect(middle, ACTION_FOCUS_RIGHT + side, around[side]);

    expect(around[0], ACTION_VIEW_TO_ACTIVE, around[0]);
    EXPECT_EVENTUALLY(WindowRect(around[0]), (RECT{412, 300, 612, 450}));
}

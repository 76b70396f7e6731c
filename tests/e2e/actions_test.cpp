// Every action on a real desktop: those that the other files leave out are run here.
#include "user.h"

namespace {

// Actions that are run one after the other, and where the window is then, relative to its first position.
struct Step {
    std::vector<ActionId> actions;
    int dx, dy;
};

const std::vector<Step> ViewSteps = {
    {{ACTION_VIEW_RIGHT_MAX, ACTION_VIEW_DOWN_MAX}, -100, -100},
    {{ACTION_VIEW_LEFT_MAX}, 0, -100},
    {{ACTION_VIEW_UP_MAX, ACTION_NEXT_SCREEN}, -SCREEN_W, 0},
    {{ACTION_PREVIOUS_SCREEN, ACTION_PREVIOUS_SCREEN}, -3 * SCREEN_W, -SCREEN_H},
    {{ACTION_NEXT_SCREEN, ACTION_ADD_RIGHT, ACTION_VIEW_TO_RIGHT}, -4 * SCREEN_W, 0},
    {{ACTION_ADD_BOTTOM, ACTION_VIEW_TO_BOTTOM}, -4 * SCREEN_W, -2 * SCREEN_H},
    {{ACTION_VIEW_TO_LEFT, ACTION_VIEW_TO_TOP}, 0, 0},
    {{ACTION_REMOVE_RIGHT, ACTION_REMOVE_BOTTOM, ACTION_VIEW_TO_RIGHT, ACTION_VIEW_TO_BOTTOM},
     -3 * SCREEN_W,
     -SCREEN_H},
    {{ACTION_VIEW_TO_LEFT, ACTION_VIEW_TO_TOP, ACTION_ADD_LEFT}, SCREEN_W, 0},
    {{ACTION_REMOVE_LEFT, ACTION_ADD_TOP}, 0, SCREEN_H},
    {{ACTION_REMOVE_TOP}, 0, 0},
};

const std::vector<Step> MapSteps = {
    {{ACTION_SAVE_SETTINGS, ACTION_TOOLWIN_RIGHT_MAX, ACTION_LOAD_SETTINGS}, 0, 0},
    {{ACTION_TOOLWIN_RIGHT_MIN, ACTION_TOOLWIN_RIGHT_MAX, ACTION_TOOLWIN_DOWN_MIN, ACTION_TOOLWIN_DOWN_MAX},
     105,
     105},
    {{ACTION_TOOLWIN_LEFT_MIN, ACTION_TOOLWIN_LEFT_MAX}, 0, 105},
    {{ACTION_TOOLWIN_UP_MIN, ACTION_TOOLWIN_UP_MAX}, 0, 0},
    {{ACTION_TOOLWIN_UP_MAX, ACTION_TOOLWIN_UP_MIN}, 0, -100}, // snaps to the screen's edge
    {{ACTION_SNAP, ACTION_TOOLWIN_UP_MIN}, 0, -105},
};

// Each begins with the active window at EDITOR.
const std::vector<Step> WindowSteps = {
    {{ACTION_ACTIVE_LEFT_MIN, ACTION_ACTIVE_UP_MIN}, -5, -5},
    {{ACTION_ACTIVE_RIGHT_MIN, ACTION_ACTIVE_DOWN_MIN}, 5, 5},
    {{ACTION_ACTIVE_LEFT_MAX, ACTION_ACTIVE_UP_MAX}, -100, -100},
    {{ACTION_ACTIVE_RIGHT_MAX, ACTION_ACTIVE_DOWN_MAX}, 100, 100},
    {{ACTION_ACTIVE_LEFT_SCREEN}, -SCREEN_W, 0},
    {{ACTION_ACTIVE_RIGHT_SCREEN, ACTION_ACTIVE_DOWN_SCREEN}, SCREEN_W, SCREEN_H},
    {{ACTION_ACTIVE_UP_SCREEN}, 0, -EDITOR.top}, // clamped to the desktop
    {{ACTION_ACTIVE_TO_LEFT, ACTION_ACTIVE_TO_TOP}, -EDITOR.left, -EDITOR.top},
    {{ACTION_ACTIVE_TO_RIGHT, ACTION_ACTIVE_TO_BOTTOM}, SCREEN_W - EDITOR.right, SCREEN_H - EDITOR.bottom},
    {{ACTION_CENTER_ACTIVE}, 112, 84},
    {{ACTION_LOCK_WINDOW, ACTION_SCREEN_LEFT, ACTION_UNLOCK_WINDOW, ACTION_SCREEN_RIGHT}, -SCREEN_W, 0},
};

// Tested on the in-memory desktop only: switches and stubs without a visible effect, points of the map, the
// border, TileWindows and LockWorkStation, which do nothing under Wine, and the screen saver.
const ActionId InMemoryOnly[] = {
    ACTION_ALWAYS_ON_TOP,   ACTION_TOOLTIP,           ACTION_LOAD_AT_START,
    ACTION_SAVE_AT_EXIT,    ACTION_QUICK_REDRAW,      ACTION_IGNORE_TOOLWINS,
    ACTION_MOVE_MINIMIZED,  ACTION_MOUSE_OFF_1,       ACTION_SUPPRESS_SCROLL,
    ACTION_SUPPRESS_FOLLOW, ACTION_FLASH_ACTIVE,      ACTION_COLOR_BORDERS,
    ACTION_COLOR_ACTIVE,    ACTION_FLASH_VIEW,        ACTION_FIND_WINDOW_OLD,
    ACTION_MOUSE_OFF_2,     ACTION_MOUSE_OFF_3,       ACTION_SAVE_LOCATIONS,
    ACTION_LOAD_LOCATIONS,  ACTION_HIDE_ACTIVE,       ACTION_SHOW_HIDDEN,
    ACTION_VIEW_TO_POINT,   ACTION_VIEW_TO_REGION,    ACTION_BORDER_UP,
    ACTION_BORDER_DOWN,     ACTION_TILE_VERTICALLY,   ACTION_LOCK_STATION,
    ACTION_SCREEN_SAVER,    ACTION_TILE_HORIZONTALLY, ACTION_UNMARK_ALL_REGIONS,
};

void ExpectToMove(HWND window, const Step& step, const RECT& from) {
    for (const int action : step.actions)
        RunAction(action);
    EXPECT_EVENTUALLY(WindowRect(window), Moved(from, step.dx, step.dy)) << "action " << step.actions.back();
}

} // namespace

TEST(Actions, AreAllCovered) {
    std::set<int> covered = CoveredActions();
    covered.insert(std::begin(InMemoryOnly), std::end(InMemoryOnly));
    for (const auto* const steps : {&ViewSteps, &MapSteps, &WindowSteps})
        for (const Step& step : *steps)
            covered.insert(step.actions.begin(), step.actions.end());
    for (int action = 0; action < NUM_ACTIONS; ++action)
        EXPECT_TRUE(covered.contains(action)) << action;
}

TEST(Actions, MoveWindowsAndTheMap) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND map = StartQuorl();
    for (const Step& step : ViewSteps)
        ExpectToMove(editor, step, EDITOR);

    RunActions<ACTION_EXPAND_WIDTH, ACTION_EXPAND_HEIGHT, ACTION_EXPAND_HEIGHT, ACTION_SHRINK_HEIGHT>();
    EXPECT_EVENTUALLY(WindowRect(map), (RECT{100, 100, 305, 205}));
    RunActions<ACTION_SHRINK_WIDTH, ACTION_SHRINK_HEIGHT>();
    for (const Step& step : MapSteps)
        ExpectToMove(map, step, {100, 100, 300, 200});

    Activate(editor);
    ExpectToMove(editor, {{ACTION_SCREEN_RIGHT}, -SCREEN_W, 0}, EDITOR); // leaves a screen on its left
    for (const Step& step : WindowSteps) {
        SetWindowPos(editor, nullptr, EDITOR.left, EDITOR.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ExpectToMove(editor, step, EDITOR);
    }
    for (const LONG_PTR topmost : {WS_EX_TOPMOST, 0L}) {
        Activate(editor);
        RunActions<ACTION_TOGGLE_TOPMOST>();
        EXPECT_EVENTUALLY(GetWindowLongPtrA(editor, GWL_EXSTYLE) & WS_EX_TOPMOST, topmost);
    }
}

TEST(Actions, ActivateOtherWindows) {
    Covers<ACTION_NEXT_IN_VIEW, ACTION_CYCLE_IN_VIEW, ACTION_VIEW_TO_ACTIVE, ACTION_FOCUS_RIGHT,
           ACTION_FOCUS_LEFT, ACTION_FOCUS_UP, ACTION_FOCUS_DOWN>();
    const RECT center{400, 300, 600, 450};
    const HWND middle = OpenWindow("middle", center);
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
    RunActions<ACTION_FOLLOW_ACTIVE>();
    Activate(around[1]);
    EXPECT_EVENTUALLY(WindowRect(middle), center);
    RunActions<ACTION_XWIN_MOUSE>();
    for (const HWND window : {middle, around[1], middle}) {
        const RECT rect = WindowRect(window);
        EXPECT_EVENTUALLY((RectAfterMoving(window, {rect.left + 100, rect.top + 100}), GetForegroundWindow()),
                          window);
    }
}

#include "support/quorl_test.h"

class Navigation : public RunningQuorl {};

TEST_F(Navigation, ActivatesTheNeighbourWithoutScrolling) {
    const HWND left = OpenWindow("\u0416", {0, 100, 200, 300});
    const HWND right = OpenWindow("right", {1500, 100, 1700, 300});        // off the screen
    OpenWindow("", {400, 500, 600, 600});                                  // below, but without a title
    SetWindowPos(left, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); // above the map
    const HWND middle = OpenAndList("middle", {400, 100, 600, 300});
    const auto reached = [](ActionId id, HWND from) {
        Desk.foreground = from;
        RunAction(id);
        return Desk.foreground;
    };
    EXPECT_EQ(reached(ACTION_FOCUS_RIGHT, middle), right);
    EXPECT_EQ(reached(ACTION_FOCUS_LEFT, middle), left);
    EXPECT_EQ(LastStatus(), "\u0416");
    EXPECT_EQ(reached(ACTION_FOCUS_LEFT, right), middle) << "first in the table";
    EXPECT_TRUE(Desk.beeps.empty());
    EXPECT_EQ(reached(ACTION_FOCUS_DOWN, middle), middle);
    EXPECT_EQ(reached(ACTION_FOCUS_UP, middle), middle);
    EXPECT_EQ(Desk.beeps, (std::vector<UINT>{0, 0}));
    EXPECT_EQ(VDesk.left, 0);

    Desk.cursor = {500, 200};
    EXPECT_EQ(reached(ACTION_FOCUS_RIGHT, nullptr), right) << "from the window under the cursor";
    Desk.cursor = {500, 700};
    EXPECT_EQ(reached(ACTION_FOCUS_RIGHT, nullptr), left) << "from the left edge of the screen";
}

TEST_F(Navigation, CyclesThroughWindowsCompletelyInView) {
    const HWND bottom = OpenWindow("bottom", {0, 0, 100, 100});
    const HWND second = OpenWindow("second", {924, 668, 1024, 768});
    OpenWindow("partly", {1000, 0, 1100, 100});
    OpenAndList("top", {200, 200, 300, 300});
    RunAction(ACTION_NEXT_IN_VIEW);
    EXPECT_EQ(Desk.foreground, second);
    RunAction(ACTION_CYCLE_IN_VIEW);
    EXPECT_EQ(Desk.foreground, bottom);
}

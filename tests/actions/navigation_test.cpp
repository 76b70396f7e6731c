#include "actions/navigation.h"

#include "support/quorl_test.h"

class Navigation : public RunningQuorl {};

TEST_F(Navigation, TheNeighbourIsActivatedAndTheViewStays) {
    const HWND left = OpenWindow("left", {0, 100, 200, 300});
    const HWND right = OpenWindow("right", {1500, 100, 1700, 300}); // off the screen
    OpenWindow("", {400, 500, 600, 600});                           // found below, and refused
    const HWND middle = OpenKnown("middle", {400, 100, 600, 300});
    const auto reached = [](int row, HWND from) {
        Desk.foreground = from;
        Command(row);
        return Desk.foreground;
    };
    EXPECT_EQ(reached(117, middle), right);
    EXPECT_EQ(reached(118, middle), left);
    EXPECT_EQ(reached(118, right), middle) << "the first in the table, too";
    EXPECT_TRUE(Desk.beeps.empty());
    EXPECT_EQ(reached(120, middle), middle);
    EXPECT_EQ(reached(119, middle), middle);
    EXPECT_EQ(Desk.beeps.size(), 2U);
    EXPECT_EQ(VDesk.left, 0);

    Desk.cursor = {500, 200};
    EXPECT_EQ(reached(117, nullptr), right) << "from the window under the cursor";
}

TEST_F(Navigation, CyclingTakesWindowsThatLieWhollyInView) {
    const HWND bottom = OpenWindow("bottom", {0, 0, 100, 100});
    const HWND second = OpenWindow("second", {924, 668, 1024, 768});
    OpenWindow("partly", {1000, 0, 1100, 100});
    OpenKnown("top", {200, 200, 300, 300});
    Command(24);
    EXPECT_EQ(Desk.foreground, second);
    Command(25);
    EXPECT_EQ(Desk.foreground, bottom);
}

TEST_F(Navigation, ACornerInTheRectangleCountsAndBothEndsOfASideDo) {
    const RECT screen{0, 0, 1024, 768};
    EXPECT_TRUE(LiesWithin(screen, screen));
    EXPECT_FALSE(LiesWithin({-1, 0, 1024, 768}, screen));
    EXPECT_TRUE(HasCornerIn({1024, 768, 1100, 800}, screen));
    EXPECT_TRUE(HasCornerIn({-100, -100, 0, 0}, screen));
    EXPECT_FALSE(HasCornerIn({-10, 100, 1100, 200}, screen)) << "goes all the way across";
}

TEST_F(Navigation, TilingHandsOverWhatSharesAPixelWithTheScreen) {
    const HWND partly = OpenWindow("partly", {1000, 700, 1200, 900});
    OpenKnown("beside", {1024, 0, 1100, 100});
    for (const int row : {80, 81}) {
        Command(row);
        EXPECT_EQ(Desk.tilings.back().how, row == 80 ? MDITILE_VERTICAL : MDITILE_HORIZONTAL);
        EXPECT_EQ(Desk.tilings.back().rect, Rect(0, 0, 1024, 768));
        EXPECT_EQ(Desk.tilings.back().windows, (std::vector<HWND>{MainWnd, partly}));
    }
}

#include "actions/navigation.h"

#include "scroll/window_table.h"
#include "support/quorl_test.h"

class Navigation : public RunningQuorl {};

TEST_F(Navigation, TheNeighbourIsActivatedAndTheViewStays) {
    const HWND left = OpenWindow("left", {0, 100, 200, 300});
    const HWND right = OpenWindow("right", {1500, 100, 1700, 300}); // off the screen
    const HWND middle = OpenWindow("middle", {400, 100, 600, 300});
    OpenWindow("", {400, 500, 600, 600}); // found below, and refused
    RebuildWindowTable();
    const auto reached = [middle](int row) {
        Desk.foreground = middle;
        Command(row);
        return Desk.foreground;
    };
    EXPECT_EQ(reached(117), right);
    EXPECT_EQ(reached(118), left);
    EXPECT_TRUE(Desk.beeps.empty());
    EXPECT_EQ(reached(120), middle);
    EXPECT_EQ(reached(119), middle);
    EXPECT_EQ(Desk.beeps.size(), 2U);
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768));
}

TEST_F(Navigation, WithoutAnActiveWindowTheOneUnderTheCursorCounts) {
    const HWND under = OpenWindow("under", {400, 300, 600, 500});
    const HWND beside = OpenKnown("beside", {700, 300, 800, 500});
    Desk.cursor = {500, 400};
    Command(117);
    EXPECT_EQ(Desk.foreground, beside);
    Desk.foreground = nullptr;
    Desk.cursor = {5, 5}; // nobody: the sweep starts at the screen's far side
    Command(117);
    EXPECT_EQ(Desk.foreground, under);
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
    EXPECT_FALSE(LiesWithin({0, -1, 1024, 768}, screen));
    EXPECT_TRUE(HasCornerIn({1024, 768, 1100, 800}, screen));
    EXPECT_TRUE(HasCornerIn({-100, -100, 0, 0}, screen));
    EXPECT_FALSE(HasCornerIn({1025, 0, 1100, 800}, screen));
    EXPECT_FALSE(HasCornerIn({-10, 100, 1100, 200}, screen)) << "goes all the way across";
    EXPECT_FALSE(HasCornerIn({100, -10, 200, 800}, screen));
}

TEST_F(Navigation, TilingHandsOverWhatSharesAPixelWithTheScreen) {
    const HWND partly = OpenWindow("partly", {1000, 700, 1200, 900});
    const HWND hidden = OpenWindow("hidden", {0, 0, 10, 10});
    ShowWindow(hidden, SW_HIDE);
    OpenKnown("beside", {1024, 0, 1100, 100});
    Command(80);
    Command(81);
    ASSERT_EQ(Desk.tilings.size(), 2u);
    EXPECT_EQ(Desk.tilings[0].how, MDITILE_VERTICAL);
    EXPECT_EQ(Desk.tilings[1].how, MDITILE_HORIZONTAL);
    EXPECT_EQ(Desk.tilings[0].rect, Rect(0, 0, 1024, 768));
    EXPECT_EQ(Desk.tilings[0].windows, (std::vector<HWND>{MainWnd, hidden, partly}));
}

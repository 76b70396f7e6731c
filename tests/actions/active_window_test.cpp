#include "actions/active_window.h"

#include "support/quorl_test.h"

class ActiveWindow : public RunningQuorl {
  protected:
    HWND active = OpenWindow("editor", {300, 300, 500, 400});

    void SetUp() override {
        RunningQuorl::SetUp();
        Desk.foreground = active;
    }

    RECT PlaceAfter(int row) {
        Command(row);
        return PlaceOf(active);
    }
};

TEST_F(ActiveWindow, MovesByItsRowsStep) {
    const int steps[] = {-5, 5, -5, 5, -100, 100, -100, 100, -1024, 1024, -768, 768};
    VDesk = {1024, 768, 2048, 1536};
    Quorl.bottom = 4000;
    for (int row = 92; row <= 103; ++row) {
        const RECT before = PlaceOf(active);
        const int dx = row % 4 < 2 ? steps[row - 92] : 0;
        EXPECT_EQ(PlaceAfter(row), Moved(before, dx, steps[row - 92] - dx)) << "row " << row;
    }
}

TEST_F(ActiveWindow, GoesToTheScreensEdgesAndMiddleUnlessItHangs) {
    EXPECT_EQ(PlaceAfter(104), Rect(0, 300, 200, 400));
    EXPECT_EQ(PlaceAfter(105), Rect(824, 300, 1024, 400));
    EXPECT_EQ(PlaceAfter(106), Rect(824, 0, 1024, 100));
    EXPECT_EQ(PlaceAfter(107), Rect(824, 668, 1024, 768));
    RowOf(active).answer = DeskAnswer::Hung;
    Command(121);
    EXPECT_FALSE(RowOf(active).exStyle & WS_EX_TOPMOST);
    EXPECT_EQ(PlaceAfter(22), Rect(824, 668, 1024, 768));
    RowOf(active).answer = DeskAnswer::Answers;
    EXPECT_EQ(PlaceAfter(22), Rect(412, 334, 612, 434));
}

TEST_F(ActiveWindow, StaysOnTheDesktopNotOnTheScreen) {
    const auto kept = [](WindowPlace asked) {
        const auto place = KeptOnDesktop(asked, {1024, 768, 2048, 1536}, {0, 0, 4096, 1536});
        return Rect(place.x, place.y, place.width, place.height);
    };
    EXPECT_EQ(kept({-1000, -10, 200, 10}), Rect(-1000, -10, 200, 10));
    EXPECT_EQ(kept({-1025, -769, 200, 10}), Rect(-1024, -768, 200, 10));
    EXPECT_EQ(kept({3000, 1500, 200, 10}), Rect(2872, 758, 200, 10));
    EXPECT_EQ(kept({0, 0, 5000, 3000}), Rect(-1928, -2232, 5000, 3000)) << "the far edge wins";
}

TEST_F(ActiveWindow, GoesTopmostAndBack) {
    for (const bool bTopmost : {true, false}) {
        Command(121);
        EXPECT_EQ((RowOf(active).exStyle & WS_EX_TOPMOST) != 0, bTopmost);
    }
}

TEST_F(ActiveWindow, LockedStaysThroughScrollsUntilItIsUnlocked) {
    Command(40);
    EXPECT_EQ(Desk.tones.size(), 12U);
    EXPECT_EQ(Desk.tones.back(), 11000U);
    EXPECT_EQ(PlaceAfter(30).left, 300);
    Command(41);
    EXPECT_EQ(Desk.tones.size(), 12U + 13U);
    EXPECT_EQ(PlaceAfter(28).left, 1324);
}

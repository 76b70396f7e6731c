#include "actions/active_window.h"

#include "scroll/locked_windows.h"
#include "support/quorl_test.h"

class ActiveWindow : public RunningQuorl {
  protected:
    HWND active = OpenWindow("editor", {300, 300, 500, 400});

    void SetUp() override {
        RunningQuorl::SetUp();
        Desk.foreground = active;
    }
};

TEST_F(ActiveWindow, MovesByItsRowsStep) {
    const int steps[] = {-5, 5, -5, 5, -100, 100, -100, 100, -1024, 1024, -768, 768};
    VDesk = {1024, 768, 2048, 1536};
    Quorl.bottom = 4000;
    for (int row = 92; row <= 103; ++row) {
        RowOf(active).place = {300, 300, 500, 400};
        const int step = steps[row - 92];
        const POINT way = row % 4 < 2 ? POINT{step, 0} : POINT{0, step};
        Command(row);
        EXPECT_EQ(PlaceOf(active), Moved({300, 300, 500, 400}, way.x, way.y)) << "row " << row;
    }
}

TEST_F(ActiveWindow, GoesToTheScreensEdgesAndMiddleUnlessItHangs) {
    const auto placeAfter = [this](int row) {
        Command(row);
        return PlaceOf(active);
    };
    EXPECT_EQ(placeAfter(104), Rect(0, 300, 200, 400));
    EXPECT_EQ(placeAfter(105), Rect(824, 300, 1024, 400));
    EXPECT_EQ(placeAfter(106), Rect(824, 0, 1024, 100));
    EXPECT_EQ(placeAfter(107), Rect(824, 668, 1024, 768));
    RowOf(active).answer = DeskAnswer::Hung;
    EXPECT_EQ(placeAfter(22), Rect(824, 668, 1024, 768));
    RowOf(active).answer = DeskAnswer::Answers;
    EXPECT_EQ(placeAfter(22), Rect(412, 334, 612, 434));
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

TEST_F(ActiveWindow, GoesTopmostAndBackUnlessItHangsOrIsGone) {
    const auto isTopmostAfter = [this](DeskAnswer answer) {
        RowOf(active).answer = answer;
        Command(121);
        return (RowOf(active).exStyle & WS_EX_TOPMOST) != 0;
    };
    EXPECT_FALSE(isTopmostAfter(DeskAnswer::Hung));
    EXPECT_TRUE(isTopmostAfter(DeskAnswer::Answers));
    EXPECT_FALSE(isTopmostAfter(DeskAnswer::Answers));
    EXPECT_TRUE(IsWindowVisible(active));
    KillWindow(active);
    for (const int row : {22, 40, 92, 121})
        Command(row);
}

TEST_F(ActiveWindow, LockedStaysThroughScrollsUntilItIsUnlocked) {
    const auto placeAfter = [this](int lock, int scroll) {
        Desk.tones.clear();
        Command(lock);
        Command(scroll);
        return PlaceOf(active).left;
    };
    EXPECT_EQ(placeAfter(40, 30), 300);
    EXPECT_EQ(Desk.tones.size(), 12U);
    EXPECT_EQ(Desk.tones.back(), 11000U);
    EXPECT_EQ(placeAfter(41, 28), 1324);
    EXPECT_EQ(Desk.tones.size(), 13U);
    EXPECT_EQ(Desk.tones.front(), 12000U);

    for (const HWND window : {MainWnd, OpenWindow("not in the table yet", {0, 0, 10, 10})}) {
        Desk.foreground = window;
        Command(40);
        EXPECT_FALSE(IsLockedWindow(window)) << "nor can it be one that Quorl may not touch";
    }
}

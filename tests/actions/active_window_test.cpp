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

TEST_F(ActiveWindow, GoesToTheScreensEdgesAndMiddle) {
    const auto placeAfter = [this](int row) {
        Command(row);
        return PlaceOf(active);
    };
    EXPECT_EQ(placeAfter(104), Rect(0, 300, 200, 400));
    EXPECT_EQ(placeAfter(105), Rect(824, 300, 1024, 400));
    EXPECT_EQ(placeAfter(106), Rect(824, 0, 1024, 100));
    EXPECT_EQ(placeAfter(107), Rect(824, 668, 1024, 768));
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

TEST_F(ActiveWindow, ThatHangsOrIsGoneHarmsNothing) {
    RowOf(active).answer = DeskAnswer::Hung;
    Command(22);
    Command(121);
    EXPECT_EQ(PlaceOf(active), Rect(300, 300, 500, 400));
    EXPECT_FALSE(RowOf(active).exStyle & WS_EX_TOPMOST);
    KillWindow(active);
    for (const int row : {22, 40, 92, 121})
        Command(row);
}

TEST_F(ActiveWindow, GoesTopmostAndBack) {
    Command(121);
    EXPECT_TRUE(RowOf(active).exStyle & WS_EX_TOPMOST);
    Command(121);
    EXPECT_FALSE(RowOf(active).exStyle & WS_EX_TOPMOST);
    EXPECT_TRUE(IsWindowVisible(active));
}

TEST_F(ActiveWindow, LockedStaysThroughScrollsUntilItIsUnlocked) {
    Command(40);
    EXPECT_EQ(Desk.tones.size(), 12U);
    EXPECT_EQ(Desk.tones.back(), 11000U);
    Command(30);
    EXPECT_EQ(PlaceOf(active).left, 300);

    Desk.tones.clear();
    Command(41);
    EXPECT_EQ(Desk.tones.size(), 13U);
    EXPECT_EQ(Desk.tones.front(), 12000U);
    Command(28);
    EXPECT_EQ(PlaceOf(active).left, 1324);
}

TEST_F(ActiveWindow, ThatQuorlMayNotTouchCannotBeLocked) {
    const HWND opened = OpenWindow("not in the table yet", {0, 0, 10, 10});
    for (const HWND window : {MainWnd, opened}) {
        Desk.foreground = window;
        Command(40);
        EXPECT_EQ(LockedWindows[0], nullptr);
    }
}

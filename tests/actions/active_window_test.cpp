#include "actions/active_window.h"

#include "core/state.h"
#include "scroll/locked_windows.h"
#include "support/quorl_test.h"

namespace {

class ActiveWindow : public QuorlTest {
  protected:
    HWND active = nullptr;

    void Start(const RECT& place) {
        active = OpenWindow("editor", place);
        StartQuorl();
        Desk.foreground = active;
    }
};

TEST_F(ActiveWindow, MovesByItsRowsStepOrToTheScreensEdge) {
    Start({300, 300, 500, 400});
    struct Case {
        int row;
        RECT place;
    };
    const Case cases[] = {
        {92,  {295, 300, 495, 400}  },
        {93,  {300, 300, 500, 400}  },
        {94,  {300, 295, 500, 395}  },
        {95,  {300, 300, 500, 400}  },
        {96,  {200, 300, 400, 400}  },
        {97,  {300, 300, 500, 400}  },
        {98,  {300, 200, 500, 300}  },
        {99,  {300, 300, 500, 400}  },
        {101, {1324, 300, 1524, 400}},
        {100, {300, 300, 500, 400}  },
        {103, {300, 1068, 500, 1168}},
        {102, {300, 300, 500, 400}  },
        {104, {0, 300, 200, 400}    },
        {105, {824, 300, 1024, 400} },
        {106, {824, 0, 1024, 100}   },
        {107, {824, 668, 1024, 768} },
        {22,  {412, 334, 612, 434}  },
    };
    for (const Case& each : cases) {
        Command(each.row);
        EXPECT_EQ(PlaceOf(active), each.place) << "row " << each.row;
    }
}

TEST_F(ActiveWindow, StaysOnTheDesktopNotOnTheScreen) {
    Start({50, 50, 250, 150});
    Command(96);
    EXPECT_EQ(PlaceOf(active), Rect(0, 50, 200, 150)) << "the desktop begins here";

    Command(30); // one screen to the right; the window is off the screen now
    Command(96);
    EXPECT_EQ(PlaceOf(active).left, -1024);
    EXPECT_EQ(KeptOnDesktop({0, 0, 5000, 10}, VDesk, Quorl).x, 4096 - 1024 - 5000) << "the far edge wins";
    EXPECT_EQ(KeptOnDesktop({3000, 0, 200, 10}, VDesk, Quorl).x, 4096 - 1024 - 200);
}

TEST_F(ActiveWindow, ThatHangsOrIsGoneHarmsNothing) {
    Start({300, 300, 500, 400});
    RowOf(active).answer = DeskAnswer::Hung;
    Command(22);
    Command(121);
    EXPECT_EQ(PlaceOf(active), Rect(300, 300, 500, 400));
    EXPECT_FALSE(RowOf(active).exStyle & WS_EX_TOPMOST);

    KillWindow(active);
    Command(22);
    Command(92);
    Command(121);
    Command(40);
}

TEST_F(ActiveWindow, GoesTopmostAndBack) {
    Start({300, 300, 500, 400});
    Command(121);
    EXPECT_TRUE(RowOf(active).exStyle & WS_EX_TOPMOST);
    Command(121);
    EXPECT_FALSE(RowOf(active).exStyle & WS_EX_TOPMOST);
    EXPECT_TRUE(RowOf(active).style & WS_VISIBLE);
}

TEST_F(ActiveWindow, LockedStaysThroughScrollsAndIsGatheredAtTheEnd) {
    Start({300, 300, 500, 400});
    const HWND other = OpenWindow("other", {0, 0, 100, 100});
    Wait(1300);

    Command(40);
    EXPECT_EQ(Desk.tones,
              (std::vector<DWORD>{0, 1000, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000, 11000}));
    Command(30);
    EXPECT_EQ(PlaceOf(active).left, 300);
    EXPECT_EQ(PlaceOf(other).left, -1024);

    Desk.tones.clear();
    Command(41);
    EXPECT_EQ(Desk.tones.size(), 13u);
    EXPECT_EQ(Desk.tones.front(), 12000u);
    EXPECT_EQ(Desk.tones.back(), 0u);
    Command(28);
    EXPECT_EQ(PlaceOf(active).left, 1324);
}

TEST_F(ActiveWindow, ThatQuorlMayNotTouchCannotBeLocked) {
    Start({300, 300, 500, 400});
    Desk.foreground = MainWnd;
    Command(40);
    Desk.foreground = OpenWindow("not in the table yet", {0, 0, 10, 10});
    Command(40);
    EXPECT_TRUE(Desk.tones.empty());
    EXPECT_EQ(LockedWindows[0], nullptr);
}

} // namespace

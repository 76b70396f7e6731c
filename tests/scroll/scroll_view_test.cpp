#include "scroll/scroll_view.h"

#include "support/quorl_test.h"

TEST(Scroll, TheViewIsHeldInsideTheDesktopAndTheWindowsGoTheSameWay) {
    const struct {
        RECT vdesk;
        POINT distance;
        RECT view;
        POINT way;
    } cases[] = {
        {{50, 20, 1074, 788},      {-100, -100}, {0, 0, 1024, 768},       {-50, -20}   },
        {{3000, 700, 4024, 1468},  {500, 500},   {3072, 768, 4096, 1536}, {72, 68}     },
        {{4096, 1536, 5120, 2304}, {0, 0},       {3072, 768, 4096, 1536}, {-1024, -768}}, // the desktop shrank
        {{0, 0, 800, 600},         {-10, -10},   {0, 0, 1024, 768},       {0, 0}       }, // the screen grew
        {{2500, 0, 4500, 768},     {0, 0},       {3072, 0, 4096, 768},    {-404, 0}    }, // it shrank
    };
    for (const auto& [vdesk, distance, view, way] : cases) {
        const ViewStep step = ClampedStep(vdesk, distance, {0, 0, 4096, 1536}, 1024, 768);
        EXPECT_EQ(step.view, view);
        EXPECT_EQ((POINT{step.dx, step.dy}), way) << testing::PrintToString(view);
    }
}

TEST_F(RunningQuorl, ScrollTellsWhetherTheCornerChangedAndAsksTheWindowsAlthoughNothingMoves) {
    const HWND editor = OpenKnown("editor", {100, 100, 500, 400});
    EXPECT_EQ(ScrollView(MainWnd, 3072, 1, SV_ABSOLUTE, 0), 1);
    EXPECT_TRUE(CameInOrder({"MoveWindow", "InvalidateRect", "UpdateWindow"}));
    EXPECT_EQ(LastTip(), "VDesk: 3072,1 - 4096,769");
    EXPECT_EQ(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0), 1) << "up alone";
    EXPECT_EQ(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0), 0);
    EXPECT_EQ(RowOf(editor).received.size(), 3U);
}

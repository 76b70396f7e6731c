#include "scroll/scroll_view.h"

#include "support/quorl_test.h"

TEST(ScrollStep, StaysOnTheDesktop) {
    const auto step = [](const RECT& vdesk, int dx, int dy, const RECT& view) {
        const ViewStep clamped = ClampStep(vdesk, {dx, dy}, {0, 0, 4096, 1536}, 1024, 768);
        EXPECT_EQ(clamped.view, view);
        return POINT{clamped.dx, clamped.dy};
    };
    EXPECT_EQ(step({50, 20, 1074, 788}, -100, -100, {0, 0, 1024, 768}), (POINT{-50, -20}));
    EXPECT_EQ(step({3000, 700, 4024, 1468}, 500, 500, {3072, 768, 4096, 1536}), (POINT{72, 68}));
    EXPECT_EQ(step({0, 0, 800, 600}, -10, -10, {0, 0, 1024, 768}), (POINT{0, 0})) << "the screen grew";
    EXPECT_EQ(step({2500, 0, 4500, 768}, 0, 0, {3072, 0, 4096, 768}), (POINT{-404, 0})) << "it shrank";
}

TEST_F(RunningQuorl, ScrollReturnsWhetherTheViewMovedAndAlwaysPings) {
    const HWND editor = OpenAndList("editor", {100, 100, 500, 400});
    EXPECT_TRUE(ScrollView(MainWnd, 3072, 1, SV_ABSOLUTE, 0));
    EXPECT_TRUE(CalledInOrder({"MoveWindow", "InvalidateRect", "UpdateWindow"}));
    EXPECT_EQ(LastStatus(), "VDesk: 3072,1 - 4096,769");
    EXPECT_TRUE(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0)) << "only up";
    EXPECT_FALSE(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0));
    EXPECT_EQ(WindowOf(editor).received.size(), 3U);
}

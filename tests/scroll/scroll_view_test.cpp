#include "scroll/scroll_view.h"

#include "support/quorl_test.h"

TEST_F(RunningQuorl, ScrollReturnsWhetherTheViewMovedAndAlwaysPings) {
    const HWND editor = OpenAndList("editor", {100, 100, 500, 400});
    EXPECT_TRUE(ScrollView(MainWnd, 3072, 1, SV_ABSOLUTE, 0));
    EXPECT_TRUE(CalledInOrder({"MoveWindow", "InvalidateRect", "UpdateWindow"}));
    EXPECT_EQ(LastStatus(), "VDesk: 3072,1 - 4096,769");
    EXPECT_TRUE(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0)) << "only up";
    EXPECT_FALSE(ScrollView(MainWnd, 3072, 0, SV_ABSOLUTE, 0));
    EXPECT_EQ(WindowOf(editor).received.size(), 3U);
    VDesk = {2500, 0, 4500, 768}; // the screen shrank meanwhile
    EXPECT_TRUE(ScrollView(MainWnd, 0, 0, SV_RELATIVE, 0));
    EXPECT_EQ(VDesk, Rect(3072, 0, 4096, 768));
    EXPECT_EQ(RectOf(editor).left, 100 - 3072 + 404) << "as far as the far edge of the view";
    EXPECT_TRUE(ScrollView(MainWnd, -5000, 0, SV_RELATIVE, 0));
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768));
    EXPECT_EQ(RectOf(editor).left, 100 + 404) << "as far as the near edge of the view";
}

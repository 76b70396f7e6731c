#include "actions/dispatch.h"
#include "support/quorl_test.h"

class ViewCommands : public RunningQuorl {
  protected:
    static POINT CornerAfter(ActionId id, int left, int top) {
        VDesk = Rect(left, top, left + 1024, top + 768);
        RunAction(id);
        return ViewCorner();
    }
};

TEST_F(ViewCommands, MoveTheViewByAStep) {
    EXPECT_EQ(CornerAfter(ACTION_VIEW_RIGHT_MIN, 1000, 300), (POINT{1005, 300}));
    EXPECT_EQ(CornerAfter(ACTION_VIEW_LEFT_MAX, 1000, 300), (POINT{900, 300}));
    EXPECT_EQ(CornerAfter(ACTION_VIEW_UP_MIN, 1000, 300), (POINT{1000, 295}));
    EXPECT_EQ(CornerAfter(ACTION_VIEW_DOWN_MAX, 1000, 300), (POINT{1000, 400}));
}

TEST_F(ViewCommands, CenterAPointOfTheMapOrShowItsScreen) {
    VDesk = Rect(1000, 300, 2024, 1068);
    for (int press = 0; press < 2; ++press)
        DoAction(MainWnd, ACTION_VIEW_CENTER_POINT, nullptr, {96, 46}); // of 192 by 92
    EXPECT_EQ(ViewCorner(), (POINT{1536, 384}));
    DoAction(MainWnd, ACTION_VIEW_TO_CELL, nullptr, {96, 46});
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
    DoAction(MainWnd, ACTION_VIEW_TO_CELL, nullptr, {95, 45});
    EXPECT_EQ(ViewCorner(), (POINT{1024, 0}));
}

TEST_F(ViewCommands, MoveTheViewByScreensAndToEdges) {
    Quorl.bottom = 4 * 768;
    EXPECT_EQ(CornerAfter(ACTION_NEXT_SCREEN, 2047, 10), (POINT{3071, 10}));
    EXPECT_EQ(CornerAfter(ACTION_NEXT_SCREEN, 3072, 0), (POINT{0, 768}));
    EXPECT_EQ(CornerAfter(ACTION_NEXT_SCREEN, 3072, 2304), (POINT{0, 0}));
    EXPECT_EQ(CornerAfter(ACTION_PREVIOUS_SCREEN, 1024, 5), (POINT{0, 5}));
    EXPECT_EQ(CornerAfter(ACTION_PREVIOUS_SCREEN, 1023, 768), (POINT{3072, 0}));
    EXPECT_EQ(CornerAfter(ACTION_PREVIOUS_SCREEN, 0, 0), (POINT{3072, 2304}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_LEFT, 1947, 7), (POINT{0, 7}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_LEFT, 1948, 7), (POINT{1024, 7})) << "near the screen at 2048";
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_UP, 7, 1436), (POINT{7, 768}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_RIGHT, 924, 7), (POINT{2048, 7}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_RIGHT, 923, 7), (POINT{1024, 7}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_DOWN, 7, 668), (POINT{7, 1536}));
    EXPECT_EQ(CornerAfter(ACTION_SCREEN_DOWN, 7, 667), (POINT{7, 768}));
    EXPECT_EQ(CornerAfter(ACTION_VIEW_TO_BOTTOM, 300, 400), (POINT{300, 2304}));
    EXPECT_EQ(CornerAfter(ACTION_VIEW_TO_RIGHT, 300, 400), (POINT{3072, 0}));
}

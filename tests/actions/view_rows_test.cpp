#include "actions/view_rows.h"

#include "support/quorl_test.h"

class ViewRows : public RunningQuorl {};

TEST_F(ViewRows, TheViewAndTheToolwinGoByTheSameEightSteps) {
    const int steps[] = {5, 100, -5, -100, -5, -100, 5, 100}; // right, left, up, down
    for (int row = 5; row <= 12; ++row) {
        const int step = steps[row - 5];
        const POINT way = row < 9 ? POINT{step, 0} : POINT{0, step};
        VDesk = {1000, 300, 2024, 1068};
        Command(row);
        EXPECT_EQ(VDesk, Moved({1000, 300, 2024, 1068}, way.x, way.y)) << "row " << row;
        RowOf(MainWnd).place = {400, 300, 600, 400};
        Command(row + 8);
        EXPECT_EQ(PlaceOf(MainWnd), Moved({400, 300, 600, 400}, way.x, way.y)) << "row " << row + 8;
    }
}

TEST_F(ViewRows, EachRowTakesTheViewToItsScreenFromWhereverItStands) {
    const auto goneTo = [](ActionId row, int left, int top) {
        VDesk = Rect(left, top, left + 1024, top + 768);
        Command(row);
        return ViewCorner();
    };
    Quorl.bottom = 4 * 768;
    EXPECT_EQ(goneTo(26, 2047, 10), (POINT{3071, 10}));
    EXPECT_EQ(goneTo(26, 3072, 0), (POINT{0, 768}));
    EXPECT_EQ(goneTo(27, 1024, 5), (POINT{0, 5}));
    EXPECT_EQ(goneTo(27, 1023, 768), (POINT{3072, 0}));
    EXPECT_EQ(goneTo(28, 1947, 7), (POINT{0, 7}));
    EXPECT_EQ(goneTo(28, 1948, 7), (POINT{1024, 7})) << "near enough to the screen at 2048";
    EXPECT_EQ(goneTo(29, 7, 1436), (POINT{7, 768}));
    EXPECT_EQ(goneTo(30, 924, 7), (POINT{2048, 7}));
    EXPECT_EQ(goneTo(31, 7, 668), (POINT{7, 1536}));
    EXPECT_EQ(goneTo(32, 300, 400), (POINT{300, 0}));
    EXPECT_EQ(goneTo(33, 300, 400), (POINT{300, 2304}));
    EXPECT_EQ(goneTo(34, 300, 400), (POINT{0, 400}));
    EXPECT_EQ(goneTo(35, 300, 400), (POINT{3072, 0}));
    EXPECT_EQ(goneTo(1, 300, 400), (POINT{0, 0})) << "no point stands for the map's corner";
}

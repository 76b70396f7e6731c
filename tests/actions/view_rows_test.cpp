#include "actions/view_rows.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class ViewRows : public RunningQuorl {};

TEST_F(ViewRows, TheViewAndTheToolwinGoByTheSameEightSteps) {
    const int steps[] = {5, 100, -5, -100, -5, -100, 5, 100}; // right, left, up, down
    for (int row = 5; row <= 12; ++row) {
        const int step = steps[row - 5];
        const POINT way = row < 9 ? POINT{step, 0} : POINT{0, step};
        VDesk = {1000, 300, 2024, 1068};
        Command(row);
        EXPECT_EQ(VDesk, Rect(1000 + way.x, 300 + way.y, 2024 + way.x, 1068 + way.y)) << "row " << row;
        RowOf(MainWnd).place = {400, 300, 600, 400};
        Command(row + 8);
        EXPECT_EQ(PlaceOf(MainWnd), Rect(400 + way.x, 300 + way.y, 600 + way.x, 400 + way.y))
            << "row " << row + 8;
    }
}

TEST_F(ViewRows, EachRowTakesTheViewToItsScreenFromWhereverItStands) {
    const struct {
        ActionId row;
        POINT from, to;
    } cases[] = {
        {26, {2047, 10},   {3071, 10}  },
        {26, {3072, 0},    {0, 768}    },
        {26, {3072, 2304}, {0, 0}      },
        {27, {1024, 5},    {0, 5}      },
        {27, {1023, 768},  {3072, 0}   },
        {27, {1, 0},       {3072, 2304}},
        {28, {1947, 7},    {0, 7}      },
        {28, {1948, 7},    {1024, 7}   }, // near enough to the screen at 2048
        {29, {7, 1436},    {7, 768}    },
        {30, {924, 7},     {2048, 7}   },
        {31, {7, 668},     {7, 1536}   },
        {32, {300, 400},   {300, 0}    },
        {33, {300, 400},   {300, 2304} },
        {34, {300, 400},   {0, 400}    },
        {35, {300, 400},   {3072, 0}   },
        {1,  {300, 400},   {0, 0}      }, // no point stands for the map's corner
    };
    Quorl.bottom = 4 * 768;
    for (const auto& [row, from, to] : cases) {
        VDesk = {from.x, from.y, from.x + 1024, from.y + 768};
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1) << "row " << row;
        EXPECT_EQ(VDesk, Rect(to.x, to.y, to.x + 1024, to.y + 768))
            << "row " << row << " from " << testing::PrintToString(from);
    }
}

TEST_F(ViewRows, APointOnTheMapIsACornerAMiddleOrACell) {
    const struct {
        ActionId row;
        POINT corner;
    } cases[] = {
        {1, {2048, 768}},
        {2, {1536, 384}},
        {4, {2048, 768}},
    };
    RECT map{};
    GetClientRect(MainWnd, &map);
    for (const auto& [row, corner] : cases) {
        ActionPoint point{map.right / 2, map.bottom / 2}; // the desktop's middle
        DoAction(MainWnd, row, &point);
        EXPECT_EQ((POINT{VDesk.left, VDesk.top}), corner) << "row " << row;
        EXPECT_EQ((POINT{point.x, point.y}), (POINT{2048, 768})) << "the point is overwritten";
    }
    ActionPoint point{map.right / 2 - 1, map.bottom / 2 - 1};
    DoAction(MainWnd, 4, &point);
    EXPECT_EQ((POINT{VDesk.left, VDesk.top}), (POINT{1024, 0}));
}

} // namespace

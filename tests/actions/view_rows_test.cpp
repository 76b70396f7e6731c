#include "actions/view_rows.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class ViewRows : public RunningQuorl {};

TEST_F(ViewRows, EachRowMovesTheViewItsWayFromWhereverItStands) {
    struct {
        ActionId row;
        POINT from, to;
    } const cases[] = {
        {5,  {1000, 300},  {1005, 300} },
        {6,  {1000, 300},  {1100, 300} },
        {7,  {1000, 300},  {995, 300}  },
        {8,  {1000, 300},  {900, 300}  },
        {9,  {1000, 300},  {1000, 295} },
        {10, {1000, 300},  {1000, 200} },
        {11, {1000, 300},  {1000, 305} },
        {12, {1000, 300},  {1000, 400} },
        {26, {2047, 10},   {3071, 10}  },
        {26, {3072, 0},    {0, 768}    },
        {26, {3072, 2304}, {0, 0}      },
        {27, {1024, 5},    {0, 5}      },
        {27, {1023, 768},  {3072, 0}   },
        {27, {1, 0},       {3072, 2304}},
        {28, {1947, 7},    {0, 7}      },
        {28, {1948, 7},    {1024, 7}   },
        {29, {7, 1435},    {7, 0}      },
        {29, {7, 1436},    {7, 768}    },
        {30, {923, 7},     {1024, 7}   },
        {30, {924, 7},     {2048, 7}   },
        {31, {7, 667},     {7, 768}    },
        {31, {7, 668},     {7, 1536}   },
        {32, {300, 400},   {300, 0}    },
        {33, {300, 400},   {300, 2304} },
        {34, {300, 400},   {0, 400}    },
        {35, {300, 400},   {3072, 0}   },
        {1,  {300, 400},   {0, 0}      }, // no point stands for the map's corner
        {2,  {300, 400},   {0, 0}      },
        {4,  {300, 400},   {0, 0}      },
    };
    Quorl.bottom = 4 * 768;
    for (const auto& [row, from, to] : cases) {
        VDesk = {from.x, from.y, from.x + 1024, from.y + 768};
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1) << "row " << row;
        EXPECT_EQ(VDesk, Rect(to.x, to.y, to.x + 1024, to.y + 768))
            << "row " << row << " from " << testing::PrintToString(from);
    }
    EXPECT_EQ(DoAction(MainWnd, 34, nullptr), 0) << "the view did not move";
    EXPECT_EQ(AskedScreen(SCREEN_LEFT, {5, 5, 5, 5}, {0, 0, 0, 0}, 0, 0), (POINT{0, 5}))
        << "no screen, no trap";
}

TEST_F(ViewRows, APointOnTheMapIsACornerAMiddleOrACell) {
    RECT map{};
    GetClientRect(MainWnd, &map);
    const ActionPoint half{map.right / 2, map.bottom / 2}; // the desktop's middle: (2048, 768)
    ActionPoint point = half;
    DoAction(MainWnd, 1, &point);
    EXPECT_EQ((POINT{VDesk.left, VDesk.top}), (POINT{2048, 768}));
    EXPECT_EQ((POINT{point.x, point.y}), (POINT{2048, 768})) << "the point is overwritten";
    point = half;
    DoAction(MainWnd, 2, &point);
    EXPECT_EQ((POINT{VDesk.left, VDesk.top}), (POINT{1536, 384}));
    point = {half.x - 1, half.y - 1};
    DoAction(MainWnd, 4, &point);
    EXPECT_EQ((POINT{VDesk.left, VDesk.top}), (POINT{1024, 0}));
}

} // namespace

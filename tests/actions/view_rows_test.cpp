#include "actions/view_rows.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

TEST(ScreenDecision, AsksForTheNextScreenFromWhereverTheViewStands) {
    struct {
        ScreenKind kind;
        POINT at, asked;
    } const cases[] = {
        {NEXT_SCREEN,     {0, 0},      {1024, 0}  },
        {NEXT_SCREEN,     {2047, 10},  {3071, 10} },
        {NEXT_SCREEN,     {3072, 0},   {0, 768}   },
        {NEXT_SCREEN,     {3072, 768}, {0, 0}     },
        {PREVIOUS_SCREEN, {1024, 5},   {0, 5}     },
        {PREVIOUS_SCREEN, {1023, 768}, {3072, 0}  },
        {PREVIOUS_SCREEN, {0, 0},      {3072, 768}},
        {SCREEN_RIGHT,    {900, 7},    {1024, 7}  },
        {SCREEN_RIGHT,    {924, 7},    {2048, 7}  },
        {SCREEN_LEFT,     {924, 7},    {0, 7}     },
        {SCREEN_LEFT,     {900, 7},    {-1024, 7} },
        {SCREEN_DOWN,     {7, 668},    {7, 1536}  },
        {SCREEN_DOWN,     {7, 667},    {7, 768}   },
        {SCREEN_UP,       {7, 668},    {7, 0}     },
        {SCREEN_UP,       {7, 667},    {7, -768}  },
        {TOP_EDGE,        {300, 400},  {300, 0}   },
        {BOTTOM_EDGE,     {300, 400},  {300, 768} },
        {LEFT_EDGE,       {300, 400},  {0, 400}   },
        {RIGHT_EDGE,      {300, 400},  {3072, 0}  },
    };
    for (const auto& [kind, at, asked] : cases) {
        const RECT vdesk{at.x, at.y, at.x + 1024, at.y + 768};
        EXPECT_EQ(AskedScreen(kind, vdesk, {0, 0, 4096, 1536}, 1024, 768), asked)
            << "kind " << kind << " at " << testing::PrintToString(at);
    }
    EXPECT_EQ(AskedScreen(SCREEN_LEFT, {5, 5, 5, 5}, {0, 0, 0, 0}, 0, 0), (POINT{0, 5}))
        << "no screen, no trap";
}

class ViewRows : public QuorlTest {
  protected:
    int Run(ActionId row, POINT from) {
        VDesk = {from.x, from.y, from.x + 1024, from.y + 768};
        return DoAction(MainWnd, row, nullptr);
    }
};

TEST_F(ViewRows, EachRowMovesTheViewItsWay) {
    struct {
        ActionId row;
        POINT to; // from (1000, 300)
    } const cases[] = {
        {5,  {1005, 300}},
        {6,  {1100, 300}},
        {7,  {995, 300} },
        {8,  {900, 300} },
        {9,  {1000, 295}},
        {10, {1000, 200}},
        {11, {1000, 305}},
        {12, {1000, 400}},
        {26, {2024, 300}},
        {27, {3072, 768}},
        {28, {0, 300}   },
        {29, {1000, 0}  },
        {30, {2048, 300}},
        {31, {1000, 768}},
        {32, {1000, 0}  },
        {33, {1000, 768}},
        {34, {0, 300}   },
        {35, {3072, 0}  },
        {1,  {0, 0}     }, // no point stands for the
  // corner of the map
        {2,  {0, 0}     },
        {4,  {0, 0}     },
    };
    ASSERT_EQ(StartQuorl(), 1);
    for (const auto& [row, to] : cases) {
        EXPECT_EQ(Run(row, {1000, 300}), 1) << "row " << row;
        EXPECT_EQ(VDesk, Rect(to.x, to.y, to.x + 1024, to.y + 768)) << "row " << row;
    }
    EXPECT_EQ(Run(34, {0, 300}), 0) << "the view did not move";
}

TEST_F(ViewRows, APointOnTheMapIsACornerAMiddleOrACell) {
    ASSERT_EQ(StartQuorl(), 1);
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

TEST_F(ViewRows, TheActiveWindowComesToTheMiddleWhetherItIsFollowedOrNot) {
    Desk.foreground = OpenWindow("editor", {1500, 900, 1700, 1000});
    ASSERT_EQ(StartQuorl(), 1);
    Desk.foreground = Desk.order.back();
    EXPECT_EQ(DoAction(MainWnd, 21, nullptr), 1);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    Desk.foreground = nullptr;
    EXPECT_EQ(DoAction(MainWnd, 21, nullptr), 0);
}

} // namespace

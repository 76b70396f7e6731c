#include "scroll/scroll_view.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Scroll : public QuorlTest {};

const RECT WHOLE{0, 0, 4096, 1536};

TEST(ScrollDecision, TheViewIsHeldInsideTheDesktopAndTheWindowsGoTheSameWay) {
    struct {
        const char* what;
        RECT vdesk;
        POINT distance;
        RECT view;
        POINT way;
    } const cases[] = {
        {"free",                  {0, 0, 1024, 768},        {100, 50},    {100, 50, 1124, 818},    {100, 50}    },
        {"past the near edges",   {50, 20, 1074, 788},      {-100, -100}, {0, 0, 1024, 768},       {-50, -20}   },
        {"past the far edges",    {3000, 700, 4024, 1468},  {500, 500},   {3072, 768, 4096, 1536}, {72, 68}     },
        {"onto the far edges",    {3000, 700, 4024, 1468},  {72, 68},     {3072, 768, 4096, 1536}, {72, 68}     },
        {"outside after a loss",  {4096, 1536, 5120, 2304}, {0, 0},       {3072, 768, 4096, 1536}, {-1024, -768}},
        {"left of the origin",    {-1024, -768, 1024, 768}, {0, 0},       {0, 0, 1024, 768},       {1024, 768}  },
        {"smaller than a screen", {0, 0, 800, 600},         {-10, -10},   {0, 0, 1024, 768},       {0, 0}       },
        {"larger than a screen",  {2500, 0, 4500, 768},     {0, 0},       {3072, 0, 4096, 768},    {-404, 0}    },
    };
    for (const auto& [what, vdesk, distance, view, way] : cases) {
        const ViewStep step = ClampedStep(vdesk, distance, WHOLE, 1024, 768);
        EXPECT_EQ(step.view, view) << what;
        EXPECT_EQ((POINT{step.dx, step.dy}), way) << what;
    }
}

TEST_F(Scroll, TheResultTellsWhetherTheCornerChangedAndTheMapIsRepainted) {
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    ASSERT_EQ(StartQuorl(), 1);
    Settle();
    Desk.trace.clear();

    EXPECT_EQ(ScrollView(MainWnd, 5000, 0, SV_ABSOLUTE, 0), 1);

    EXPECT_EQ(VDesk, Rect(3072, 0, 4096, 768));
    EXPECT_TRUE(CameInOrder({"EnumWindows"}) == 0 && CameInOrder({"InvalidateRect", "UpdateWindow"}));
    EXPECT_EQ(ScrollView(MainWnd, 3072, 1, SV_ABSOLUTE, 0), 1) << "down alone";
    RowOf(editor).received.clear();
    EXPECT_EQ(ScrollView(MainWnd, 3072, 1, SV_ABSOLUTE, 0), 0);
    ASSERT_EQ(RowOf(editor).received.size(), 1U) << "asked although nothing moves";
    EXPECT_EQ(RowOf(editor).received[0].message, WM_MOVING);
    EXPECT_FALSE(RowOf(MainWnd).bInvalid);
}

} // namespace

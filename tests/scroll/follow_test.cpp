#include "scroll/follow.h"

#include "actions/dispatch.h"
#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

TEST(FollowDecision, AWindowOutOfViewAsksForAScroll) {
    struct {
        const char* what;
        RECT place;
        FollowNeed need;
    } const cases[] = {
        {"just inside the slack",     {-4, -4, 501, 400},      FOLLOW_IN_VIEW},
        {"a pixel too far left",      {-5, 0, 500, 400},       FOLLOW_SCROLL },
        {"a pixel too high",          {0, -5, 500, 400},       FOLLOW_SCROLL },
        {"its middle on the edge",    {928, 672, 1128, 872},   FOLLOW_IN_VIEW},
        {"its middle past the right", {929, 0, 1129, 400},     FOLLOW_SCROLL },
        {"its middle past below",     {0, 673, 400, 873},      FOLLOW_SCROLL },
        {"out of the desktop",        {4000, 100, 4194, 400},  FOLLOW_IN_VIEW},
        {"below the desktop",         {100, 1500, 400, 1574},  FOLLOW_IN_VIEW},
        {"on the desktop's edge",     {4000, 100, 4192, 400},  FOLLOW_SCROLL },
        {"minimized",                 {-32000, 0, -31840, 28}, FOLLOW_NOT    },
        {"nearly minimized",          {-31999, 0, -31839, 28}, FOLLOW_SCROLL },
    };
    for (const auto& [what, place, need] : cases)
        EXPECT_EQ(NeedToFollow(place, 1024, 768, {0, 0, 4096, 1536}), need) << what;
}

class Follow : public QuorlTest {
  protected:
    HWND editor = OpenWindow("editor", {1500, 900, 1700, 1000}); // its middle: (1600, 950)

    void Start(int bKeepInView) {
        ASSERT_EQ(StartQuorl(), 1);
        ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value = bKeepInView;
        Desk.foreground = editor;
        Desk.trace.clear();
    }
};

TEST_F(Follow, TheViewGoesToAWindowThatBecomesActiveOutOfSight) {
    Start(1);
    Wait(100);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    EXPECT_EQ(PlaceOf(editor), Rect(412, 334, 612, 434)) << "in the middle of the screen";
    EXPECT_EQ(Desk.foreground, editor) << "it has the keyboard again";

    Desk.trace.clear();
    Wait(300);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    EXPECT_EQ(CallsOf("EnumWindows"), 3) << "the map is fresh at each tick";

    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 30);
    Wait(100);
    EXPECT_EQ(VDesk.left, 0) << "where the user goes the view stays";
    EXPECT_EQ(Desk.foreground, MainWnd);
}

TEST_F(Follow, AHeldButtonHoldsTheViewBackIfTheUserWantsItButNotTheMap) {
    Start(1);
    ActionTable[ROW_SUPPRESS_FOLLOW].value = 1;
    int ticks = 0;
    for (const int button : {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON}) {
        HoldKey(button, 1);
        Wait(100);
        EXPECT_EQ(VDesk.left, 0) << "button " << button;
        EXPECT_EQ(CallsOf("EnumWindows"), ++ticks) << "button " << button;
        HoldKey(button, 0);
    }
    HoldKey(VK_LBUTTON, 1);
    ActionTable[ROW_SUPPRESS_FOLLOW].value = 0;
    Wait(100);
    EXPECT_GT(VDesk.left, 0) << "without the setting the button does not matter";
}

TEST_F(Follow, AMinimizedOrUnmanagedActiveWindowNeitherScrollsNorRefreshes) {
    Start(1);
    RowOf(editor).place = {-32000, -32000, -31840, -31972};
    EXPECT_EQ(FollowActiveWindow(), 0);
    RowOf(editor).place = {1500, 900, 1700, 1000};
    RowOf(editor).style |= WS_DISABLED;
    EXPECT_EQ(FollowActiveWindow(), 0);
    Desk.foreground = nullptr;
    EXPECT_EQ(FollowActiveWindow(), 0);
    EXPECT_EQ(VDesk.left, 0);
}

TEST_F(Follow, AWindowThatStaysWhereItIsDoesNotDrawTheViewOnAndOn) {
    Start(1);
    LockWindow(editor);
    Wait(1000);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334)) << "once";

    RowOf(editor).place = {1400, 100, 1600, 200};
    Wait(100);
    EXPECT_EQ(VDesk.left, 2076) << "another place is gone to";
}

TEST_F(Follow, TheActiveWindowIsCentredOnCommandAndStaysActive) {
    const HWND above = OpenWindow("above", {0, 0, 50, 50});
    Start(0);
    Wait(100);
    EXPECT_EQ(VDesk.left, 0) << "nothing is followed unless the user wants it";
    EXPECT_EQ(DoAction(MainWnd, ROW_CENTER_ON_ACTIVE, nullptr), 1);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    EXPECT_TRUE(CameInOrder({"SetFocus", "SetActiveWindow", "BringWindowToTop", "SetForegroundWindow"}));
    EXPECT_LT(std::find(Desk.order.begin(), Desk.order.end(), editor),
              std::find(Desk.order.begin(), Desk.order.end(), above));
    EXPECT_EQ(PlaceOf(above).left, -1088);

    KillWindow(editor);
    EXPECT_EQ(DoAction(MainWnd, ROW_CENTER_ON_ACTIVE, nullptr), 0);
}

} // namespace

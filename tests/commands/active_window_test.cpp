#include "support/quorl_test.h"

class ActiveWindow : public RunningQuorl {
  protected:
    HWND active = nullptr;

    // Not in the window table: the refresh timer has not run yet.
    void SetUp() override {
        RunningQuorl::SetUp();
        active = OpenWindow("\u6f22", {300, 300, 500, 400});
        Desk.foreground = active;
    }

    RECT RectAfter(ActionId id) {
        RunAction(id);
        return RectOf(active);
    }
};

TEST_F(ActiveWindow, MovesByStepsOnTheDesktop) {
    VDesk = {1024, 768, 2048, 1536};
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_LEFT_SCREEN), Rect(-724, 300, -524, 400));
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_UP_MAX), Rect(-724, 200, -524, 300));
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_LEFT_SCREEN).left, -1024);
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_RIGHT_MIN).left, -1019);
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_DOWN_SCREEN).bottom, 768) << "the desktop ends with the screen";
}

TEST_F(ActiveWindow, MovesToTheEdgesAndMiddleOfTheScreen) {
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_TO_LEFT), Rect(0, 300, 200, 400));
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_TO_RIGHT), Rect(824, 300, 1024, 400));
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_TO_TOP), Rect(824, 0, 1024, 100));
    EXPECT_EQ(RectAfter(ACTION_ACTIVE_TO_BOTTOM), Rect(824, 668, 1024, 768));
    EXPECT_EQ(RectAfter(ACTION_CENTER_ACTIVE), Rect(412, 334, 612, 434));
}

TEST_F(ActiveWindow, TogglesTopmostUnlessItHangs) {
    WindowOf(active).response = DeskResponse::Hung;
    for (const DWORD topmost : {DWORD{0}, DWORD{WS_EX_TOPMOST}, DWORD{0}}) {
        RunAction(ACTION_TOGGLE_TOPMOST);
        EXPECT_EQ(WindowOf(active).exStyle & WS_EX_TOPMOST, topmost);
        WindowOf(active).response = DeskResponse::Responds;
    }
}

TEST_F(ActiveWindow, CanBeLockedFromTheMomentItIsOpen) {
    const DWORD before = Desk.now;
    RunAction(ACTION_LOCK_WINDOW);
    EXPECT_EQ(Desk.tones.back(), 11000U);
    EXPECT_EQ(Desk.now - before, 10 * Desk.tones.size());
    EXPECT_EQ(LastStatus(), "Locked Window: \u6f22");
    Wait(2000); // it is in the window table now
    EXPECT_EQ(RectAfter(ACTION_SCREEN_RIGHT).left, 300);
    RunAction(ACTION_UNLOCK_WINDOW);
    EXPECT_EQ(RectAfter(ACTION_SCREEN_LEFT).left, 1324);
}

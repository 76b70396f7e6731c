// The icon in the notification area when the taskbar restarts or is not ready.
#include "support/quorl_test.h"

class Tray : public QuorlTest {};

static SIZE ImageSize() {
    return reinterpret_cast<DeskObject*>(Desk.tray.at(0).icon)->size;
}

TEST_F(Tray, IconReturnsWithTheTaskbarUntilTheUserQuits) {
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(ImageSize().cx, 16);
    const int objects = LiveObjects();
    Desk.pixelsPerInch = 144;
    RestartTaskbar();
    HandleMessages();
    ASSERT_EQ(Desk.tray.size(), 1U);
    EXPECT_EQ(ImageSize().cx, 24) << "of the new scale";
    EXPECT_EQ(LiveObjects(), objects);
    AnswerBoxes({IDYES});
    RunAction(ACTION_EXIT);
    RestartTaskbar();
    HandleMessages();
    EXPECT_TRUE(Desk.tray.empty());
}

TEST_F(Tray, IconIsTriedAgainForAMinute) {
    Desk.trayAddsToFail = 1;
    Desk.trayAddsLate = true;
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(CountCalls("Shell_NotifyIconA"), 2) << "it was added, though the call failed";
    Desk.trayAddsToFail = 30;
    Desk.trayAddsLate = false;
    RestartTaskbar();
    Wait(30000);
    EXPECT_TRUE(Desk.tray.empty());
    Wait(10000);
    EXPECT_EQ(Desk.tray.size(), 1U);
    Desk.trayAddsToFail = 51;
    RestartTaskbar();
    Wait(90000);
    EXPECT_TRUE(Desk.tray.empty());
}

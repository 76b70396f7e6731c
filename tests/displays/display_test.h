// Desktops as on Windows 10 and 11: invisible frames, and displays left of the primary one.
#pragma once

#include "support/quorl_test.h"

// One display of 1920 by 1080 pixels with a taskbar.
class ModernDesktop : public QuorlTest {
  protected:
    void SetUp() override {
        QuorlTest::SetUp();
        InstallCompositor();
        InstallDpiFunctions();
        Desk.frameMargins = {7, 0, 7, 7};
        SetDisplays();
        ASSERT_TRUE(StartQuorl());
        HandleMessages();
        Desk.trace.clear();
    }
    virtual void SetDisplays() { Desk.displays = {Primary}; }

    const DeskDisplay Primary{Rect(0, 0, 1920, 1080), Rect(0, 0, 1920, 1040), "primary"};
};

// A larger one of another scale left of it and above, so that the screen is 4480 by 1440 pixels.
class TwoDisplays : public ModernDesktop {
  protected:
    void SetDisplays() override { Desk.displays = {Primary, Left}; }

    const DeskDisplay Left{Rect(-2560, -300, 0, 1140), Rect(-2560, -300, 0, 1140), "left", 144};
};

inline void Exit() {
    AnswerBoxes({IDYES});
    RunAction(ACTION_EXIT);
}

#include "core/main.h"
#include "support/faults.h"
#include "support/quorl_test.h"

static int IsLost(HWND window) {
    const RECT place = PlaceOf(window);
    return place.left < 0 || place.left >= 1024 || place.top < 0 || place.top >= 768;
}

// The user starts Quorl, scrolls, waits for the map, scrolls back half the way and quits, more than once
// should that not be heard. The settings file stays out of it: it has its own bad luck.
static void OneDay() {
    Desk.files["quorl.ini"] = "[Quorl]\r\nAction71=-1|-1|-1|-1|0\r\n";
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    const HWND far = OpenWindow("far", {1100, 900, 1300, 1000});
    const HWND list = OpenWindow("list", {10, 10, 50, 50}, "SysListView32");
    const HWND bar = OpenWindow("", {0, 748, 1024, 768}, "Shell_TrayWnd");
    Desk.answers.assign(20, IDYES); // to any report, and to "QUIT?"
    const int running = StartQuorl();
    if (running) {
        Command(30);
        Wait(200);
        Command(7);
        Command(72);
        for (int attempt = 0; attempt < 3 && !CallsOf("PostQuitMessage"); ++attempt)
            Command(59);
        ShutDown();
    }
    EXPECT_LE(IsLost(editor) + IsLost(far) * running + IsLost(list), 1) << "the one whose own call failed";
    EXPECT_EQ(PlaceOf(bar), Rect(0, 748, 1024, 768));
    EXPECT_LT(Desk.now, 10000U);
    EXPECT_EQ(Desk.surprises, 0);
}

TEST_F(QuorlTest, NoPlatformCallThatFailsLosesWindowsOrEndsQuorl) {
    EXPECT_GT(FailEachCall(OneDay), 250);
}

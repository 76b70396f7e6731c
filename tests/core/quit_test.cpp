#include "core/quit.h"

#include "actions/dispatch.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Quitting : public QuorlTest {
  protected:
    HWND far = OpenWindow("far", {1100, 200, 1300, 300});

    void Start() {
        ASSERT_EQ(StartQuorl(), 1);
        Settle();
    }
};

TEST_F(Quitting, WithSavingOffItWritesNothing) {
    Start();
    Command(72);
    WillAnswer({IDYES});
    EXPECT_EQ(DoAction(MainWnd, 59, nullptr), 1);
    EXPECT_TRUE(Desk.files.empty());
    EXPECT_TRUE(Desk.hotkeys.empty());
    EXPECT_EQ(PlaceOf(far).left, 76);
}

TEST_F(Quitting, NewsThatWaitsInTheQueueMovesNoWindowThatWasFoldedBack) {
    Start();
    WillAnswer({IDYES});
    PostMessageA(MainWnd, WM_CLOSE, 0, 0);
    PostMessageA(MainWnd, WM_HOTKEY, 30, 0); // pressed while the box was open
    Settle();
    EXPECT_EQ(PlaceOf(far).left, 76);
}

TEST_F(Quitting, ASecondYesSavesNothingOverWhatWasSaved) {
    Start();
    WillAnswer({IDYES, IDYES});
    ConfirmQuit(MainWnd);
    const auto saved = Desk.files;
    EXPECT_EQ(ConfirmQuit(MainWnd), 1);
    EXPECT_EQ(Desk.files, saved) << "the bindings are released by now";
}

} // namespace

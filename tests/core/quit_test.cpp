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

TEST_F(Quitting, AnyAnswerButYesChangesNothing) {
    Start();
    const std::size_t hotkeys = Desk.hotkeys.size();
    for (const int answer : {IDNO, IDCANCEL, 0}) {
        WillAnswer({answer});
        EXPECT_EQ(ConfirmQuit(MainWnd), 0);
    }
    EXPECT_EQ(Desk.boxes.back().text + "/" + Desk.boxes.back().caption, "QUIT?/QUIT?");
    EXPECT_EQ(Desk.boxes.back().type, MB_YESNO);
    EXPECT_EQ(Desk.boxes.back().owner, MainWnd);
    EXPECT_FALSE(Desk.bQuit);
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys);
    EXPECT_EQ(PlaceOf(far).left, 1100);
    EXPECT_TRUE(Desk.files.empty());
}

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

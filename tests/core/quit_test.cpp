#include "core/quit.h"

#include "core/main.h"
#include "support/quorl_test.h"

class Quitting : public RunningQuorl {
  protected:
    HWND far = OpenWindow("far", {1100, 200, 1300, 300});
};

TEST_F(Quitting, WhatComesAfterYesNeitherMovesAWindowThatWasFoldedBackNorSavesAgain) {
    Command(47);
    const auto saved = Desk.files;
    Desk.files.clear();
    WillAnswer({IDYES, IDYES});
    PostMessageA(MainWnd, WM_CLOSE, 0, 0);
    Desk.foreground = far;
    for (const WPARAM row : {WPARAM{30}, WPARAM{101}}) // pressed while the box was open
        PostMessageA(MainWnd, WM_HOTKEY, row, 0);
    Settle();
    EXPECT_EQ(PlaceOf(far).left, 76);
    EXPECT_EQ(Desk.files, saved);
    EXPECT_EQ(ConfirmQuit(MainWnd), 1);
    SendMessageA(MainWnd, WM_ENDSESSION, 1, 0);
    EXPECT_EQ(Desk.files, saved) << "the bindings are released by now";
}

// The box over a refused combination lets the user close Quorl before it has read its settings.
TEST_F(QuorlTest, ThatIsQuitDuringItsStartSavesNothingAndLeavesNoIcon) {
    Desk.fault = {"RegisterHotKey", 1, 0, ERROR_HOTKEY_ALREADY_REGISTERED, 0};
    Desk.inBox = [] {
        Desk.inBox = nullptr;
        ConfirmQuit(MainWnd);
    };
    WillAnswer({IDYES, IDOK});
    EXPECT_EQ(WinMain(nullptr, nullptr, nullptr, 0), 0);
    EXPECT_FALSE(Desk.bRunDry);
    EXPECT_TRUE(Desk.tray.empty());
    EXPECT_TRUE(Desk.files.empty());
    EXPECT_TRUE(Hook.set.empty());
}

TEST_F(Quitting, TheEndOfTheSessionSavesIfThatIsWantedAndFoldsIfOthersStay) {
    const auto saves = [](int bWanted, WPARAM bEnds, LPARAM why) {
        Desk.files.clear();
        ActionTable[ROW_SAVE_SETTINGS].value = bWanted;
        SendMessageA(MainWnd, WM_ENDSESSION, bEnds, why);
        return !Desk.files.empty();
    };
    EXPECT_FALSE(saves(1, 0, 0));
    EXPECT_FALSE(saves(0, 1, 0));
    EXPECT_TRUE(saves(1, 1, 0));
    EXPECT_EQ(PlaceOf(far).left, 1100);
    EXPECT_FALSE(saves(0, 1, ENDSESSION_CLOSEAPP));
    EXPECT_EQ(PlaceOf(far).left, 76);
}

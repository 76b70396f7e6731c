#include "settings/settings_test.h"

#include <algorithm>

using ActionsFile = QuorlTest;

static bool IsRegistered(int row, UINT modifiers, UINT key) {
    return std::ranges::any_of(Desk.hotkeys, [=](const DeskHotkey& held) {
        return held.window == MainWnd && held.id == row && held.modifiers == modifiers && held.key == key;
    });
}

TEST_F(ActionsFile, AStoredCombinationTakesThePlaceOfTheDefault) {
    Desk.hotkeys.push_back({nullptr, 0, MOD_CONTROL | MOD_ALT, VK_LEFT}); // row 28's default, held elsewhere
    StoreFile("Action28=-1|-1|4|112|0\nAction54=1|8|0|66|1\n");
    StartQuorl();
    EXPECT_TRUE(IsRegistered(28, MOD_CONTROL, VK_F1));
    EXPECT_TRUE(IsRegistered(54, 0, 'B'));
    EXPECT_EQ(ActionTable[54].mouse_mods, 1);
    EXPECT_EQ(ActionTable[54].mouse_btn, 8);
    EXPECT_TRUE(IsRegistered(30, MOD_CONTROL | MOD_ALT, VK_RIGHT)) << "no line: the default stays";

    Load("Action28=-1|-1|6|39|0\nAction30=-1|-1|4|112|0\n"); // two rows have swapped theirs: no box comes
    EXPECT_TRUE(IsRegistered(28, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    EXPECT_TRUE(IsRegistered(30, MOD_CONTROL, VK_F1));
}

TEST_F(ActionsFile, ARefusedCombinationIsReportedOnceAndKept) {
    Desk.hotkeys.push_back({nullptr, 0, MOD_CONTROL, VK_F1});
    StoreFile("Action28=-1|-1|4|112|0\n");
    WillAnswer({IDOK});
    StartQuorl();
    EXPECT_EQ(Desk.boxes.size(), 1u);
    Command(47);
    EXPECT_EQ(Stored("Action28"), "-1|-1|4|112|0");
}

TEST_F(ActionsFile, ARowThatForbidsLoadingLeavesAllDefaultsAndKeepsItsOwnKey) {
    StoreFile("border=9\nAction28=-1|-1|4|112|0\nAction71=0|8|4|113|0\n");
    StartQuorl();
    EXPECT_EQ(Options.border, 5);
    EXPECT_TRUE(IsRegistered(28, MOD_CONTROL | MOD_ALT, VK_LEFT));
    EXPECT_TRUE(IsRegistered(71, MOD_CONTROL, VK_F1 + 1));
    EXPECT_EQ(ActionTable[71].mouse_btn, 8);
}

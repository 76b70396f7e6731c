#include "settings/settings_test.h"

#include <algorithm>

using ActionsFile = QuorlTest;

static bool IsRegistered(ActionId id, UINT modifiers, UINT key) {
    return std::ranges::any_of(Desk.hotkeys, [=](const DeskHotkey& held) {
        return held.window == MainWnd && held.id == id && held.modifiers == modifiers && held.key == key;
    });
}

TEST_F(ActionsFile, AStoredBindingReplacesTheDefault) {
    Desk.hotkeys.push_back({nullptr, 0, MOD_CONTROL | MOD_ALT, VK_LEFT}); // the default, held elsewhere
    StoreFile("Action28=-1|-1|4|112|0\nAction54=1|8|0|66|1\n");
    StartQuorl();
    EXPECT_TRUE(IsRegistered(ACTION_SCREEN_LEFT, MOD_CONTROL, VK_F1));
    EXPECT_TRUE(IsRegistered(ACTION_OPTIONS, 0, 'B'));
    EXPECT_EQ(ActionTable[ACTION_OPTIONS].mouse_mods, KEY_SHIFT);
    EXPECT_EQ(ActionTable[ACTION_OPTIONS].mouse_btn, LBUTTON);
    EXPECT_TRUE(IsRegistered(ACTION_SCREEN_RIGHT, MOD_CONTROL | MOD_ALT, VK_RIGHT)) << "no line";

    Load("Action28=-1|-1|6|39|0\nAction30=-1|-1|4|112|0\nAction0=-1|-1|4|113|0\n"); // the two swap their
                                                                                    // hotkeys
    EXPECT_TRUE(IsRegistered(ACTION_SHOW_MENU, MOD_CONTROL, VK_F1 + 1)) << "the first of all";
    EXPECT_TRUE(IsRegistered(ACTION_SCREEN_LEFT, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    EXPECT_TRUE(IsRegistered(ACTION_SCREEN_RIGHT, MOD_CONTROL, VK_F1));
}

TEST_F(ActionsFile, ARefusedBindingIsReportedAndKeptUnlessItIsADefault) {
    Desk.hotkeys = {{nullptr, 0, MOD_CONTROL, VK_F1}, {nullptr, 0, MOD_CONTROL | MOD_ALT, VK_RIGHT}};
    StoreFile("Action28=-1|-1|4|112|0\n");
    AnswerBoxes({IDOK, IDOK});
    StartQuorl();
    EXPECT_EQ(Desk.boxes.size(), 2U);
    EXPECT_EQ(LastBox(), "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)\n"
                         "Another program has already registered the hotkey combination./Error");
    EXPECT_EQ(Desk.hotkeys.size(), 2U + 9U) << "all others are registered";
    RunAction(ACTION_SAVE_SETTINGS);
    EXPECT_EQ(Stored("Action28") + " " + Stored("Action30"), "-1|-1|4|112|0 -1|-1|-1|-1|0");
}

TEST_F(ActionsFile, WithLoadingOffOnlyItsOwnActionIsRead) {
    StoreFile("border=9\nAction28=-1|-1|4|112|0\nAction71=0|8|4|113|0\n");
    StartQuorl();
    EXPECT_EQ(Options.border, 5);
    EXPECT_TRUE(IsRegistered(ACTION_SCREEN_LEFT, MOD_CONTROL | MOD_ALT, VK_LEFT));
    EXPECT_TRUE(IsRegistered(ACTION_LOAD_AT_START, MOD_CONTROL, VK_F1 + 1));
}

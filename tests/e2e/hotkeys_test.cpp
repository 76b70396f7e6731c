// The keys that work without any settings, pressed for real.
#include "user.h"

namespace {

struct KeyStep {
    std::initializer_list<WORD> keys;
    int dx, dy; // what it does to a window
};
const KeyStep ViewKeys[] = {
    {{VK_CONTROL, VK_MENU, VK_SHIFT, VK_RIGHT}, -5,        0        },
    {{VK_CONTROL, VK_MENU, VK_SHIFT, VK_DOWN},  0,         -5       },
    {{VK_CONTROL, VK_MENU, VK_SHIFT, VK_LEFT},  5,         0        },
    {{VK_CONTROL, VK_MENU, VK_SHIFT, VK_UP},    0,         5        },
    {{VK_CONTROL, VK_MENU, VK_RIGHT},           -SCREEN_W, 0        },
    {{VK_CONTROL, VK_MENU, VK_DOWN},            0,         -SCREEN_H},
    {{VK_CONTROL, VK_MENU, VK_LEFT},            SCREEN_W,  0        },
    {{VK_CONTROL, VK_MENU, VK_UP},              0,         SCREEN_H },
};

} // namespace

TEST(Hotkeys, EachOfTheViewKeysMovesTheWindows) {
    Place place = {200, 150, 600, 450};
    const HWND editor = OpenWindow("editor", place);
    ASSERT_TRUE(StartQuorl());
    for (const KeyStep& step : ViewKeys) {
        PressKeys(step.keys);
        place = Moved(place, step.dx, step.dy);
        EXPECT_SOON(PlaceOf(editor), place) << "key " << *(step.keys.end() - 1);
    }
}

TEST(Hotkeys, TheActiveWindowIsLockedAndUnlocked) {
    const Place place = {200, 150, 600, 450}, otherPlace = {300, 250, 700, 550};
    const HWND witness = OpenWindow("witness", otherPlace); // undermost: moved last
    const HWND editor = OpenWindow("editor", place);
    ASSERT_TRUE(StartQuorl());
    Activate(editor);
    PressKeys({VK_LWIN, VK_DOWN});
    EXPECT_SOON(TipStrip() != nullptr, true) << "it says what it locked";
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(witness), Moved(otherPlace, -SCREEN_W, 0));
    EXPECT_EQ(PlaceOf(editor), place);

    EXPECT_SOON(TipStrip(), HWND{});
    PressKeys({VK_LWIN, VK_UP});
    EXPECT_SOON(TipStrip() != nullptr, true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(place, 0, -SCREEN_H));
}

TEST(Hotkeys, TheMenuOpensAndCloses) {
    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, VK_SPACE});
    EXPECT_SOON(OpenedMenu() != nullptr, true);
    PressKeys({VK_ESCAPE});
    EXPECT_SOON(OpenedMenu(), HWND{});
}

TEST(Hotkeys, ARefusedCombinationIsReportedAndTheOthersWork) {
    const Place place = {200, 150, 600, 450};
    const HWND editor = OpenWindow("editor", place);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    LaunchQuorl();

    const HWND box = WaitForBox("Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
                            "\nAnother program has already registered the hotkey combination.");
    Activate(box);
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(box));

    EXPECT_SOON(QuorlWindow() && IsWindowVisible(QuorlWindow()), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(place, 0, -SCREEN_H));
    UnregisterHotKey(nullptr, 1);
}

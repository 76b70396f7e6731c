// The keys that work without any settings, pressed for real.
#include "dialogs.h"
#include "settings_file.h"

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
    Place place = EDITOR;
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    for (const KeyStep& step : ViewKeys) {
        PressKeys(step.keys);
        place = Moved(place, step.dx, step.dy);
        EXPECT_SOON(PlaceOf(editor), place) << "key " << *(step.keys.end() - 1);
    }
}

TEST(Hotkeys, TheActiveWindowIsLockedAndUnlocked) {
    const Place otherPlace = {300, 250, 700, 550};
    const HWND witness = OpenWindow("witness", otherPlace); // undermost: moved last
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    Activate(editor);
    PressKeys({VK_LWIN, VK_DOWN});
    EXPECT_SOON(TipStrip() != nullptr, true) << "it says what it locked";
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(witness), Moved(otherPlace, -SCREEN_W, 0));
    EXPECT_EQ(PlaceOf(editor), EDITOR);

    EXPECT_SOON(TipStrip(), HWND{});
    PressKeys({VK_LWIN, VK_UP});
    EXPECT_SOON(TipStrip() != nullptr, true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));
}

TEST(Hotkeys, ARefusedCombinationIsReportedAtTheFirstStartOnlyAndTheOthersWork) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    LaunchQuorl();
    EXPECT_EQ(BoxText(WaitForBox("Error")),
              "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
              "\nAnother program has already registered the hotkey combination.");
    AnswerBox("Error", VK_RETURN);
    EXPECT_SOON(IsMapShown(), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));

    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    AnswerBox("QUIT?", 'Y');
    EXPECT_SOON(QuorlWindow(), HWND{});
    EXPECT_EQ(Stored("Action30"), "-1|-1|-1|-1|0");
    EXPECT_TRUE(StartQuorl()) << "it is on show: no box holds it up";
    UnregisterHotKey(nullptr, 1);
}

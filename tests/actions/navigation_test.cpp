#include "actions/navigation.h"

#include "core/state.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

class Navigation : public QuorlTest {};

TEST_F(Navigation, TheNeighbourIsActivatedAndTheViewStays) {
    const HWND left = OpenWindow("left", {0, 100, 200, 300});
    const HWND right = OpenWindow("right", {1500, 100, 1700, 300}); // off the screen
    const HWND middle = OpenWindow("middle", {400, 100, 600, 300});
    const HWND nameless = OpenWindow("", {400, 500, 600, 600});
    StartQuorl();
    Desk.foreground = middle;

    Command(117);
    EXPECT_EQ(Desk.foreground, right);
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768));

    Desk.foreground = middle;
    Command(118);
    EXPECT_EQ(Desk.foreground, left);

    Desk.foreground = middle;
    Command(120);
    EXPECT_EQ(Desk.foreground, middle) << "a window without a title is found, and refused";
    EXPECT_EQ(Desk.beeps.size(), 1u);
    Command(119);
    EXPECT_EQ(Desk.beeps.size(), 2u) << "nothing lies above";
    EXPECT_NE(RowOf(nameless).handle, nullptr);
}

TEST_F(Navigation, WithoutAnActiveWindowTheOneUnderTheCursorCounts) {
    const HWND under = OpenWindow("under", {400, 300, 600, 500});
    const HWND beside = OpenWindow("beside", {700, 300, 800, 500});
    StartQuorl();
    Desk.foreground = nullptr;
    Desk.cursor = {500, 400};

    Command(117);
    EXPECT_EQ(Desk.foreground, beside);

    Desk.foreground = nullptr;
    Desk.cursor = {5, 5}; // nobody: the sweep starts at the screen's far side
    Command(117);
    EXPECT_EQ(Desk.foreground, under);
}

TEST_F(Navigation, CyclingTakesWindowsThatLieWhollyInView) {
    const HWND bottom = OpenWindow("bottom", {0, 0, 100, 100});
    const HWND second = OpenWindow("second", {924, 668, 1024, 768});
    OpenWindow("partly", {1000, 0, 1100, 100});
    StartQuorl();
    const HWND top = OpenWindow("top", {200, 200, 300, 300});
    Wait(1300);

    Command(24);
    EXPECT_EQ(Desk.foreground, second);

    Wait(1300); // the snapshot follows: second, top, bottom
    Command(25);
    EXPECT_EQ(Desk.foreground, bottom);

    KillWindow(second);
    KillWindow(bottom);
    Wait(200);
    Desk.foreground = nullptr;
    Command(24);
    EXPECT_EQ(Desk.foreground, nullptr) << "one window alone has nowhere to go: " << RowOf(top).title;
}

TEST_F(Navigation, ACornerInTheRectangleCountsAndBothEndsOfASideDo) {
    const RECT screen{0, 0, 1024, 768};
    struct Case {
        RECT window;
        int within, corner;
    };
    const Case cases[] = {
        {{0, 0, 1024, 768},      1, 1},
        {{-1, 0, 1024, 768},     0, 1},
        {{1024, 768, 1100, 800}, 0, 1},
        {{1025, 0, 1100, 800},   0, 0},
        {{-10, -10, 1100, 800},  0, 0}, // covers the screen: no corner in it
        {{-10, 100, 1100, 200},  0, 0},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(LiesWithin(each.window, screen), each.within) << testing::PrintToString(each.window);
        EXPECT_EQ(HasCornerIn(each.window, screen), each.corner) << testing::PrintToString(each.window);
    }
}

TEST_F(Navigation, TilingHandsOverWhatSharesAPixelWithTheScreen) {
    const HWND partly = OpenWindow("partly", {1000, 700, 1200, 900});
    const HWND hidden = OpenWindow("hidden", {0, 0, 10, 10});
    RowOf(hidden).style &= ~WS_VISIBLE;
    OpenWindow("beside", {1024, 0, 1100, 100});
    StartQuorl();
    RebuildWindowTable();
    Command(80);
    Command(81);
    ASSERT_EQ(Desk.tilings.size(), 2u);
    EXPECT_EQ(Desk.tilings[0].how, MDITILE_VERTICAL);
    EXPECT_EQ(Desk.tilings[1].how, MDITILE_HORIZONTAL);
    EXPECT_EQ(Desk.tilings[0].rect, Rect(0, 0, 1024, 768));
    EXPECT_EQ(Desk.tilings[0].windows, (std::vector<HWND>{MainWnd, hidden, partly}));
}

} // namespace

// Windows whose visible part is smaller than the rectangle that Windows reports.
#include "displays/display_test.h"

#include "scroll/scroll_view.h"
#include "windows/window_table.h"

class Frames : public ModernDesktop {
  protected:
    HWND maximized = OpenWindow("maximized", {100, 100, 500, 400});
    HWND snapped = OpenWindow("snapped", {-7, 0, 967, 1047});
    std::vector<RECT> Rects() { return {RectOf(maximized), RectOf(snapped)}; }

    void SetUp() override {
        ModernDesktop::SetUp();
        ShowWindow(maximized, SW_MAXIMIZE);
    }
};

TEST_F(Frames, WindowsAtTheEdgesReturnToThePixel) {
    ASSERT_EQ(RectOf(maximized), Rect(-8, -8, 1928, 1048));
    WindowOf(snapped).margins = Rect(8, 0, 6, 7); // of a program that is not DPI aware, off by a pixel
    const auto before = Rects();
    Wait(2000);
    RunAction(ACTION_SCREEN_RIGHT);
    EXPECT_EQ(RectOf(maximized), Rect(-1928, -8, 8, 1048));
    EXPECT_EQ(WindowOf(snapped).received.back().record, Rect(-1927, 0, 974, 1047)) << "corner and size";
    RunAction(ACTION_VIEW_DOWN_MAX);
    RunAction(ACTION_VIEW_LEFT_MIN);
    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
    EXPECT_EQ(Rects(), before);
    RunAction(ACTION_SCREEN_RIGHT);
    Exit();
    EXPECT_EQ(Rects(), before);
    EXPECT_EQ(CountCalls("MoveWindow"), 1)
        << "for the strip: a size read before a move may be wrong after it";
}

TEST_F(Frames, AMaximizedWindowIsCompletelyInView) {
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
    Desk.foreground = maximized;
    Wait(100);
    EXPECT_EQ(ViewCorner(), (POINT{0, 0}));
    WindowOf(snapped).margins = Rect(9, 0, 6, 7); // misses the edge by two pixels
    RunAction(ACTION_CYCLE_IN_VIEW);
    EXPECT_EQ(Desk.foreground, snapped);
    const HWND right = OpenWindow("right half", {953, 0, 1927, 1047});
    WindowOf(right).margins = Rect(7, 0, 6, 7);
    RebuildWindowTable();
    RunAction(ACTION_NEXT_IN_VIEW);
    EXPECT_EQ(Desk.foreground, snapped) << "the second, behind that one";
    WindowFrame frame{};
    const HWND low = OpenWindow("at the bottom", {500, 400, 900, 1087});
    WindowOf(low).margins = Rect(7, 0, 7, 6);
    ReadWindowFrame(low, &frame);
    EXPECT_EQ(frame.visible.bottom + frame.margins.bottom, 1087) << "both corrected";
    EXPECT_EQ(frame.visible.bottom, 1080);
}

TEST_F(Frames, CommandsAndTheMapAlignWhatTheUserSees) {
    const HWND window = OpenWindow("window", {500, 300, 900, 600});
    Desk.foreground = window;
    for (const ActionId id : {ACTION_ACTIVE_TO_RIGHT, ACTION_ACTIVE_TO_BOTTOM})
        RunAction(id);
    EXPECT_EQ(VisibleRect(window), Rect(1534, 787, 1920, 1080));
    RunAction(ACTION_ACTIVE_TO_LEFT);
    EXPECT_EQ(VisibleRect(window).left, 0);
    RunAction(ACTION_ACTIVE_LEFT_MAX);
    EXPECT_EQ(VisibleRect(window).left, 0) << "clamped";
    for (const auto& [left, stored] : {std::pair(-4, "=1"), std::pair(-50, "=-50")}) {
        MoveWindow(MainWnd, left, 2, 200, 100, TRUE);
        RunAction(ACTION_SAVE_SETTINGS);
        EXPECT_NE(Desk.files["quorl.ini"].find("quorl_pos.left" + std::string(stored) + "\r\n"),
                  std::string::npos);
    }
    MoveWindow(MainWnd, 2, 2, 200, 100, TRUE);
    RunAction(ACTION_TOOLWIN_LEFT_MIN);
    EXPECT_EQ(VisibleRect(MainWnd).left, 0) << "snapped";
}

// Gaps that are too wide are of a window just being restored, or of the ghost of a hung program.
TEST_F(Frames, ImplausibleMarginsAreIgnored) {
    const HWND window = OpenWindow("window", {0, 300, 400, 600});
    Desk.foreground = window;
    for (const RECT& margins : {Rect(49, 0, 7, 7), Rect(-1, 0, 7, 7), Rect(40, 0, 360, 7)}) {
        WindowOf(window).rect = {300, 300, 700, 600};
        WindowOf(window).margins = margins;
        RunAction(ACTION_ACTIVE_TO_LEFT);
        EXPECT_EQ(RectOf(window).left, 0);
    }
}

TEST_F(Frames, ARestoredWindowKeepsItsMaximizedSize) {
    ActionTable[ACTION_RESTORE_MAXIMIZED].value = 1;
    Wait(2000);
    RunAction(ACTION_VIEW_RIGHT_MAX);
    EXPECT_FALSE(IsZoomed(maximized));
    EXPECT_EQ(VisibleRect(maximized), Rect(-100, 0, 1820, 1040));
}

// A program that moves its palettes along would move them twice.
TEST_F(Frames, PalettesThatFollowTheirOwnerMoveOnce) {
    const HWND palette = OpenWindow("palette", {300, 300, 400, 500});
    WindowOf(palette).owner = snapped;
    WindowOf(snapped).movesOwned = true;
    Wait(2000);
    RunAction(ACTION_VIEW_RIGHT_MAX);
    EXPECT_EQ(RectOf(palette), Rect(200, 300, 300, 500));
    Exit();
    EXPECT_EQ(RectOf(palette), Rect(200, 300, 300, 500));
    EXPECT_EQ(RectOf(snapped).left, 1813);
}

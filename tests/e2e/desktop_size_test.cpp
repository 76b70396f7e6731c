// The desktop grows and shrinks by whole screens, and at the end everything is gathered on the one screen.
#include "user.h"

namespace {

const Place EDITOR = {200, 150, 600, 450};

} // namespace

TEST(DesktopSize, RoomOnTheLeftAndTopSlidesTheWindows) {
    struct Step {
        int row, dx, dy;
    };
    const Step steps[] = {
        {61, SCREEN_W,  0        },
        {65, -SCREEN_W, 0        },
        {63, 0,         SCREEN_H },
        {66, 0,         -SCREEN_H}
    };
    Place place = EDITOR;
    const HWND editor = OpenWindow("editor", place);
    ASSERT_TRUE(StartQuorl());
    for (const Step& step : steps) {
        DoRow(step.row);
        place = Moved(place, step.dx, step.dy);
        EXPECT_SOON(PlaceOf(editor), place) << "row " << step.row;
    }
}

TEST(DesktopSize, TheFarEdgesFollowTheSize) {
    struct Step {
        int row, screensRight, screensDown; // how far the far corner then lies from the near one
    };
    const Step steps[] = {
        {60, 4, 1},
        {62, 4, 2},
        {64, 3, 2},
        {67, 3, 1}
    };
    constexpr int RIGHT_EDGE = 35, BOTTOM_EDGE = 33, LEFT_EDGE = 34, TOP_EDGE = 32;
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(StartQuorl());
    for (const Step& step : steps) {
        DoRow(step.row);
        DoRow(RIGHT_EDGE);
        DoRow(BOTTOM_EDGE);
        EXPECT_SOON(PlaceOf(editor),
                    Moved(EDITOR, -step.screensRight * SCREEN_W, -step.screensDown * SCREEN_H))
            << "row " << step.row;
        DoRow(LEFT_EDGE);
        DoRow(TOP_EDGE);
        EXPECT_SOON(PlaceOf(editor), EDITOR);
    }
}

// The steps in which the view, the map and the active window move.
#include "core/steps.h"

#include "core/state.h"

static int StepLength(int step, int screen) {
    if (step & BY_SCREEN)
        return screen;
    return step & BY_MIN ? Options.minscroll : Options.maxscroll;
}

// -1, 0 or 1 along one axis.
static int StepSign(int step, Direction back, Direction forward) {
    return step & back ? -1 : (step & forward) != 0;
}

POINT StepDelta(int step) {
    return {StepSign(step, DIR_LEFT, DIR_RIGHT) * StepLength(step, ScreenW()),
            StepSign(step, DIR_UP, DIR_DOWN) * StepLength(step, ScreenH())};
}

// Growing and shrinking the desktop by whole screens.
#include "scroll/desktop_size.h"

#include "core/state.h"
#include "scroll/shift.h"

#include <algorithm>

// There is no negative space: a screen added on the left or on top widens the far side, and the windows
// slide.
static const SizeChange SizeChanges[] = {
    {1,  0,  0, 0}, // ADD_RIGHT
    {1,  0,  1, 0}, // ADD_LEFT
    {0,  1,  0, 0}, // ADD_BOTTOM
    {0,  1,  1, 0}, // ADD_TOP
    {-1, 0,  0, 1}, // REMOVE_RIGHT
    {-1, 0,  1, 0}, // REMOVE_LEFT
    {0,  -1, 1, 0}, // REMOVE_TOP
    {0,  -1, 0, 1}, // REMOVE_BOTTOM
};

int ChangedSize(int size, int screens, int screen) {
    if (screens > 0)
        return std::min(size + screens * screen, LARGEST_DESKTOP);
    if (screens < 0)
        return std::max(size + screens * screen, screen);
    return size;
}

int ChangeDesktopSize(const ActionCall& call) {
    const SizeChange& change = SizeChanges[call.with];
    Quorl.right = ChangedSize(Quorl.right, change.wider, ScreenW());
    Quorl.bottom = ChangedSize(Quorl.bottom, change.higher, ScreenH());
    if (change.bShifts)
        ShiftWindows(change.wider * ScreenW(), change.higher * ScreenH());
    else if (change.bPings)
        ShiftWindows(0, 0);
    Repaint(MainWnd);
    return 1;
}

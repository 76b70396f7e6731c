#include "scroll/desktop_size.h"

#include "core/rect.h"
#include "core/state.h"
#include "scroll/shift.h"

#include <algorithm>

namespace {

// One action's change of the desktop, in screens.
struct SizeChange {
    int width, height; // -1, 0 or 1
    bool bShifts;      // all windows move by the change
    bool bClamps;      // windows left of the desktop or above it move to its edge
};

} // namespace

// There is no negative space: adding a screen on the left or top extends the far side and shifts the windows.
static const SizeChange SizeChanges[] = {
    {1, 0, false, false}, // ADD_RIGHT
    {1, 0, true, false},  // ADD_LEFT
    {0, 1, false, false}, // ADD_BOTTOM
    {0, 1, true, false},  // ADD_TOP
    {-1, 0, false, true}, // REMOVE_RIGHT
    {-1, 0, true, false}, // REMOVE_LEFT
    {0, -1, true, false}, // REMOVE_TOP
    {0, -1, false, true}, // REMOVE_BOTTOM
};

RECT ChosenDesktop;

static int LimitSize(long long size) {
    return static_cast<int>(std::min(size, 0LL + LARGEST_DESKTOP));
}

void ResetDesktop() {
    SetDesktop({ScreenRect.left, ScreenRect.top, LimitSize(4LL * ScreenW()), LimitSize(2LL * ScreenH())});
}

void SetDesktop(const RECT& desktop) {
    ChosenDesktop = desktop;
    FitDesktop();
}

// A side that does not change keeps the size that the user chose, even if the screen is larger at present.
void SetDesktopSize(int width, int height) {
    SetDesktop({Quorl.left, Quorl.top, width == Quorl.right ? ChosenDesktop.right : width,
                height == Quorl.bottom ? ChosenDesktop.bottom : height});
}

void FitDesktop() {
    Quorl = ChosenDesktop;
    Quorl.right = std::max<LONG>(Quorl.right, ScreenW());
    Quorl.bottom = std::max<LONG>(Quorl.bottom, ScreenH());
}

static int ChangedSize(int size, int screens, int screen) {
    const long long changed = size + 1LL * screens * screen;
    if (screens > 0)
        return LimitSize(changed);
    return screens < 0 ? static_cast<int>(std::max(changed, 0LL + screen)) : size;
}

void ChangeDesktopSize(const ActionCall& call) {
    if (!MayScroll())
        return; // the windows could not follow
    const SizeChange& change = SizeChanges[call.argument];
    SetDesktopSize(ChangedSize(Quorl.right, change.width, ScreenW()),
                   ChangedSize(Quorl.bottom, change.height, ScreenH()));
    if (change.bShifts)
        ShiftWindows(change.width * ScreenW(), change.height * ScreenH());
    else if (change.bClamps)
        ShiftWindows(0, 0);
    Repaint(MainWnd);
}

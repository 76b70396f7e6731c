// Commands on the active window of any program.
#include "commands/active_window.h"

#include "core/rect.h"
#include "core/state.h"
#include "core/steps.h"
#include "status/status_strip.h"
#include "windows/locked_windows.h"
#include "windows/window_table.h"

namespace {

// A sequence of beeps that rises or falls.
struct BeepSequence {
    int first, last, step; // hertz
};

} // namespace

static const BeepSequence RISING{0, 11000, 1000};
static const BeepSequence FALLING{12000, 0, -1000};
static const DWORD BEEP_LENGTH = 10; // milliseconds

// One axis. `view` is the near edge of the view, `desktop` the size of the desktop.
static int ClampCoordinate(int coordinate, int size, int view, int desktop) {
    if (Wrap(0LL + view + coordinate) < 0)
        coordinate = Wrap(0LL - view);
    if (Wrap(0LL + view + coordinate + size) > desktop)
        coordinate = Wrap(0LL + desktop - view - size);
    return coordinate;
}

// Pure: the position clamped to the desktop, in screen pixels. A window larger than the desktop is aligned to
// its far edge.
static WindowPosition ClampToDesktop(WindowPosition position, const RECT& vdesk, const RECT& quorl) {
    position.x = ClampCoordinate(position.x, position.width, vdesk.left, quorl.right);
    position.y = ClampCoordinate(position.y, position.height, vdesk.top, quorl.bottom);
    return position;
}

// The active window and its position; null if there is none or it has just gone.
static HWND ActiveWindow(WindowPosition* position) {
    const HWND active = GetForegroundWindow();
    RECT rect{};
    if (!active || !GetOtherWindowRect(active, &rect))
        return nullptr;
    *position = {rect.left, rect.top, Width(rect), Height(rect)};
    return active;
}

int MoveActiveWindow(const ActionCall& call) {
    WindowPosition position{};
    const HWND active = ActiveWindow(&position);
    if (!active)
        return 0;
    const POINT step = StepDelta(call.argument);
    position.x = Wrap(0LL + position.x + step.x);
    position.y = Wrap(0LL + position.y + step.y);
    PingMoveAndShow(active, ClampToDesktop(position, VDesk, Quorl));
    return 1;
}

int MoveActiveToEdge(const ActionCall& call) {
    WindowPosition position{};
    const HWND active = ActiveWindow(&position);
    if (!active)
        return 0;
    switch (call.argument) {
    case DIR_LEFT: position.x = 0; break;
    case DIR_RIGHT: position.x = Wrap(0LL + ScreenW() - position.width); break;
    case DIR_UP: position.y = 0; break;
    case DIR_DOWN: position.y = Wrap(0LL + ScreenH() - position.height); break;
    default: break;
    }
    PingMoveAndShow(active, ClampToDesktop(position, VDesk, Quorl));
    return 1;
}

int CenterActiveWindow(const ActionCall&) {
    WindowPosition position{};
    const HWND active = ActiveWindow(&position);
    if (!active)
        return 0;
    position.x = ScreenW() / 2 - position.width / 2;
    position.y = ScreenH() / 2 - position.height / 2;
    PingMoveAndShow(active, position);
    return 1;
}

int ToggleActiveTopmost(const ActionCall&) {
    ToggleTopmost(GetForegroundWindow());
    return 1;
}

static void Play(const BeepSequence& sequence) {
    for (int hertz = sequence.first; hertz != sequence.last + sequence.step; hertz += sequence.step)
        Beep(static_cast<DWORD>(hertz), BEEP_LENGTH);
}

int LockActiveWindow(const ActionCall& call) {
    const HWND active = GetForegroundWindow();
    char title[256] = "";
    GetWindowTextA(active, title, 255);
    if (!IsManagedWindow(active))
        return 0;
    Play(call.argument ? RISING : FALLING);
    ShowTip(call.argument ? "Locked Window: %s" : "Unlocked Window: %s", title);
    if (call.argument)
        LockWindow(active);
    else
        UnlockWindow(active);
    return 1;
}

int FlashGivenWindow(const ActionCall& call) {
    return FlashWindow(call.window, TRUE);
}

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

// Pure: the corner of a window of that size, clamped to the desktop. Screen pixels. A window larger than the
// desktop is aligned to its far edge.
static POINT ClampToDesktop(POINT corner, SIZE size, const RECT& vdesk, const RECT& quorl) {
    return {ClampCoordinate(corner.x, size.cx, vdesk.left, quorl.right),
            ClampCoordinate(corner.y, size.cy, vdesk.top, quorl.bottom)};
}

static void MoveOnDesktop(HWND window, const WindowFrame& frame, POINT corner) {
    const SIZE size{Width(frame.visible), Height(frame.visible)};
    PingMoveAndShow(window, frame, ClampToDesktop(corner, size, VDesk, Quorl));
}

// The target unless it is part of the shell, as the desktop and the taskbar are: those stay where they are.
static HWND CommandTarget(const ActionCall& call) {
    return call.target && !IsShellWindow(call.target) ? call.target : nullptr;
}

// The window to move and where it is; null if there is none or it has just gone or been minimized.
static HWND WindowToMove(const ActionCall& call, WindowFrame* frame) {
    const HWND window = CommandTarget(call);
    return window && ReadWindowFrame(window, frame) && !frame->bMinimized ? window : nullptr;
}

void MoveActiveWindow(const ActionCall& call) {
    WindowFrame frame{};
    const HWND window = WindowToMove(call, &frame);
    if (!window)
        return;
    const POINT step = StepDelta(call.argument);
    MoveOnDesktop(window, frame,
                  {Wrap(0LL + frame.visible.left + step.x), Wrap(0LL + frame.visible.top + step.y)});
}

void MoveActiveToEdge(const ActionCall& call) {
    WindowFrame frame{};
    const HWND window = WindowToMove(call, &frame);
    if (!window)
        return;
    POINT corner{frame.visible.left, frame.visible.top};
    switch (call.argument) {
    case DIR_LEFT: corner.x = 0; break;
    case DIR_RIGHT: corner.x = Wrap(0LL + ScreenW() - Width(frame.visible)); break;
    case DIR_UP: corner.y = 0; break;
    case DIR_DOWN: corner.y = Wrap(0LL + ScreenH() - Height(frame.visible)); break;
    default: break;
    }
    MoveOnDesktop(window, frame, corner);
}

void CenterActiveWindow(const ActionCall& call) {
    WindowFrame frame{};
    const HWND window = WindowToMove(call, &frame);
    if (!window)
        return;
    PingMoveAndShow(window, frame,
                    {ScreenW() / 2 - Width(frame.visible) / 2, ScreenH() / 2 - Height(frame.visible) / 2});
}

// Hiding it gave the foreground away.
void ToggleActiveTopmost(const ActionCall& call) {
    if (const HWND window = CommandTarget(call)) {
        ToggleTopmost(window);
        ReturnForeground(window);
    }
}

static void Play(const BeepSequence& sequence) {
    for (int hertz = sequence.first; hertz != sequence.last + sequence.step; hertz += sequence.step)
        Beep(static_cast<DWORD>(hertz), BEEP_LENGTH);
}

void LockActiveWindow(const ActionCall& call) {
    const HWND active = call.target;
    WCHAR title[256] = L"";
    GetWindowTextW(active, title, 255);
    if (!IsManagedWindow(active))
        return;
    Play(call.argument ? RISING : FALLING);
    ShowTitleTip(call.argument ? "Locked Window: " : "Unlocked Window: ", title, "");
    if (call.argument)
        LockWindow(active);
    else
        UnlockWindow(active);
}

void FlashGivenWindow(const ActionCall& call) {
    FlashWindow(call.window, TRUE);
}

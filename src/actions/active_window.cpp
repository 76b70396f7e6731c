// Commands on the foreground window of any program.
#include "actions/active_window.h"

#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/window_table.h"
#include "toolwin/tip.h"

namespace {

// A row of beeps that rises or falls.
struct Ladder {
    int first, last, step; // hertz
};

} // namespace

static const Ladder RISING{0, 11000, 1000};
static const Ladder FALLING{12000, 0, -1000};
static const DWORD BEEP_LENGTH = 10; // milliseconds

WindowPlace MovedPlace(WindowPlace place, int dx, int dy, int how, int screenW, int screenH) {
    switch (how) {
    case MOVE_BY:
        place.x += dx;
        place.y += dy;
        break;
    case TO_LEFT: place.x = 0; break;
    case TO_RIGHT: place.x = screenW - place.width; break;
    case TO_TOP: place.y = 0; break;
    case TO_BOTTOM: place.y = screenH - place.height; break;
    default: break;
    }
    return place;
}

WindowPlace KeptOnDesktop(WindowPlace place, const RECT& vdesk, const RECT& quorl) {
    if (vdesk.left + place.x < 0)
        place.x = -vdesk.left;
    if (vdesk.left + place.width + place.x > quorl.right)
        place.x = quorl.right - vdesk.left - place.width;
    if (vdesk.top + place.y < 0)
        place.y = -vdesk.top;
    if (vdesk.top + place.y + place.height > quorl.bottom)
        place.y = quorl.bottom - vdesk.top - place.height;
    return place;
}

// The foreground window with its place; null if there is none or it is gone by now.
static HWND ActiveWindow(WindowPlace* place) {
    const HWND active = GetForegroundWindow();
    RECT rect{};
    if (!active || !GetWindowRect(active, &rect))
        return nullptr;
    *place = {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    return active;
}

int MoveActiveWindow(HWND, int dx, int dy, int how) {
    WindowPlace place{};
    const HWND active = ActiveWindow(&place);
    if (!active)
        return 0;
    place = MovedPlace(place, dx, dy, how, ScreenW(), ScreenH());
    PlaceWindow(active, KeptOnDesktop(place, VDesk, Quorl));
    return 1;
}

int CenterActiveWindow(HWND) {
    WindowPlace place{};
    const HWND active = ActiveWindow(&place);
    if (!active)
        return 0;
    place.x = ScreenW() / 2 - place.width / 2;
    place.y = ScreenH() / 2 - place.height / 2;
    PlaceWindow(active, place);
    return 1;
}

// Hidden meanwhile, since some windows change their place among the others only when they show afresh.
int ToggleActiveTopmost(HWND) {
    const HWND active = GetForegroundWindow();
    if (!IsAlive(active))
        return 1;
    const LONG_PTR exStyle = GetWindowLongPtrA(active, GWL_EXSTYLE);
    ShowWindow(active, SW_HIDE);
    SetWindowPos(active, exStyle & WS_EX_TOPMOST ? HWND_NOTOPMOST : HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE);
    ShowWindow(active, SW_SHOW);
    return 1;
}

static WindowRow* RowInTable(HWND window) {
    for (int row = 0; row < num_windows; ++row)
        if (WindowTable[row].hwnd == window)
            return &WindowTable[row];
    return nullptr;
}

static void Play(const Ladder& ladder) {
    for (int hertz = ladder.first; hertz != ladder.last + ladder.step; hertz += ladder.step)
        Beep(static_cast<DWORD>(hertz), BEEP_LENGTH);
}

// First the sound, then the tip, and the list last.
int LockActiveWindow(HWND, int lock) {
    const HWND active = GetForegroundWindow();
    char title[256] = "";
    GetWindowTextA(active, title, 255);
    WindowRow* row = IsManagedWindow(active) ? RowInTable(active) : nullptr;
    if (!row)
        return 0;
    row->locked = lock;
    Play(lock ? RISING : FALLING);
    Tell(lock ? "Locked Window: %s" : "Unlocked Window: %s", title);
    if (lock)
        LockWindow(active);
    else
        UnlockWindow(active);
    return 1;
}

static int Amount(int with, int screen) {
    if (with & AMOUNT_SCREEN)
        return screen;
    return with & AMOUNT_MIN ? Options.minscroll : Options.maxscroll;
}

// Which way along one axis.
static int Sign(int with, int back, int forth) {
    return with & back ? -1 : (with & forth) != 0;
}

int MoveActive(const ActionCall& call) {
    const int edge = call.with & (TO_TOP | TO_BOTTOM | TO_LEFT | TO_RIGHT);
    if (edge == call.with)
        return MoveActiveWindow(call.window, 0, 0, edge);
    const int dx = Sign(call.with, TO_LEFT, TO_RIGHT) * Amount(call.with, ScreenW());
    const int dy = Sign(call.with, TO_TOP, TO_BOTTOM) * Amount(call.with, ScreenH());
    return MoveActiveWindow(call.window, dx, dy, MOVE_BY);
}

int CenterActive(const ActionCall& call) {
    return CenterActiveWindow(call.window);
}

int FlashGivenWindow(const ActionCall& call) {
    return FlashWindow(call.window, TRUE);
}

int ToggleTopmost(const ActionCall& call) {
    return ToggleActiveTopmost(call.window);
}

int LockActive(const ActionCall& call) {
    return LockActiveWindow(call.window, call.with);
}

#include "scroll/display_change.h"

#include "core/displays.h"
#include "core/rect.h"
#include "core/state.h"
#include "scroll/desktop_size.h"
#include "scroll/scroll_view.h"
#include "scroll/shift.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

#include <cstring>

static const UINT_PTR SETTLE_TIMER = 2004;

// Milliseconds. Displays change in steps, and between these Windows moves windows itself; it skips a window
// that has been moved meanwhile.
static const UINT SETTLE_TIME = 1500;

static DisplayLayout Measured; // while the displays change: what was found last

static const Display* FindDevice(const DisplayLayout& layout, const char* device) {
    for (int i = 0; i < layout.count; ++i)
        if (!std::strcmp(layout.displays[i].device, device))
            return &layout.displays[i];
    return nullptr;
}

// Pure: how far the first display that is in both layouts has moved inside the union of all.
static POINT MovementInUnion(const DisplayLayout& before, const DisplayLayout& now) {
    for (int i = 0; i < now.count; ++i) {
        const Display& display = now.displays[i];
        if (const Display* const same = FindDevice(before, display.device))
            return {
                Wrap((0LL + display.rect.left - now.all.left) - (0LL + same->rect.left - before.all.left)),
                Wrap((0LL + display.rect.top - now.all.top) - (0LL + same->rect.top - before.all.top))};
    }
    return {0, 0};
}

static void KeepMapOnDisplay() {
    WindowFrame frame{};
    if (ReadWindowFrame(MainWnd, &frame) && !IsOnDisplay(frame.visible))
        MoveOwnWindow(MainWnd, frame, KeepInReach(frame.visible));
}

static void AdoptDisplays(const DisplayLayout& now) {
    const POINT moved = MovementInUnion(Displays, now);
    UseDisplays(now);
    FitDesktop();
    SetView({Wrap(0LL + VDesk.left - moved.x), Wrap(0LL + VDesk.top - moved.y)});
    ReturnUnseenWindows();
    if (bDisplaysChanging)
        return; // they changed again: the table keeps where the remaining windows belong
    KeepMapOnDisplay();
    RebuildWindowTable();
    ShowView();
    Repaint(MainWnd);
}

static void CALLBACK DisplaysSettled(HWND window, UINT, UINT_PTR, DWORD) {
    KillTimer(window, SETTLE_TIMER);
    bDisplaysChanging = false;
    if (!MayScroll())
        return OnDisplayChange(); // a scroll is under way, below an open message box
    DisplayLayout now;
    MonitorUnion(&now);
    if (now.count)
        AdoptDisplays(now); // without any display the old layout stays
}

void UseCurrentDisplays() {
    DisplayLayout now;
    MonitorUnion(&now);
    if (now.count)
        UseDisplays(now);
}

void OnDisplayChange() {
    MonitorUnion(&Measured);
    bDisplaysChanging = SetTimer(MainWnd, SETTLE_TIMER, SETTLE_TIME, DisplaysSettled) != 0;
}

void CheckDisplays() {
    DisplayLayout now;
    MonitorUnion(&now);
    if (!IsSameLayout(now, bDisplaysChanging ? Measured : Displays))
        OnDisplayChange();
}

// Moving the focus among windows by geometry, and tiling the windows in view.
#include "commands/navigation.h"

#include "commands/neighbour_sweep.h"
#include "core/displays.h"
#include "core/state.h"
#include "status/status_strip.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

// The windows that the sweep can find; each is read once.
static HWND Candidates[MAX_WINDOWS];
static RECT CandidateRects[MAX_WINDOWS];

static HWND StartWindow(HWND target) {
    if (IsManagedWindow(target))
        return target;
    POINT cursor{};
    GetCursorPos(&cursor);
    const HWND under = WindowFromPoint(cursor);
    return IsManagedWindow(under) ? under : nullptr;
}

static int CollectCandidates(HWND start) {
    int count = 0;
    for (int i = 0; i < num_windows; ++i) {
        const HWND window = WindowTable[i].hwnd;
        WindowFrame frame{};
        if (window == start || !IsManagedWindow(window, &frame))
            continue;
        CandidateRects[count] = frame.visible;
        Candidates[count++] = window;
    }
    return count;
}

void FocusNeighbour(const ActionCall& call) {
    const auto direction = static_cast<Direction>(call.argument);
    const HWND window = StartWindow(call.target);
    RECT start = FarSide(ScreenRect, direction);
    if (window && !GetVisibleRect(window, &start))
        return;
    const int count = CollectCandidates(window);
    const int found = FindNeighbour({direction, start, CandidateRects, count, VDesk, Quorl});
    WCHAR title[128] = L"";
    if (found < 0 || !GetWindowTextW(Candidates[found], title, 127)) {
        MessageBeep(0);
        return;
    }
    ShowTitleTip("", title, "");
    ActivateWindow(Candidates[found]);
}

static bool IsCompletelyInView(HWND window) {
    WindowFrame frame{};
    const RECT& rect = frame.visible;
    return IsManagedWindow(window, &frame) && rect.left >= ScreenRect.left &&
           rect.right <= ScreenRect.right && rect.top >= ScreenRect.top && rect.bottom <= ScreenRect.bottom;
}

// The table starts with the topmost window. Activating the second repeatedly alternates between two windows;
// activating the last goes through all.
void CycleView(const ActionCall& call) {
    HWND second = nullptr;
    HWND last = nullptr;
    int found = 0;
    for (int i = 0; i < num_windows; ++i) {
        if (!IsCompletelyInView(WindowTable[i].hwnd))
            continue;
        last = WindowTable[i].hwnd;
        if (++found == 2)
            second = last;
    }
    if (found < 2)
        return;
    ActivateWindow(call.argument == CYCLE_SECOND ? second : last);
}

static bool ShowsOn(HWND window, const RECT& display) {
    WindowFrame frame{};
    RECT shared{};
    return IsManagedWindow(window, &frame) && IntersectRect(&shared, &frame.visible, &display);
}

// Without a window the call would tile all there are, those of the shell too.
void TileView(const ActionCall& call) {
    static HWND tiles[MAX_WINDOWS];
    WindowFrame active{};
    const bool bOnDisplay = ReadWindowFrame(call.target, &active) && !active.bMinimized;
    const DisplayArea display = bOnDisplay ? DisplayNear(active.visible) : PrimaryDisplay();
    UINT count = 0;
    for (int i = 0; i < num_windows; ++i)
        if (ShowsOn(WindowTable[i].hwnd, display.rect))
            tiles[count++] = WindowTable[i].hwnd;
    if (count)
        TileOtherWindows(static_cast<UINT>(call.argument), display.work, tiles, count);
}

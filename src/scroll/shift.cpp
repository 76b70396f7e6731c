#include "scroll/shift.h"

#include "actions/action_table.h"
#include "core/dpi.h"
#include "core/rect.h"
#include "core/state.h"
#include "scroll/gather.h"
#include "windows/locked_windows.h"
#include "windows/window_table.h"

namespace {

// A row of the window table, read before any window has been moved.
struct ShiftRow {
    HWND window;
    WindowFrame frame;
    bool bMoves; // managed and not locked
    POINT by;    // pixels
};

} // namespace

static ShiftRow Shifts[MAX_WINDOWS];
static bool bShifting;

static const int ROUNDING = 2; // pixels by which a window that Windows scales can miss its position

namespace {

// Where the last scroll asked a window to be.
struct RequestRow {
    HWND window;
    POINT corner; // screen pixels
};

} // namespace

static RequestRow Requests[MAX_WINDOWS];
static int num_requests;

bool MayScroll() {
    return !bQuitting && !bDisplaysChanging && !bShifting;
}

// One axis. `view` is the near edge of the view, `desktop` the size of the desktop.
static int ShiftedCoordinate(int coordinate, int delta, int size, int view, int desktop, int border) {
    int shifted = Wrap(0LL + coordinate + delta);
    if (shifted > desktop)
        shifted = Wrap(0LL + desktop - border - size);
    return Wrap(0LL + shifted + view) < 0 ? Wrap(0LL - view) : shifted;
}

// Pure: the corner, in screen pixels, of a window moved by (dx, dy) and clamped to the desktop. The far edges
// are compared with the desktop's size in screen pixels, without the view's corner, as in IsManagedWindow.
static POINT ShiftedCorner(const RECT& window, int dx, int dy, const RECT& vdesk, const RECT& quorl,
                           int border) {
    return {ShiftedCoordinate(window.left, dx, Width(window), vdesk.left, quorl.right, border),
            ShiftedCoordinate(window.top, dy, Height(window), vdesk.top, quorl.bottom, border)};
}

// The window's request, or null. Requests are stored from the bottom of the table to the top and searched
// from the top: the next match is usually the one before the last. `next` is where the search starts; it
// wraps.
static const RequestRow* FindRequest(HWND window, int* next) {
    for (int step = 0; step < num_requests; ++step) {
        const int index = (*next - step + num_requests) % num_requests;
        if (Requests[index].window != window)
            continue;
        *next = (index - 1 + num_requests) % num_requests;
        return &Requests[index];
    }
    return nullptr;
}

// A window that Windows scales misses its position by a pixel or two. The next scroll starts from where it
// should be, so that the errors do not add up.
static void UndoRounding(ShiftRow* row, const RequestRow* request) {
    if (!request)
        return;
    RECT& visible = row->frame.visible;
    const int dx = Wrap(0LL + request->corner.x - visible.left);
    const int dy = Wrap(0LL + request->corner.y - visible.top);
    const bool bClose = dx >= -ROUNDING && dx <= ROUNDING && dy >= -ROUNDING && dy <= ROUNDING;
    if ((dx || dy) && bClose && IsScaledByWindows(row->window))
        visible = Offset(visible, dx, dy);
}

// Read all positions before moving any window: a program that moves its palettes along with its main window
// would otherwise have them moved twice.
static int ReadPositions(POINT by) {
    int next = num_requests - 1;
    for (int i = 0; i < num_windows; ++i) {
        ShiftRow& row = Shifts[i];
        row.window = WindowTable[i].hwnd;
        row.bMoves = IsManagedWindow(row.window, &row.frame) && !IsLockedWindow(row.window);
        row.by = by;
        if (row.bMoves)
            UndoRounding(&row, FindRequest(row.window, &next));
    }
    return num_windows;
}

// The window may have been hidden, minimized or closed since its position was read.
static void MoveRow(ShiftRow& row) {
    if (!row.bMoves || !IsWindowVisible(row.window) || IsIconic(row.window))
        return;
    if (IsOn(ACTION_RESTORE_MAXIMIZED) && !RestoreIfZoomed(row.window, &row.frame))
        return;
    if (bQuitting)
        return GatherWindows(FOLD_AT_LOGOFF); // the session ended while the restore hid this window
    const POINT corner = ShiftedCorner(row.frame.visible, row.by.x, row.by.y, VDesk, Quorl, Options.border);
    if (PingMoveAndShow(row.window, row.frame, corner))
        Requests[num_requests++] = {row.window, corner};
}

static void ScrollRow(ShiftRow& row) {
    if (IsListView(row.window) && !ScrollListView(row.window, row.by.x, row.by.y))
        return; // the ping would wait a second time for the same program
    MoveRow(row);
}

// From the bottom to the top: owners are below the windows that they own. Ends when the user quits or the
// displays change meanwhile.
static void MoveAll(int count, void (*move)(ShiftRow& row)) {
    bShifting = true;
    num_requests = 0;
    for (int i = count - 1; i >= 0 && !bQuitting && !bDisplaysChanging; --i)
        move(Shifts[i]);
    bShifting = false;
}

void ShiftWindows(int dx, int dy) {
    if (MayScroll())
        MoveAll(ReadPositions({dx, dy}), ScrollRow);
}

// How far a window has to move so that it is where the table had it on the desktop.
static POINT DistanceToTable(const WindowRow& row, const WindowFrame& frame) {
    const RECT& before = WindowTableDisplays.all;
    const LONG left = Wrap(0LL + frame.visible.left - frame.margins.left);
    const LONG top = Wrap(0LL + frame.visible.top - frame.margins.top);
    return {Wrap(0LL + row.rect.left - before.left + WindowTableView.x - VDesk.left - left),
            Wrap(0LL + row.rect.top - before.top + WindowTableView.y - VDesk.top - top)};
}

// The invisible frame of a window beside a display overlaps it, and its margins are exact to two pixels.
static bool WasSeen(const WindowRow& row, const RECT& margins) {
    const RECT visible = Shrink(row.rect, margins);
    return IsShownBy(WindowTableDisplays, Shrink(visible, {ROUNDING, ROUNDING, ROUNDING, ROUNDING}));
}

void ReturnUnseenWindows() {
    if (!MayScroll())
        return;
    const int count = ReadPositions({});
    for (int i = 0; i < count; ++i) {
        ShiftRow& row = Shifts[i];
        row.bMoves = row.bMoves && WindowTable[i].bShown && !WasSeen(WindowTable[i], row.frame.margins);
        row.by = DistanceToTable(WindowTable[i], row.frame);
    }
    MoveAll(count, MoveRow);
}

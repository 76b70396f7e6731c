#include "scroll/gather.h"

#include "core/displays.h"
#include "core/rect.h"
#include "core/state.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

namespace {

// What differs between the reasons to fold.
struct FoldRule {
    UINT timeout;    // milliseconds that a window may take to respond
    DWORD timeLimit; // milliseconds for all of them; then moves are only posted. 0: no limit
    bool bReport;    // a refusal shows a message box
};

// A window, read before any window has been moved.
struct FoldRow {
    HWND window;
    WindowFrame frame;
    bool bMoves;         // its own rectangle is folded
    bool bHasNormalRect; // minimized or maximized: the rectangle that restoring gives it is checked
};

} // namespace

static const FoldRule FoldRules[] = {
    {FOLD_TIMEOUT, 0, true},       // FOLD_AT_EXIT
    {FOLD_TIMEOUT, 0, true},       // FOLD_TO_SMALLER_DESKTOP
    {SCROLL_TIMEOUT, 3000, false}, // FOLD_AT_LOGOFF
    {FOLD_TIMEOUT, 0, false},      // FOLD_IN_CRASH
};

static FoldRow Folds[MAX_WINDOWS];
static int FoldCount; // calls of GatherWindows

// Pure: one coordinate of a window's corner, folded onto a screen of that size. Screen pixels.
static int FoldCoordinate(int corner, int screen) {
    int folded = Remainder(corner, screen);
    if (folded < 0)
        folded += screen;
    return folded > screen - GRAB_SIZE ? screen - folded : folded;
}

// A display may not show that part of the screen, or a taskbar cover it.
static RECT FoldRect(const RECT& rect) {
    const POINT corner{FoldCoordinate(rect.left, ScreenW()), FoldCoordinate(rect.top, ScreenH())};
    return KeepInReach(Offset(rect, Wrap(0LL + corner.x - rect.left), Wrap(0LL + corner.y - rect.top)));
}

// Windows that scrolling leaves alone may be out of reach as well: it moved them before they were disabled,
// minimized or cloaked.
static bool IsLost(HWND window, WindowFrame* frame) {
    return IsUserWindow(window) && !IsIconic(window) && ReadWindowFrame(window, frame) &&
           Width(frame->visible) && Height(frame->visible) && !IsTitleInReach(frame->visible);
}

static int ReadFoldRows() {
    for (int i = 0; i < num_windows; ++i) {
        const HWND window = WindowTable[i].hwnd;
        FoldRow& row = Folds[i];
        row.window = window;
        row.bMoves = IsManagedWindow(window, &row.frame) || IsLost(window, &row.frame);
        row.bHasNormalRect = (IsIconic(window) || IsZoomed(window)) && IsUserWindow(window);
    }
    return num_windows;
}

// A normal rectangle is stored in workspace coordinates. Windows picks the display from the stored rectangle,
// SetNormalRect from the one on the screen. Across two displays they can differ, the taskbar's size is not
// added back, and the title can be out of reach; inside one work area they do not differ.
static void FoldNormalRect(HWND window) {
    RECT normal{};
    if (!ReadNormalRect(window, &normal) || IsTitleInReach(normal))
        return;
    const int fold = FoldCount;
    const RECT folded = FoldRect(normal);
    if (!SetNormalRect(window, folded) || fold != FoldCount)
        return; // it does not respond, or another fold, during the ping
    if (ReadNormalRect(window, &normal) && !IsTitleInReach(normal))
        SetNormalRect(window, MoveIntoWorkArea(folded));
}

static MoveResult FoldWindow(const FoldRow& row, UINT timeout) {
    const int fold = FoldCount;
    const RECT folded = FoldRect(row.frame.visible);
    const MoveResult result = PingAndMove(row.window, row.frame, {folded.left, folded.top}, timeout);
    if (fold != FoldCount)
        return NOT_MOVED; // another fold, during the ping
    if (result == MOVE_TIMED_OUT)
        PostMove(row.window, row.frame, {folded.left, folded.top});
    return result;
}

static void PostFold(const FoldRow& row) {
    const RECT folded = FoldRect(row.frame.visible);
    if (row.bMoves)
        PostMove(row.window, row.frame, {folded.left, folded.top});
}

// The row is a copy: a fold that starts meanwhile fills the table again.
static void FoldOne(const FoldRule& rule, const FoldRow row) {
    if (row.bMoves && !IsIconic(row.window) && FoldWindow(row, rule.timeout) == MOVE_REFUSED && rule.bReport)
        MessageBoxA(nullptr, "Not a timeout! A window won't restore!", "ok", MB_OK);
    if (row.bHasNormalRect)
        FoldNormalRect(row.window);
}

// From the bottom to the top: owners are below the windows that they own.
void GatherWindows(FoldReason reason) {
    if (bDisplaysChanging && !bQuitting)
        return; // nothing could be moved
    const FoldRule& rule = FoldRules[reason];
    const int fold = ++FoldCount;
    RebuildWindowTable();
    const DWORD start = GetTickCount();
    for (int i = ReadFoldRows() - 1; i >= 0 && fold == FoldCount; --i)
        if (rule.timeLimit && GetTickCount() - start >= rule.timeLimit)
            PostFold(Folds[i]);
        else
            FoldOne(rule, Folds[i]);
}

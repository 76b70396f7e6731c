#include "windows/other_window.h"

#include "core/displays.h"
#include "core/rect.h"
#include "core/state.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

static const int MINIMIZED = -32000; // left edge, in system coordinates, of minimized windows
static const int MAX_MARGIN = 48;  // pixels: more is a window just being restored, or the ghost of a hung one
static const int MARGIN_ERROR = 2; // pixels by which the margins of a program that is not DPI aware vary

constexpr DWORD DWMWA_EXTENDED_FRAME_BOUNDS = 9; // declared in a header that the in-memory desktop lacks

namespace {

// Sent with WM_MOVING in place of a RECT, which has the same size: right and bottom hold width and height. In
// system coordinates.
struct WindowPosition {
    LONG x, y, width, height;
};

} // namespace

static bool IsMargin(LONG margin) {
    return margin >= 0 && margin <= MAX_MARGIN;
}

// All 0 if implausible: the compositor may report a frame that is not drawn yet.
static RECT ReadMargins(HWND window, const RECT& rect) {
    RECT visible{};
    if (!pDwmGetWindowAttribute || rect.left <= MINIMIZED ||
        pDwmGetWindowAttribute(window, DWMWA_EXTENDED_FRAME_BOUNDS, &visible, sizeof visible) < 0 ||
        visible.left >= visible.right || visible.top >= visible.bottom)
        return {};
    const RECT margins{Wrap(0LL + visible.left - rect.left), Wrap(0LL + visible.top - rect.top),
                       Wrap(0LL + rect.right - visible.right), Wrap(0LL + rect.bottom - visible.bottom)};
    const bool bPlausible = IsMargin(margins.left) && IsMargin(margins.top) && IsMargin(margins.right) &&
                            IsMargin(margins.bottom);
    return bPlausible ? margins : RECT{};
}

static RECT Grow(const RECT& rect, const RECT& margins) {
    return Shrink(rect, {-margins.left, -margins.top, -margins.right, -margins.bottom});
}

// If the edge is within MARGIN_ERROR of the screen's or the desktop's, sets it to that and corrects the
// margin.
static void SnapEdge(LONG* edge, LONG* margin, LONG screen, LONG desktop, int outward) {
    for (const LONG target : {screen, desktop}) {
        const long long missed = 0LL + target - *edge;
        if (std::abs(missed) > MARGIN_ERROR)
            continue;
        *edge = target;
        *margin = Wrap(*margin - missed * outward);
        return;
    }
}

static void SnapFrame(WindowFrame* frame) {
    RECT& visible = frame->visible;
    RECT& margins = frame->margins;
    SnapEdge(&visible.left, &margins.left, 0, Wrap(0LL - VDesk.left), -1);
    SnapEdge(&visible.top, &margins.top, 0, Wrap(0LL - VDesk.top), -1);
    SnapEdge(&visible.right, &margins.right, ScreenW(), Wrap(0LL + Quorl.right - VDesk.left), 1);
    SnapEdge(&visible.bottom, &margins.bottom, ScreenH(), Wrap(0LL + Quorl.bottom - VDesk.top), 1);
}

bool ReadWindowFrame(HWND window, WindowFrame* frame) {
    RECT rect{};
    if (!GetWindowRect(window, &rect))
        return false;
    const RECT margins = ReadMargins(window, rect);
    *frame = {FromSystem(Shrink(rect, margins)), margins, rect.left <= MINIMIZED, false};
    if (!IsSameRect(margins, {}))
        SnapFrame(frame);
    return true;
}

bool GetVisibleRect(HWND window, RECT* rect) {
    WindowFrame frame{};
    if (!ReadWindowFrame(window, &frame))
        return false;
    *rect = frame.visible;
    return true;
}

// A send that hangs would hang Quorl, so every message to another program goes through here.
static bool SendBounded(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT timeout) {
    DWORD_PTR result = 0;
    SetLastError(0); // some systems leave the error unchanged after a timeout
    return SendMessageTimeoutA(window, message, wParam, lParam, SMTO_ABORTIFHUNG, timeout, &result) != 0;
}

bool IsAlive(HWND window) {
    return SendBounded(window, WM_NULL, 0, 0, SCROLL_TIMEOUT);
}

static bool PingWithPosition(HWND window, WindowPosition* position, UINT timeout) {
    return SendBounded(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(position), timeout);
}

// The position to pass to Windows so that the visible corner is at `corner`.
static WindowPosition PositionFor(const WindowFrame& frame, POINT corner) {
    const RECT& margins = frame.margins;
    const RECT outer =
        ToSystem({Wrap(0LL + corner.x - margins.left), Wrap(0LL + corner.y - margins.top), 0, 0});
    return {outer.left, outer.top, Wrap(0LL + Width(frame.visible) + margins.left + margins.right),
            Wrap(0LL + Height(frame.visible) + margins.top + margins.bottom)};
}

// Windows moves windows itself while the displays change, and skips one that was moved meanwhile.
static bool MayMove() {
    return !bDisplaysChanging || bQuitting;
}

// While Quorl waits for a response, it handles what is sent to it: the end of the session, which folds every
// window, or a change of the displays. The move it waits for must not follow then.
static bool MayStillMove(bool bWasQuitting) {
    return MayMove() && bQuitting == bWasQuitting;
}

static bool IsAliveToMove(HWND window) {
    const bool bWasQuitting = bQuitting;
    return MayMove() && IsAlive(window) && MayStillMove(bWasQuitting);
}

static void MoveCorner(HWND window, const WindowPosition& position, UINT flags) {
    SetWindowPos(window, nullptr, position.x, position.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

static void MoveAndSize(HWND window, const WindowPosition& position) {
    MoveWindow(window, position.x, position.y, position.width, position.height, TRUE);
}

// Between displays of different scale the size read before the move is wrong after it, so do not set it
// unless it changes.
static void Move(HWND window, const WindowPosition& position, bool bSetSize) {
    if (bSetSize)
        MoveAndSize(window, position);
    else
        MoveCorner(window, position, 0);
}

// The error after a timeout: 0 on the oldest systems, ERROR_TIMEOUT on all others. A program with higher
// rights denies access; it was never moved.
static MoveResult ResultOf(DWORD error) {
    if (error == 0 || error == ERROR_TIMEOUT)
        return MOVE_TIMED_OUT;
    return error == ERROR_ACCESS_DENIED || error == ERROR_INVALID_WINDOW_HANDLE ? NOT_MOVED : MOVE_REFUSED;
}

MoveResult PingAndMove(HWND window, const WindowFrame& frame, POINT corner, UINT timeout) {
    if (!MayMove())
        return NOT_MOVED;
    const bool bWasQuitting = bQuitting;
    const WindowPosition sent = PositionFor(frame, corner);
    WindowPosition position = sent;
    if (!PingWithPosition(window, &position, timeout))
        return ResultOf(GetLastError());
    if (!MayStillMove(bWasQuitting))
        return NOT_MOVED;
    Move(window, position, frame.bSetSize || position.width != sent.width || position.height != sent.height);
    return MOVED;
}

bool PingMoveAndShow(HWND window, const WindowFrame& frame, POINT corner) {
    if (PingAndMove(window, frame, corner, SCROLL_TIMEOUT) != MOVED)
        return false;
    ShowWindow(window, SW_SHOWNA);
    return true;
}

void MoveIfAlive(HWND window, const WindowFrame& frame, POINT corner) {
    if (IsAliveToMove(window))
        Move(window, PositionFor(frame, corner), frame.bSetSize);
}

void PostMove(HWND window, const WindowFrame& frame, POINT corner) {
    if (MayMove())
        MoveCorner(window, PositionFor(frame, corner), SWP_ASYNCWINDOWPOS);
}

bool GetOtherWindowSize(HWND window, SIZE* size) {
    RECT rect{};
    if (!GetWindowRect(window, &rect))
        return false;
    *size = {Width(rect), Height(rect)};
    return true;
}

void ResizeIfAlive(HWND window, SIZE size) {
    RECT rect{};
    if (IsAliveToMove(window) && GetWindowRect(window, &rect))
        MoveAndSize(window, {rect.left, rect.top, size.cx, size.cy});
}

bool RestoreIfZoomed(HWND window, WindowFrame* frame) {
    if (!IsZoomed(window))
        return true;
    if (!IsAliveToMove(window))
        return false;
    const bool bActive = GetForegroundWindow() == window; // hiding it gives the foreground away
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, bActive ? SW_RESTORE : SW_SHOWNOACTIVATE);
    WindowFrame restored{};
    if (ReadWindowFrame(window, &restored))
        frame->margins = restored.margins; // narrower than those of a maximized window
    frame->bSetSize = true;
    return true;
}

// Windows counts normal rectangles from the corner of the display's work area, except those of tool windows.
static POINT WorkspaceOffset(HWND window, const RECT& rect) {
    if (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW)
        return {0, 0};
    const DisplayArea display = DisplayNear(rect);
    return {display.work.left - display.rect.left, display.work.top - display.rect.top};
}

// The margins that a sizable window has when it is neither minimized nor maximized: the compositor reports
// only those that it has now.
static RECT NormalMargins(HWND window) {
    if (!pDwmGetWindowAttribute || !(GetWindowLongPtrA(window, GWL_STYLE) & WS_THICKFRAME))
        return {};
    const LONG margin = GetSystemMetrics(SM_CXSIZEFRAME) + GetSystemMetrics(SM_CXPADDEDBORDER) - 1;
    return {margin, 0, margin, margin};
}

bool ReadNormalRect(HWND window, RECT* rect) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (!GetWindowPlacement(window, &placement))
        return false;
    const RECT normal = FromSystem(placement.rcNormalPosition);
    const POINT offset = WorkspaceOffset(window, normal);
    *rect = Shrink(Offset(normal, offset.x, offset.y), NormalMargins(window));
    return true;
}

// SW_SHOWMINIMIZED, which GetWindowPlacement returns, would activate the window.
bool SetNormalRect(HWND window, const RECT& rect) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (!IsAliveToMove(window) || !GetWindowPlacement(window, &placement))
        return false;
    const RECT outer = Grow(rect, NormalMargins(window));
    const POINT offset = WorkspaceOffset(window, outer);
    placement.rcNormalPosition = ToSystem(Offset(outer, -offset.x, -offset.y));
    placement.showCmd = IsIconic(window) ? SW_SHOWMINNOACTIVE : SW_SHOWNA;
    return SetWindowPlacement(window, &placement) != 0;
}

bool MoveOwnWindow(HWND window, const WindowFrame& frame, const RECT& visible) {
    if (!MayMove())
        return false;
    WindowFrame sized = frame;
    sized.visible = visible;
    const WindowPosition position = PositionFor(sized, {visible.left, visible.top});
    return MoveWindow(window, position.x, position.y, position.width, position.height, TRUE) != 0;
}

bool IsListView(HWND window) {
    static const char listViewClass[] = "SysListView32";
    char name[256] = "";
    GetClassNameA(window, name, 255);
    return !std::strncmp(name, listViewClass, sizeof listViewClass - 1);
}

bool ScrollListView(HWND window, int dx, int dy) {
    return SendBounded(window, LVM_SCROLL, static_cast<WPARAM>(dx), dy, SCROLL_TIMEOUT);
}

void RaiseWindow(HWND window) {
    SetActiveWindow(window);
    BringWindowToTop(window);
    SetForegroundWindow(window);
}

static int Activations;

int ActivationCount() {
    return Activations;
}

// SetFocus and SetActiveWindow act on our own windows, the other two on any.
static void FocusAndRaise(HWND window) {
    ++Activations;
    SetFocus(window);
    RaiseWindow(window);
}

void ActivateWindow(HWND window) {
    if (IsAlive(window))
        FocusAndRaise(window);
}

// SetForegroundWindow does not wait for the window, unlike the others.
void ReturnForeground(HWND window) {
    if (IsAlive(window))
        return FocusAndRaise(window);
    ++Activations;
    SetForegroundWindow(window);
}

void FocusOtherWindow(HWND window) {
    if (!IsAlive(window))
        return;
    ++Activations;
    SetForegroundWindow(window);
    SetFocus(window);
    SetActiveWindow(window);
}

// Hidden meanwhile, because some windows change their position in the z-order only when they are shown again.
void ToggleTopmost(HWND window) {
    if (!IsAlive(window))
        return;
    const bool bTopmost = (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    ShowWindow(window, SW_HIDE);
    SetWindowPos(window, bTopmost ? HWND_NOTOPMOST : HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    ShowWindow(window, SW_SHOW);
}

void TileOtherWindows(UINT how, const RECT& rect, const HWND* windows, UINT count) {
    const RECT area = ToSystem(rect);
    if (MayMove())
        TileWindows(nullptr, how, &area, count, windows);
}

void BroadcastScreenSaver() {
    SendBounded(HWND_BROADCAST, WM_SYSCOMMAND, SC_SCREENSAVE, 0, SCROLL_TIMEOUT);
}

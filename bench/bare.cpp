// The platform calls of frequent operations, without Quorl.
#include "bare.h"

#include "operations.h"

#include "core/state.h"
#include "toolwin/map_coordinates.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

#include <initializer_list>

namespace {

struct BareRow {
    HWND hwnd;
    bool managed;
    RECT rect; // screen pixels
    RECT box;  // map pixels
};

} // namespace

static const UINT_PTR FLASH_TIMER = 1234; // of the map

static BareRow Rows[MAX_WINDOWS];
static int num_rows;
static HWND BareMap;
static RECT BareViewBox;

static void Lines(HDC context, const RECT& box) {
    MoveToEx(context, box.left, box.top, nullptr);
    LineTo(context, box.right, box.top);
    LineTo(context, box.right, box.bottom);
    LineTo(context, box.left, box.bottom);
    LineTo(context, box.left, box.top);
}

// The calls that decide whether a window is managed, up to the decisive one.
static void QueryManaged(const BareRow& row) {
    char name[128];
    RECT rect;
    DWORD reasons = 0;
    if (!IsWindowEnabled(row.hwnd) || !IsWindowVisible(row.hwnd) || !GetDesktopWindow() ||
        row.hwnd == MainWnd || !GetClassNameA(row.hwnd, name, 127) || !row.managed)
        return;
    GetWindowLongPtrA(row.hwnd, GWL_EXSTYLE);
    IsIconic(row.hwnd);
    if (pDwmGetWindowAttribute)
        pDwmGetWindowAttribute(row.hwnd, 14, &reasons, sizeof reasons);
    GetWindowRect(row.hwnd, &rect);
    if (pDwmGetWindowAttribute)
        pDwmGetWindowAttribute(row.hwnd, 9, &rect, sizeof rect);
}

static void PaintWindow(HDC context, const BareRow& row, HWND active, HPEN red, HPEN dotted) {
    char name[128];
    QueryManaged(row);
    if (!row.managed)
        return;
    if (row.hwnd != active) {
        DrawFocusRect(context, &row.box);
        return;
    }
    GetClassNameA(row.hwnd, name, 127);
    KillTimer(BareMap, FLASH_TIMER);
    SelectObject(context, red);
    Lines(context, row.box);
    SelectObject(context, dotted);
}

static void PaintBackground(HWND window, HDC context, const RECT& map) {
    GetSysColor(COLOR_BACKGROUND);
    SelectObject(context, reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND)));
    Rectangle(context, map.left, map.top, map.right, map.bottom);
}

static void Paint(HWND window) {
    const HWND active = GetForegroundWindow();
    const HPEN dotted = CreatePen(PS_DOT, 1, 0);
    const HPEN red = CreatePen(PS_SOLID, 2, 255);
    const HPEN flash = CreatePen(PS_SOLID, 2, 25);
    PAINTSTRUCT area;
    RECT map;
    GetClientRect(window, &map);
    const HDC screen = BeginPaint(window, &area);
    const HDC context = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, map.right, map.bottom);
    SelectObject(context, bitmap);
    PaintBackground(window, context, map);
    const HGDIOBJ before = SelectObject(context, dotted);
    for (int row = 0; row < num_rows; ++row)
        PaintWindow(context, Rows[row], active, red, dotted);
    SetROP2(context, R2_MERGEPENNOT);
    Lines(context, BareViewBox);
    SelectObject(context, before);
    BitBlt(screen, 0, 0, map.right, map.bottom, context, 0, 0, SRCCOPY);
    DeleteDC(context);
    DeleteObject(bitmap);
    DeleteObject(dotted);
    DeleteObject(red);
    DeleteObject(flash);
    EndPaint(window, &area);
}

static LRESULT CALLBACK BareMapProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: Paint(window); return 0;
    case WM_ERASEBKGND: return 1;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Has the styles of the map, so it costs the system as much, but is disabled, so Quorl does not manage it.
// Placed beside the map.
static void CreateBareMap() {
    WNDCLASSA description{};
    description.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    description.lpfnWndProc = BareMapProc;
    description.hInstance = AppInstance;
    description.hbrBackground = BackBrush;
    description.lpszClassName = "QuorlBareMap";
    RegisterClassA(&description);
    RECT map{};
    GetWindowRect(MainWnd, &map);
    const int width = map.right - map.left;
    const int height = map.bottom - map.top;
    BareMap = CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED, "QuorlBareMap", "bare",
                              WS_POPUP | WS_THICKFRAME | WS_DISABLED, map.right, map.top, width, height,
                              nullptr, nullptr, AppInstance, nullptr);
    if (pSetLayeredWindowAttributes)
        pSetLayeredWindowAttributes(BareMap, 0, 255, LWA_ALPHA);
    ShowWindow(BareMap, SW_SHOWNOACTIVATE);
    UpdateWindow(BareMap);
}

void PrepareBare() {
    if (!BareMap)
        CreateBareMap();
    RebuildWindowTable();
    RECT map{};
    GetClientRect(MainWnd, &map);
    for (num_rows = 0; num_rows < num_windows; ++num_rows) {
        const HWND window = WindowTable[num_rows].hwnd;
        BareRow& row = Rows[num_rows];
        row = {window, IsManagedWindow(window), {}, {}};
        GetWindowRect(window, &row.rect);
        row.box = WindowBox(row.rect, map, VDesk, Quorl);
    }
    BareViewBox = ViewBox(map, VDesk, Quorl);
}

void BarePaint() {
    InvalidateRect(BareMap, nullptr, TRUE);
    UpdateWindow(BareMap);
}

static void MoveRow(const BareRow& row, int dx, UINT timeout) {
    struct {
        LONG x, y, width, height;
    } rect{row.rect.left + dx, row.rect.top, row.rect.right - row.rect.left, row.rect.bottom - row.rect.top};
    DWORD_PTR result = 0;
    SetLastError(0);
    SendMessageTimeoutA(row.hwnd, WM_MOVING, 0, reinterpret_cast<LPARAM>(&rect), SMTO_ABORTIFHUNG, timeout,
                        &result);
    SetWindowPos(row.hwnd, nullptr, rect.x, rect.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

static void ScrollRow(const BareRow& row, int dx) {
    char name[256];
    GetClassNameA(row.hwnd, name, 255);
    if (!row.managed || !IsWindowVisible(row.hwnd) || IsIconic(row.hwnd))
        return;
    MoveRow(row, dx, SCROLL_TIMEOUT);
    ShowWindow(row.hwnd, SW_SHOWNA);
}

void BareScroll() {
    for (const int dx : {-ScreenW(), 0}) {
        for (int row = 0; row < num_rows; ++row)
            QueryManaged(Rows[row]);
        for (int row = num_rows - 1; row >= 0; --row)
            ScrollRow(Rows[row], dx);
        BarePaint();
    }
}

void PingMoveShow() {
    for (const int dx : {-ScreenW(), 0})
        for (int row = 0; row < num_rows; ++row)
            if (Rows[row].managed) {
                MoveRow(Rows[row], dx, SCROLL_TIMEOUT);
                ShowWindow(Rows[row].hwnd, SW_SHOWNA);
            }
}

static BOOL CALLBACK QueryWindow(HWND window, LPARAM) {
    RECT rect;
    GetWindowRect(window, &rect);
    if (IsWindowVisible(window))
        IsIconic(window);
    return TRUE;
}

static BOOL CALLBACK QueryMonitor(HMONITOR monitor, HDC, RECT*, LPARAM) {
    MONITORINFOEXA info{};
    info.cbSize = sizeof info;
    return GetMonitorInfoA(monitor, &info);
}

void BareTicks() {
    RECT rect;
    for (int tick = 1; tick < TICKS; ++tick) {
        GetForegroundWindow();
        for (int row = 0; row < num_rows; ++row)
            GetWindowRect(Rows[row].hwnd, &rect);
    }
    GetForegroundWindow();
    EnumDisplayMonitors(nullptr, nullptr, QueryMonitor, 0);
    EnumWindows(QueryWindow, 0);
    BarePaint();
}

void BareMouseMove() {
    POINT cursor;
    GetCursorPos(&cursor);
    EnumDisplayMonitors(nullptr, nullptr, QueryMonitor, 0);
    for (const int button : {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON})
        GetAsyncKeyState(button);
}

void BareFold() {
    EnumWindows(QueryWindow, 0);
    for (int row = 0; row < num_rows; ++row) {
        QueryManaged(Rows[row]);
        IsIconic(Rows[row].hwnd);
        IsZoomed(Rows[row].hwnd);
    }
    for (int row = num_rows - 1; row >= 0; --row)
        if (Rows[row].managed && !IsIconic(Rows[row].hwnd))
            MoveRow(Rows[row], 0, FOLD_TIMEOUT);
}

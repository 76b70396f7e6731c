// What Quorl asks the platform for in its frequent deeds, without Quorl.
#include "bare.h"

#include "deeds.h"

#include "core/state.h"
#include "scroll/gather.h"
#include "scroll/refresh.h"
#include "scroll/shift.h"
#include "scroll/window_table.h"
#include "toolwin/map_scale.h"

#include <initializer_list>

namespace {

struct BareRow {
    HWND hwnd;
    int bManaged;
    RECT place; // screen pixels
    RECT box;   // map pixels
};

} // namespace

static const UINT GATHER_PATIENCE = 1000;

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

// What it takes to know whether a window is managed, up to the answer that settles it.
static void AskWhetherManaged(const BareRow& row) {
    char name[128];
    RECT place;
    DWORD reasons = 0;
    if (!IsWindowEnabled(row.hwnd) || !IsWindowVisible(row.hwnd) || !GetDesktopWindow() ||
        IsIconic(row.hwnd) || !GetClassNameA(row.hwnd, name, 127) || !row.bManaged)
        return;
    if (pDwmGetWindowAttribute)
        pDwmGetWindowAttribute(row.hwnd, 14, &reasons, sizeof reasons);
    GetWindowRect(row.hwnd, &place);
}

static void PaintWindow(HDC context, const BareRow& row, HWND active, HPEN red, HPEN dotted) {
    char name[128];
    AskWhetherManaged(row);
    if (!row.bManaged)
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

static void Paint(HWND window) {
    const HWND active = GetForegroundWindow();
    const HPEN dotted = CreatePen(PS_DOT, 1, 0);
    const HPEN red = CreatePen(PS_SOLID, 2, 255);
    const HPEN flash = CreatePen(PS_SOLID, 2, 25);
    PAINTSTRUCT area;
    RECT map;
    const HDC context = BeginPaint(window, &area);
    const HGDIOBJ before = SelectObject(context, dotted);
    GetClientRect(window, &map);
    for (int row = 0; row < num_rows; ++row)
        PaintWindow(context, Rows[row], active, red, dotted);
    SetROP2(context, R2_MERGEPENNOT);
    Lines(context, BareViewBox);
    SelectObject(context, before);
    DeleteObject(dotted);
    DeleteObject(red);
    DeleteObject(flash);
    EndPaint(window, &area);
}

static void EraseBackground(HWND window, HDC context) {
    RECT map;
    GetClientRect(window, &map);
    SelectObject(context, reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND)));
    Rectangle(context, map.left, map.top, map.right, map.bottom);
}

static LRESULT CALLBACK BareMapProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: Paint(window); return 0;
    case WM_ERASEBKGND: EraseBackground(window, reinterpret_cast<HDC>(wParam)); return 1;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Of the map's styles, so that the system has as much to do for it, but disabled, so that Quorl does not take
// it for a program's. It stands beside the map.
static void MakeBareMap() {
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
        MakeBareMap();
    RebuildWindowTable();
    RECT map{};
    GetClientRect(MainWnd, &map);
    for (num_rows = 0; num_rows < num_windows; ++num_rows) {
        const HWND window = WindowTable[num_rows].hwnd;
        BareRow& row = Rows[num_rows];
        row = {window, IsManagedWindow(window), {}, {}};
        GetWindowRect(window, &row.place);
        row.box = WindowBox(row.place, map, VDesk, Quorl);
    }
    BareViewBox = ViewBox(map, VDesk, Quorl);
}

void BarePaint() {
    InvalidateRect(BareMap, nullptr, TRUE);
    UpdateWindow(BareMap);
}

static void PingAndMove(const BareRow& row, int dx, UINT patience) {
    WindowPlace place{row.place.left + dx, row.place.top, row.place.right - row.place.left,
                      row.place.bottom - row.place.top};
    DWORD_PTR result = 0;
    SetLastError(0);
    SendMessageTimeoutA(row.hwnd, WM_MOVING, 0, reinterpret_cast<LPARAM>(&place), SMTO_ABORTIFHUNG, patience,
                        &result);
    MoveWindow(row.hwnd, place.x, place.y, place.width, place.height, TRUE);
}

static void ScrollRow(const BareRow& row, int dx) {
    char name[256];
    GetClassNameA(row.hwnd, name, 255);
    AskWhetherManaged(row);
    if (!row.bManaged)
        return;
    PingAndMove(row, dx, SCROLL_PATIENCE);
    ShowWindow(row.hwnd, SW_SHOW);
}

void BareScroll() {
    for (const int dx : {-ScreenW(), 0}) {
        for (int row = 0; row < num_rows; ++row)
            ScrollRow(Rows[row], dx);
        BarePaint();
    }
}

void PingMoveShow() {
    for (const int dx : {-ScreenW(), 0})
        for (int row = 0; row < num_rows; ++row)
            if (Rows[row].bManaged) {
                PingAndMove(Rows[row], dx, SCROLL_PATIENCE);
                ShowWindow(Rows[row].hwnd, SW_SHOW);
            }
}

static BOOL CALLBACK LookAtWindow(HWND window, LPARAM) {
    RECT place;
    GetWindowRect(window, &place);
    return TRUE;
}

void BareTicks() {
    RECT place;
    for (int tick = 1; tick < TICKS; ++tick)
        for (int row = 0; row < num_rows; ++row)
            GetWindowRect(Rows[row].hwnd, &place);
    EnumWindows(LookAtWindow, 0);
    BarePaint();
}

static BOOL CALLBACK LookAtMonitor(HMONITOR monitor, HDC, RECT*, LPARAM) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    return GetMonitorInfoA(monitor, &info);
}

void BareMouseMove() {
    POINT cursor;
    GetCursorPos(&cursor);
    EnumDisplayMonitors(nullptr, nullptr, LookAtMonitor, 0);
    for (const int button : {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON})
        GetAsyncKeyState(button);
}

void BareFold() {
    EnumWindows(LookAtWindow, 0);
    for (int row = 0; row < num_rows; ++row) {
        AskWhetherManaged(Rows[row]);
        if (!Rows[row].bManaged)
            continue;
        PingAndMove(Rows[row], 0, GATHER_PATIENCE);
    }
}

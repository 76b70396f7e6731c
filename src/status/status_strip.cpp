#include "status/status_strip.h"

#include "actions/action_table.h"
#include "core/displays.h"
#include "core/dpi.h"
#include "core/rect.h"
#include "core/state.h"
#include "windows/other_window.h"

#include <cstdarg>
#include <cstdio>
#include <cwchar>

static const UINT_PTR TIP_TIMER = 1000;
static const UINT TIP_PERIOD = 1000; // milliseconds
static const UINT TICKS_SHOWN = 1;   // the strip survives this many ticks and hides on the next
static const int TEXT_LIMIT = 255;   // characters
static const int TEXT_MARGIN = 2;    // pixels left of the text
static const int FONT_HEIGHT = 14;   // pixels at 96 DPI

HWND TipWnd;

namespace {

struct TipRecord {
    UINT_PTR timer;
    UINT ticks;                     // since the last text
    WCHAR text[TEXT_LIMIT + 1 + 4]; // DT_MODIFYSTRING may append four characters
    HFONT font;
    int dpi; // the scale of `font`
};

} // namespace

static TipRecord TipState;

static int TextLength() {
    return static_cast<int>(std::wcslen(TipState.text));
}

static int TextHeight() {
    SIZE extent{};
    const HDC context = GetDC(TipWnd);
    GetTextExtentPoint32W(context, TipState.text, TextLength(), &extent);
    ReleaseDC(TipWnd, context);
    return extent.cy;
}

void HideTip() {
    if (TipWnd)
        ShowWindow(TipWnd, SW_HIDE);
}

static void CALLBACK TipTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (TipState.ticks++ >= TICKS_SHOWN)
        HideTip();
}

// Created hidden and not activated: a strip that took the foreground would take the keyboard from the program
// that the user types into.
static bool CreateTip() {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(MainWnd, GWLP_HINSTANCE));
    const HWND window =
        CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, TIP_CLASS, TIP_CLASS, WS_POPUP | WS_BORDER, -1, -1,
                        -1, -1, nullptr, nullptr, instance, nullptr);
    if (!window)
        return false;
    TipWnd = window;
    TipState.timer = SetTimer(window, TIP_TIMER, TIP_PERIOD, TipTimer);
    return true;
}

// The strip has the scale of the map's display, whichever display its own part of the screen belongs to.
// Returns true if that has changed.
static bool UpdateScale() {
    const int dpi = DpiOf(MainWnd);
    if (dpi == TipState.dpi)
        return false;
    TipState.dpi = dpi;
    if (TipState.font)
        DeleteObject(TipState.font);
    TipState.font =
        CreateFontA(Scale(FONT_HEIGHT, dpi, DEFAULT_DPI), 0, 0, 0, FW_LIGHT, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    return true;
}

static void MoveTip() {
    RECT map{};
    GetVisibleRect(MainWnd, &map);
    const int height = Scale(TextHeight(), TipState.dpi, DEFAULT_DPI);
    const int above = Wrap(0LL + map.top - height);
    const int top = above < DisplayNear(map).rect.top ? map.bottom : above;
    const RECT strip = ToSystem({map.left, top, map.right, Wrap(0LL + top + height)});
    MoveWindow(TipWnd, strip.left, strip.top, Width(strip), Height(strip), TRUE);
}

// Do not move it if it is already visible at the map's left edge, so consecutive texts do not flicker.
static void PlaceTip() {
    RECT map{};
    RECT tip{};
    GetVisibleRect(MainWnd, &map);
    GetVisibleRect(TipWnd, &tip);
    if (!UpdateScale() && IsWindowVisible(TipWnd) && map.left == tip.left)
        return;
    MoveTip();
    ShowWindow(TipWnd, SW_SHOWNOACTIVATE);
}

// Cuts the text at its limit.
static void AppendText(LPCWSTR text) {
    int length = TextLength();
    while (*text && length < TEXT_LIMIT)
        TipState.text[length++] = *text++;
    TipState.text[length] = 0;
}

static void AppendAnsiText(const char* text) {
    WCHAR wide[TEXT_LIMIT + 1] = {};
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide, TEXT_LIMIT + 1);
    AppendText(wide);
}

void ShowTitleTip(const char* before, LPCWSTR title, const char* after) {
    if (!IsOn(ACTION_TOOLTIP) || (!TipWnd && !CreateTip()))
        return;
    TipState.text[0] = 0;
    AppendAnsiText(before);
    AppendText(title);
    AppendAnsiText(after);
    PlaceTip();
    Repaint(TipWnd);
    TipState.ticks = 0;
}

void ShowTip(const char* format, ...) {
    char text[TEXT_LIMIT + 1];
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    ShowTitleTip(text, L"", "");
}

static void TipCreate() {
    TipState = {};
    UpdateScale();
}

static void OnTipDpiChanged() {
    if (!UpdateScale())
        return;
    MoveTip();
    Repaint(TipWnd);
}

// Runs twice for one close; the second time nothing is left to release.
static void TipCleanup(HWND window) {
    TipWnd = nullptr;
    if (TipState.font)
        DeleteObject(TipState.font);
    TipState.font = nullptr;
    KillTimer(window, TipState.timer);
}

static void TipPaint(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(window, &paint);
    SetBkMode(context, TRANSPARENT);
    // Dark contrast themes have a black COLOR_INFOBK, on which a context's default text colour is invisible.
    SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
    const HGDIOBJ before = SelectObject(context, TipState.font);
    area.left += TEXT_MARGIN;
    DrawTextExW(context, TipState.text, TextLength(), &area,
                DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    SelectObject(context, before);
    EndPaint(window, &paint);
}

static LRESULT CALLBACK TipWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: TipCreate(); return 0;
    case WM_PAINT: TipPaint(window); return 0;
    case WM_MOUSEMOVE: ShowWindow(window, SW_HIDE); return 0;
    case WM_DPICHANGED: OnTipDpiChanged(); return 0;
    case WM_DESTROY:
    case WM_CLOSE:
    case WM_QUIT: TipCleanup(window); break;
    default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void RegisterTipClass(HINSTANCE instance) {
    WNDCLASSA description{};
    description.lpfnWndProc = TipWndProc;
    description.hInstance = instance;
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_INFOBK);
    description.lpszClassName = TIP_CLASS;
    RegisterClassA(&description);
}

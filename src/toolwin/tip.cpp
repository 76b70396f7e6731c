// The strip along the Toolwin's top edge.
#include "toolwin/tip.h"

#include "actions/action_table.h"
#include "core/state.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

static const UINT_PTR TIP_TIMER = 1000;
static const UINT TIP_PERIOD = 1000; // milliseconds
static const int TEXT_LIMIT = 255;   // characters
static const int TEXT_MARGIN = 2;    // pixels left of the text

namespace {

struct TipRecord {
    UINT_PTR timer;
    UINT threshold;                // ticks allowed before hiding
    UINT ticks;                    // since something was shown last
    char text[TEXT_LIMIT + 1 + 4]; // DT_MODIFYSTRING may lengthen it by four characters
    int top, height;               // screen pixels, from the last placement
    HWND window;
    HFONT font;
};

} // namespace

static TipRecord TipState;

int TipTop(const RECT& owner, int height) {
    const int top = owner.top - height;
    return top < 0 ? owner.bottom : top;
}

static int TextHeight(HWND window, const char* text) {
    SIZE extent{};
    const HDC context = GetDC(window);
    GetTextExtentPoint32A(context, text, static_cast<int>(std::strlen(text)), &extent);
    ReleaseDC(window, context);
    return extent.cy;
}

void HideTip(HWND window) {
    if (window)
        ShowWindow(window, SW_HIDE);
}

static void CALLBACK TipTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (TipState.ticks++ >= TipState.threshold)
        HideTip(TipState.window);
}

// Created hidden and without activation: a strip that took the foreground would take the keyboard from the
// program that the user types into.
static int MakeTip(HWND owner) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(owner, GWLP_HINSTANCE));
    const HWND window =
        CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, TIP_CLASS, TIP_CLASS, WS_POPUP | WS_BORDER, -1, -1,
                        -1, -1, nullptr, nullptr, instance, nullptr);
    if (!window)
        return 0;
    TipState.window = window;
    TipState.timer = SetTimer(window, TIP_TIMER, TIP_PERIOD, TipTimer);
    TipState.text[0] = 0;
    return 1;
}

// A strip that shows at the owner's left stays where it is, so that a row of texts does not flicker.
static void PlaceTip(const RECT& owner, const RECT& tip) {
    if (IsWindowVisible(TipState.window) && owner.left == tip.left)
        return;
    MoveWindow(TipState.window, owner.left, TipState.top, owner.right - owner.left, TipState.height, TRUE);
    ShowWindow(TipState.window, SW_SHOWNOACTIVATE);
}

HWND ShowTip(HWND owner, const char* text, int enabled) {
    if (!enabled || (!TipState.window && !MakeTip(owner)))
        return nullptr;
    RECT ownerPlace{};
    RECT tipPlace{};
    GetWindowRect(owner, &ownerPlace);
    GetWindowRect(TipState.window, &tipPlace);
    TipState.height = TextHeight(TipState.window, text);
    std::snprintf(TipState.text, TEXT_LIMIT + 1, "%s", text);
    TipState.top = TipTop(ownerPlace, TipState.height);
    PlaceTip(ownerPlace, tipPlace);
    Repaint(TipState.window);
    TipState.ticks = 0;
    return TipState.window;
}

void Tell(const char* format, ...) {
    char text[TEXT_LIMIT + 1];
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    TipWnd = ShowTip(MainWnd, text, ActionTable[ROW_TOOLTIP].value);
}

static void TipCreate() {
    TipState.threshold = 1;
    TipState.ticks = 0;
    TipState.text[0] = 0;
    TipState.window = nullptr;
    TipState.font = CreateFontA(14, 0, 0, 0, FW_LIGHT, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
}

// Runs twice for one close; the second time nothing is left to release.
static void TipCleanup(HWND window) {
    TipState.window = nullptr;
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
    const HGDIOBJ before = SelectObject(context, TipState.font);
    area.left += TEXT_MARGIN;
    DrawTextExA(context, TipState.text, static_cast<int>(std::strlen(TipState.text)), &area,
                DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    SelectObject(context, before);
    EndPaint(window, &paint);
}

static LRESULT CALLBACK TipWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: TipCreate(); return 0;
    case WM_PAINT: TipPaint(window); return 0;
    case WM_MOUSEMOVE: HideTip(window); return 0;
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

#include "dialogs/spinner.h"

#include "core/rect.h"
#include "core/state.h"

#include <new>

static const UINT START_INTERVAL = 500; // milliseconds
static const int START_MAX = 100;
static const int WINDOW_BYTES = 32;

namespace {

// What is drawn, in client pixels. If the height is odd, the row between the buttons is not drawn.
struct SpinnerShapes {
    RECT up, down;
    POINT up_arrow[4], down_arrow[4];
};

} // namespace

// Pure: the shapes for a client area of this size, in pixels.
static SpinnerShapes ShapesOfSpinner(int width, int height) {
    const int half = height / 2;
    const int below = half + height % 2;
    const int upper = half - height % 2;
    const int lower = height - below;
    const int tip_left = width / 2;
    const int tip_right = width / 2 + width % 2;
    const int foot_left = width / 3;
    const int foot_right = width * 2 / 3;
    return {{0, 0, width, half},
            {0, below, width, height},
            {{tip_left, upper / 3},
             {foot_left, upper * 2 / 3},
             {foot_right, upper * 2 / 3},
             {tip_right, upper / 3}},
            {{tip_left, below + lower * 2 / 3},
             {foot_left, below + lower / 3},
             {foot_right, below + lower / 3},
             {tip_right, below + lower * 2 / 3}}};
}

SpinnerState* StateOfSpinner(HWND spinner) {
    return reinterpret_cast<SpinnerState*>(GetWindowLongPtrA(spinner, GWLP_USERDATA));
}

static void NotifyParent(HWND spinner, UINT_PTR id, SpinnerState& state) {
    SendMessageA(GetParent(spinner), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&state));
}

// The parent may destroy the spinner while it is notified, so get the state again after that.
static void Step(HWND spinner, UINT_PTR id) {
    SpinnerState* state = StateOfSpinner(spinner);
    if (state && state->flags & SPINNER_DOWN_HELD) {
        state->value = state->value < 1 ? 0 : state->value - 1;
        NotifyParent(spinner, id, *state);
        state = StateOfSpinner(spinner);
    }
    if (state && state->flags & SPINNER_UP_HELD) {
        state->value = state->value < state->max ? state->value + 1 : state->max;
        NotifyParent(spinner, id, *state);
    }
}

static void CALLBACK SpinnerTick(HWND spinner, UINT, UINT_PTR id, DWORD) {
    Step(spinner, id);
}

static UINT_PTR IdOf(HWND spinner) {
    return static_cast<UINT_PTR>(GetWindowLongPtrA(spinner, GWLP_ID));
}

static void OnSpinnerPress(HWND spinner, int y) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (!state)
        return;
    RECT client{};
    SetCapture(spinner);
    GetClientRect(spinner, &client);
    state->flags |= y < client.bottom / 2 ? SPINNER_UP_HELD : SPINNER_DOWN_HELD;
    Step(spinner, IdOf(spinner));
    if (!StateOfSpinner(spinner))
        return;
    SetTimer(spinner, IdOf(spinner), state->interval, SpinnerTick);
    Repaint(spinner);
}

static void ReleaseButtons(HWND spinner, SpinnerState& state) {
    state.flags &= ~(SPINNER_UP_HELD | SPINNER_DOWN_HELD);
    KillTimer(spinner, IdOf(spinner));
}

static void OnSpinnerRelease(HWND spinner) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (!state)
        return;
    ReleaseButtons(spinner, *state);
    ReleaseCapture();
    Repaint(spinner);
}

// Another window took the capture, for example a message box: the release of the button will not arrive here.
static void OnSpinnerCaptureLost(HWND spinner) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (!state || !state->flags)
        return;
    ReleaseButtons(spinner, *state);
    Repaint(spinner);
}

static void DrawSpinnerArrows(HDC context, const SpinnerShapes& shapes) {
    Polygon(context, shapes.up_arrow, 4);
    Polygon(context, shapes.down_arrow, 4);
}

static UINT EdgeOfButton(int bHeld) {
    return bHeld ? EDGE_SUNKEN : EDGE_RAISED;
}

static void PaintSpinner(HWND spinner) {
    const SpinnerState* const state = StateOfSpinner(spinner);
    const int flags = state ? state->flags : 0;
    RECT client{};
    GetClientRect(spinner, &client);
    SpinnerShapes shapes = ShapesOfSpinner(client.right, client.bottom);
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(spinner, &paint);
    DrawEdge(context, &shapes.up, EdgeOfButton(flags & SPINNER_UP_HELD), BF_RECT);
    DrawSpinnerArrows(context, shapes);
    DrawEdge(context, &shapes.down, EdgeOfButton(flags & SPINNER_DOWN_HELD), BF_RECT);
    EndPaint(spinner, &paint);
}

static bool OnSpinnerCreate(HWND spinner) {
    auto* const state = new (std::nothrow) SpinnerState{0, START_INTERVAL, START_MAX, 0};
    SetWindowLongPtrA(spinner, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state));
    if (StateOfSpinner(spinner) == state)
        return state != nullptr;
    delete state; // it could not be stored
    return false;
}

static void OnSpinnerDestroy(HWND spinner) {
    delete StateOfSpinner(spinner);
    SetWindowLongPtrA(spinner, GWLP_USERDATA, 0);
}

static LRESULT CALLBACK SpinnerWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: return OnSpinnerCreate(window) ? 0 : -1;
    case WM_DESTROY: OnSpinnerDestroy(window); return 0;
    case WM_PAINT: PaintSpinner(window); return 0;
    case WM_LBUTTONDOWN: OnSpinnerPress(window, MousePosition(lParam).y); return 0;
    case WM_LBUTTONUP: OnSpinnerRelease(window); return 0;
    case WM_CAPTURECHANGED: OnSpinnerCaptureLost(window); return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP: return 0;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Registers the class for the first spinner.
static bool HasSpinnerClass(HINSTANCE instance) {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    if (GetClassInfoExA(instance, SPINNER_CLASS, &description))
        return true;
    description = {};
    description.cbSize = sizeof description;
    description.style = CS_OWNDC;
    description.lpfnWndProc = SpinnerWndProc;
    description.cbWndExtra = WINDOW_BYTES;
    description.hInstance = instance;
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = SPINNER_CLASS;
    return RegisterClassExA(&description) != 0;
}

HWND CreateSpinner(HWND parent, const RECT& rect, int id) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent, GWLP_HINSTANCE));
    if (!HasSpinnerClass(instance))
        return nullptr;
    const HWND spinner = CreateWindowExA(
        0, SPINNER_CLASS, SPINNER_CLASS, WS_CHILD | WS_VISIBLE, rect.left, rect.top, Width(rect),
        Height(rect), parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    if (!spinner)
        MessageBeep(0);
    return spinner;
}

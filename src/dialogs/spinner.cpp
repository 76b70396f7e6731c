// The spinner: its class, its steps and its picture.
#include "dialogs/spinner.h"

#include "core/coordinates.h"
#include "core/state.h"

#include <new>

static const UINT START_INTERVAL = 500; // milliseconds
static const int START_MAX = 100;
static const int WINDOW_BYTES = 32;

SpinnerShapes ShapesOfSpinner(int width, int height) {
    const int half = height / 2;
    const int below = half + height % 2;
    const int upper = half - height % 2;
    const int lower = height - below;
    const int tip_left = width / 2;
    const int tip_right = width / 2 + width % 2;
    const int foot_left = width / 3;
    const int foot_right = width * 2 / 3;
    return {
        {0,                                 0,     width, half  },
        {0,                                 below, width, height},
        {{tip_left, upper / 3},
         {foot_left, upper * 2 / 3},
         {foot_right, upper * 2 / 3},
         {tip_right, upper / 3}                                 },
        {{tip_left, below + lower * 2 / 3},
         {foot_left, below + lower / 3},
         {foot_right, below + lower / 3},
         {tip_right, below + lower * 2 / 3}                     }
    };
}

SpinnerState* StateOfSpinner(HWND spinner) {
    return reinterpret_cast<SpinnerState*>(GetWindowLongPtrA(spinner, GWLP_USERDATA));
}

int SetSpinnerValue(HWND spinner, int value) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (state)
        state->value = value;
    return state != nullptr;
}

int SetSpinnerInterval(HWND spinner, UINT milliseconds) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (state)
        state->interval = milliseconds;
    return state != nullptr;
}

int SetSpinnerFlags(HWND spinner, int flags) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (state)
        state->flags = flags;
    return state != nullptr;
}

static void TellParent(HWND spinner, UINT_PTR id, SpinnerState& state) {
    SendMessageA(GetParent(spinner), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&state));
}

// The state is asked for anew after each word to the parent, which may have destroyed the spinner.
static void Step(HWND spinner, UINT_PTR id) {
    SpinnerState* state = StateOfSpinner(spinner);
    if (state && state->flags & SPINNER_DOWN_HELD) {
        state->value = state->value < 1 ? 0 : state->value - 1;
        TellParent(spinner, id, *state);
        state = StateOfSpinner(spinner);
    }
    if (state && state->flags & SPINNER_UP_HELD) {
        state->value = state->value < state->max ? state->value + 1 : state->max;
        TellParent(spinner, id, *state);
    }
}

static void CALLBACK SpinnerTick(HWND spinner, UINT, UINT_PTR id, DWORD) {
    const SpinnerState* const state = StateOfSpinner(spinner);
    if (state && !state->paused)
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

static void LetGo(HWND spinner, SpinnerState& state) {
    state.flags &= ~(SPINNER_UP_HELD | SPINNER_DOWN_HELD);
    KillTimer(spinner, IdOf(spinner));
}

static void OnSpinnerRelease(HWND spinner) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (!state)
        return;
    LetGo(spinner, *state);
    ReleaseCapture();
    Repaint(spinner);
}

// Another window took the mouse, as a box that comes up does: the release will not come here. After a release
// nothing is held any more.
static void OnSpinnerCaptureLost(HWND spinner) {
    SpinnerState* const state = StateOfSpinner(spinner);
    if (!state || !state->flags)
        return;
    LetGo(spinner, *state);
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

static int OnSpinnerCreate(HWND spinner) {
    auto* const state = new (std::nothrow) SpinnerState{0, START_INTERVAL, 0, START_MAX, 0, 0};
    SetWindowLongPtrA(spinner, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state));
    return state != nullptr;
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
    case WM_LBUTTONDOWN: OnSpinnerPress(window, PointOf(lParam).y); return 0;
    case WM_LBUTTONUP: OnSpinnerRelease(window); return 0;
    case WM_CAPTURECHANGED: OnSpinnerCaptureLost(window); return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP: return 0;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Once, by the first spinner.
static int HasSpinnerClass(HINSTANCE instance) {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    if (GetClassInfoExA(instance, SPINNER_CLASS, &description))
        return 1;
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

HWND CreateSpinner(HWND parent, int x, int y, int width, int height, int id, int flags) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent, GWLP_HINSTANCE));
    if (!HasSpinnerClass(instance))
        return nullptr;
    const HWND spinner =
        CreateWindowExA(0, SPINNER_CLASS, SPINNER_CLASS, WS_CHILD | WS_VISIBLE, x, y, width, height, parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    if (spinner)
        SetSpinnerFlags(spinner, flags);
    else
        MessageBeep(0);
    return spinner;
}

// The Options dialog.
#include "dialogs/options_dialog.h"

#include "core/dpi.h"
#include "core/rect.h"
#include "core/state.h"
#include "dialogs/controls.h"
#include "dialogs/options_rules.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"
#include "resources/control_ids.h"
#include "scroll/desktop_size.h"
#include "scroll/gather.h"
#include "scroll/shift.h"

#include <iterator>

namespace {

// An edit box for the width or height of the desktop, and the spinner that counts it in screens.
struct SizeControls {
    int edit, spinner;
    int (*screen)();
};

struct NumberControl {
    int edit;
    int OptionNumbers::*number;
};

} // namespace

static const SizeControls HeightControls = {IDC_OPTIONS_HEIGHT, IDC_OPTIONS_HEIGHT_SPINNER, ScreenH};
static const SizeControls WidthControls = {IDC_OPTIONS_WIDTH, IDC_OPTIONS_WIDTH_SPINNER, ScreenW};

static const NumberControl NumberControls[] = {
    {IDC_OPTIONS_HEIGHT, &OptionNumbers::height},
    {IDC_OPTIONS_WIDTH, &OptionNumbers::width},
    {IDC_OPTIONS_BORDER, &OptionNumbers::border},
    {IDC_OPTIONS_MAXSCROLL, &OptionNumbers::maxscroll},
    {IDC_OPTIONS_MINSCROLL, &OptionNumbers::minscroll},
    {IDC_OPTIONS_MOUSESCROLL, &OptionNumbers::mousescroll},
};

// In the order of EdgeDistance and EdgeDelay.
static const int TypeRadios[] = {IDC_OPTIONS_BY_MIN, IDC_OPTIONS_BY_MAX, IDC_OPTIONS_BY_MOUSE,
                                 IDC_OPTIONS_BY_SCREEN};
static const int DelayRadios[] = {IDC_OPTIONS_AT_ONCE, IDC_OPTIONS_LEFT_CLICK, IDC_OPTIONS_RIGHT_CLICK,
                                  IDC_OPTIONS_AFTER_TIME};

// Disabled without the hook library.
static const int MouseControls[] = {
    IDC_OPTIONS_MOUSESCROLL, IDC_OPTIONS_BY_MAX,     IDC_OPTIONS_BY_MIN,     IDC_OPTIONS_BY_MOUSE,
    IDC_OPTIONS_BY_SCREEN,   IDC_OPTIONS_AT_ONCE,    IDC_OPTIONS_LEFT_CLICK, IDC_OPTIONS_RIGHT_CLICK,
    IDC_OPTIONS_AFTER_TIME,  IDC_OPTIONS_DELAY_TIME,
};

static const SIZE SPINNER_SIZE = {15, 21}; // pixels at 96 DPI
static const UINT SPINNER_INTERVAL = 250;  // milliseconds
static const UINT PLACE_SPINNERS_MESSAGE = WM_APP;

// 2147483648 and more become negative; an empty box is 0.
static int ReadNumber(HWND dialog, int edit) {
    return static_cast<int>(GetDlgItemInt(dialog, edit, nullptr, FALSE));
}

static void ShowNumber(HWND dialog, int edit, int number) {
    SetDlgItemInt(dialog, edit, static_cast<UINT>(number), FALSE);
}

static void Enable(HWND dialog, int control, int bEnabled) {
    EnableWindow(GetDlgItem(dialog, control), bEnabled);
}

static void ShowNumbers(HWND dialog) {
    const OptionNumbers now = {Quorl.bottom,      Quorl.right,       ShownBorder(Options.border),
                               Options.maxscroll, Options.minscroll, Options.mousescroll};
    for (const NumberControl& control : NumberControls)
        ShowNumber(dialog, control.edit, now.*control.number);
}

static OptionNumbers NumbersShown(HWND dialog) {
    OptionNumbers shown{};
    for (const NumberControl& control : NumberControls)
        shown.*control.number = ReadNumber(dialog, control.edit);
    return shown;
}

// A value without a button checks none. If none is visibly checked, makes `first`, the topmost button,
// reachable by Tab.
template <std::size_t count>
static void CheckRadio(HWND dialog, const int (&radios)[count], int value, int first) {
    const int radio = value >= 0 && value < static_cast<int>(count) ? radios[value] : 0;
    if (radio)
        CheckDlgButton(dialog, radio, BST_CHECKED);
    if (!radio || radio == IDC_OPTIONS_RIGHT_CLICK)
        KeepTabStop(GetDlgItem(dialog, first));
}

// If none is checked, the value stays.
template <std::size_t count>
static void ReadRadios(HWND dialog, const int (&radios)[count], int* value) {
    for (int radio = 0; radio < static_cast<int>(count); ++radio)
        if (IsDlgButtonChecked(dialog, radios[radio]))
            *value = radio;
}

static void ClearRadios(HWND dialog) {
    for (const int radio : TypeRadios)
        CheckDlgButton(dialog, radio, BST_UNCHECKED);
    for (const int radio : DelayRadios)
        CheckDlgButton(dialog, radio, BST_UNCHECKED);
}

static void ShowNoMouseOptions(HWND dialog) {
    for (const int control : MouseControls)
        Enable(dialog, control, 0);
    SetDlgItemTextA(dialog, IDC_OPTIONS_MOUSE_NOTE,
                    "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
}

static void ShowMouseOptions(HWND dialog) {
    SetDlgItemTextA(dialog, IDC_OPTIONS_MOUSE_NOTE,
                    "When mouse scroll actions are used, these items determine how to scroll.");
    ShowNumber(dialog, IDC_OPTIONS_DELAY_TIME, Options.mousescroll_delay_time);
    CheckRadio(dialog, DelayRadios, Options.mousescroll_delay, IDC_OPTIONS_AT_ONCE);
    Enable(dialog, IDC_OPTIONS_DELAY_TIME, Options.mousescroll_delay == EDGE_AFTER_DELAY);
    CheckRadio(dialog, TypeRadios, Options.mousescroll_type, IDC_OPTIONS_BY_MAX);
}

static void ReadMouseOptions(HWND dialog) {
    ReadRadios(dialog, TypeRadios, &Options.mousescroll_type);
    ReadRadios(dialog, DelayRadios, &Options.mousescroll_delay);
    Options.mousescroll_delay_time = ReadNumber(dialog, IDC_OPTIONS_DELAY_TIME);
}

// At the right side of the edit box, whose position depends on fonts and DPI. Client pixels of the dialog.
static RECT SpinnerRect(HWND dialog, const SizeControls& size) {
    RECT edit{};
    GetWindowRect(GetDlgItem(dialog, size.edit), &edit);
    POINT corner = {edit.left, edit.top};
    ScreenToClient(dialog, &corner);
    const LONG left = corner.x + Width(edit);
    const int dpi = DpiOf(dialog);
    return {left, corner.y, left + Scale(SPINNER_SIZE.cx, dpi, DEFAULT_DPI),
            corner.y + Scale(SPINNER_SIZE.cy, dpi, DEFAULT_DPI)};
}

static void PlaceSpinners(HWND dialog) {
    for (const SizeControls& size : {HeightControls, WidthControls}) {
        const RECT rect = SpinnerRect(dialog, size);
        MoveWindow(GetDlgItem(dialog, size.spinner), rect.left, rect.top, Width(rect), Height(rect), TRUE);
    }
}

static void AddSpinner(HWND dialog, const SizeControls& size, int pixels) {
    const HWND spinner = CreateSpinner(dialog, SpinnerRect(dialog, size), size.spinner);
    if (SpinnerState* const state = StateOfSpinner(spinner)) {
        state->value = Quotient(pixels, size.screen());
        state->interval = SPINNER_INTERVAL;
    }
}

static void OnOptionsInit(HWND dialog) {
    ClearRadios(dialog);
    if (Options.hook_present)
        ShowMouseOptions(dialog);
    else
        ShowNoMouseOptions(dialog);
    ShowNumbers(dialog);
    AddSpinner(dialog, HeightControls, Quorl.bottom);
    AddSpinner(dialog, WidthControls, Quorl.right);
    ShowWindow(dialog, SW_SHOW);
}

// Clamps the number in the edit box and sets the spinner to it.
static void LimitSize(HWND dialog, const SizeControls& size) {
    SpinnerState* const state = StateOfSpinner(GetDlgItem(dialog, size.spinner));
    if (!state)
        return;
    const int shown = ReadNumber(dialog, size.edit);
    const int limited = ClampSize(shown);
    if (limited != shown)
        ShowNumber(dialog, size.edit, limited);
    state->value = Quotient(limited, size.screen());
}

static void OnSpinnerStep(HWND dialog, WPARAM id, const SpinnerState* state) {
    for (const SizeControls& size : {HeightControls, WidthControls}) {
        if (id != static_cast<WPARAM>(size.spinner))
            continue;
        ShowNumber(dialog, size.edit, Wrap(1LL * state->value * size.screen()));
        LimitSize(dialog, size);
    }
}

static void ShowSteppedSize(HWND dialog, const SizeControls& size, int step) {
    ShowNumber(dialog, size.edit, StepSize(ReadNumber(dialog, size.edit), size.screen(), step));
}

static void StoreNumbers(const OptionNumbers& accepted) {
    SetDesktopSize(accepted.width, accepted.height);
    Options.border = accepted.border;
    Options.maxscroll = accepted.maxscroll;
    Options.minscroll = accepted.minscroll;
    Options.mousescroll = accepted.mousescroll;
}

// If the desktop shrinks, windows fold back onto the screen; those left of the desktop or above it move to
// its edge. The view stays: the next scroll clamps it.
static void OnAccept(HWND dialog, int) {
    if (!MayScroll()) {
        MessageBeep(0); // no window could be folded now
        return;
    }
    const RECT before = Quorl;
    StoreNumbers(AcceptNumbers(NumbersShown(dialog), ScreenW(), ScreenH(), Options.minscroll));
    if (Options.hook_present)
        ReadMouseOptions(dialog); // first: a box during the folding lets the user close this dialog
    if (Quorl.right < before.right || Quorl.bottom < before.bottom)
        GatherWindows(FOLD_TO_SMALLER_DESKTOP);
    Repaint(MainWnd);
    ShiftWindows(0, 0);
    CloseDialog(dialog);
}

static void OnCancel(HWND dialog, int) {
    CloseDialog(dialog);
}

static void OnOpenActions(HWND dialog, int) {
    OpenDialog(dialog, DIALOG_ACTIONS);
}

static void OnOpenMenus(HWND dialog, int) {
    OpenDialog(dialog, DIALOG_CUSTOMIZE_MENU);
}

static void OnLimitHeight(HWND dialog, int) {
    LimitSize(dialog, HeightControls);
}

static void OnLimitWidth(HWND dialog, int) {
    LimitSize(dialog, WidthControls);
}

static void OnStepHeight(HWND dialog, int step) {
    ShowSteppedSize(dialog, HeightControls, step);
}

static void OnStepWidth(HWND dialog, int step) {
    ShowSteppedSize(dialog, WidthControls, step);
}

static void OnEnableDelayTime(HWND dialog, int bEnabled) {
    Enable(dialog, IDC_OPTIONS_DELAY_TIME, bEnabled);
}

// A click does not clear the hidden radio button, which would override the user's choice.
static void OnChooseDelay(HWND dialog, int bTime) {
    CheckDlgButton(dialog, IDC_OPTIONS_RIGHT_CLICK, BST_UNCHECKED);
    OnEnableDelayTime(dialog, bTime);
}

namespace {

struct OptionsCommand {
    int id, code;
    void (*handler)(HWND dialog, int argument);
    int argument;
};

} // namespace

static const int ANY_CODE = -1;

static const OptionsCommand Commands[] = {
    {IDOK, ANY_CODE, OnAccept, 0},
    {IDCANCEL, ANY_CODE, OnCancel, 0},
    {IDC_OPTIONS_ACTIONS, ANY_CODE, OnOpenActions, 0},
    {IDC_OPTIONS_MENUS, ANY_CODE, OnOpenMenus, 0},
    {IDC_OPTIONS_HEIGHT, EN_KILLFOCUS, OnLimitHeight, 0},
    {IDC_OPTIONS_WIDTH, EN_KILLFOCUS, OnLimitWidth, 0},
    {IDC_OPTIONS_HEIGHT_MORE, ANY_CODE, OnStepHeight, 1},
    {IDC_OPTIONS_HEIGHT_LESS, ANY_CODE, OnStepHeight, -1},
    {IDC_OPTIONS_WIDTH_MORE, ANY_CODE, OnStepWidth, 1},
    {IDC_OPTIONS_WIDTH_LESS, ANY_CODE, OnStepWidth, -1},
    {IDC_OPTIONS_AFTER_TIME, ANY_CODE, OnChooseDelay, 1},
    {IDC_OPTIONS_AT_ONCE, ANY_CODE, OnChooseDelay, 0},
    {IDC_OPTIONS_LEFT_CLICK, ANY_CODE, OnChooseDelay, 0},
    {IDC_OPTIONS_RIGHT_CLICK, ANY_CODE, OnEnableDelayTime, 0},
};

static void OnOptionsCommand(HWND dialog, int id, int code) {
    for (const OptionsCommand& row : Commands)
        if (row.id == id && (row.code == ANY_CODE || row.code == code)) {
            row.handler(dialog, row.argument);
            return;
        }
}

INT_PTR CALLBACK OptionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnOptionsInit(dialog); return 1;
    case WM_COMMAND: OnOptionsCommand(dialog, LOWORD(wParam), HIWORD(wParam)); break;
    case WM_NOTIFY: OnSpinnerStep(dialog, wParam, reinterpret_cast<const SpinnerState*>(lParam)); break;
    // Windows scales the other controls after this message has been handled.
    case WM_DPICHANGED: PostMessageA(dialog, PLACE_SPINNERS_MESSAGE, 0, 0); break;
    case PLACE_SPINNERS_MESSAGE: PlaceSpinners(dialog); break;
    default: break;
    }
    return 0;
}

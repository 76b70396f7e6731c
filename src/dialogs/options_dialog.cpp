// The Options dialog: controls to settings and back.
#include "dialogs/options_dialog.h"

#include "core/arithmetic.h"
#include "core/state.h"
#include "dialogs/actions_dialog.h"
#include "dialogs/controls.h"
#include "dialogs/customize_menu_dialog.h"
#include "dialogs/options_rules.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"
#include "scroll/gather.h"
#include "scroll/shift.h"

#include <iterator>

namespace {

// The controls, by their number in the template; the spinners are made at run time.
enum OptionsControl {
    ACTIONS_BUTTON = 3,
    HEIGHT_EDIT = 1000,
    WIDTH_EDIT,
    BORDER_EDIT,
    DELAY_TIME_EDIT,
    MAXSCROLL_EDIT = 1007,
    MINSCROLL_EDIT,
    MOUSESCROLL_EDIT,
    HEIGHT_MORE = 1022,
    HEIGHT_LESS,
    WIDTH_MORE,
    WIDTH_LESS,
    MENUS_BUTTON = 1064,
    BY_MAXSCROLL = 1073,
    BY_MINSCROLL,
    BY_MOUSESCROLL,
    BY_SCREEN,
    MOUSE_NOTE,
    AFTER_TIME,
    AT_ONCE,
    AFTER_LEFT_CLICK,
    AFTER_RIGHT_CLICK = 1082,
    HEIGHT_SPINNER = 54321,
    WIDTH_SPINNER,
};

// An edit box for a length of the desktop, with what counts it in whole screens.
struct SizeControls {
    int edit, spinner;
    int (*screen)();
};

struct NumberControl {
    int edit;
    int OptionNumbers::*number;
};

} // namespace

static const SizeControls Height = {HEIGHT_EDIT, HEIGHT_SPINNER, ScreenH};
static const SizeControls Width = {WIDTH_EDIT, WIDTH_SPINNER, ScreenW};

static const NumberControl NumberControls[] = {
    {HEIGHT_EDIT,      &OptionNumbers::height     },
    {WIDTH_EDIT,       &OptionNumbers::width      },
    {BORDER_EDIT,      &OptionNumbers::border     },
    {MAXSCROLL_EDIT,   &OptionNumbers::maxscroll  },
    {MINSCROLL_EDIT,   &OptionNumbers::minscroll  },
    {MOUSESCROLL_EDIT, &OptionNumbers::mousescroll},
};

// In the order of the values that they stand for, from 0.
static const int TypeRadios[] = {BY_MINSCROLL, BY_MAXSCROLL, BY_MOUSESCROLL, BY_SCREEN};
static const int DelayRadios[] = {AT_ONCE, AFTER_LEFT_CLICK, AFTER_RIGHT_CLICK, AFTER_TIME};
static const int DELAY_OF_A_TIME = 3;

// Of no use without the hook library.
static const int MouseControls[] = {
    MOUSESCROLL_EDIT, BY_MAXSCROLL,     BY_MINSCROLL,      BY_MOUSESCROLL, BY_SCREEN,
    AT_ONCE,          AFTER_LEFT_CLICK, AFTER_RIGHT_CLICK, AFTER_TIME,     DELAY_TIME_EDIT,
};

static const SIZE SPINNER_SIZE = {15, 21}; // pixels
static const UINT SPINNER_INTERVAL = 250;  // milliseconds

// 2147483648 and more come out negative; an empty box gives 0.
static int NumberIn(HWND dialog, int edit) {
    return static_cast<int>(GetDlgItemInt(dialog, edit, nullptr, FALSE));
}

static void ShowNumber(HWND dialog, int edit, int number) {
    SetDlgItemInt(dialog, edit, static_cast<UINT>(number), FALSE);
}

static void Enable(HWND dialog, int control, int bEnabled) {
    EnableWindow(GetDlgItem(dialog, control), bEnabled);
}

static void ShowNumbers(HWND dialog) {
    const OptionNumbers now = {Quorl.bottom,      Quorl.right,       Options.border - 1,
                               Options.maxscroll, Options.minscroll, Options.mousescroll};
    for (const NumberControl& control : NumberControls)
        ShowNumber(dialog, control.edit, now.*control.number);
}

static OptionNumbers NumbersShown(HWND dialog) {
    OptionNumbers shown{};
    for (const NumberControl& control : NumberControls)
        shown.*control.number = NumberIn(dialog, control.edit);
    return shown;
}

// A value that no radio stands for checks none. Then, and when a hidden one is checked, Tab finds `first`,
// the topmost.
template <std::size_t count>
static void CheckRadio(HWND dialog, const int (&radios)[count], int value, int first) {
    const int radio = value >= 0 && value < static_cast<int>(count) ? radios[value] : 0;
    if (radio)
        CheckDlgButton(dialog, radio, BST_CHECKED);
    if (!radio || radio == AFTER_RIGHT_CLICK)
        KeepTabStop(GetDlgItem(dialog, first));
}

// With none checked the value stays.
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
    SetDlgItemTextA(dialog, MOUSE_NOTE,
                    "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
}

static void ShowMouseOptions(HWND dialog) {
    SetDlgItemTextA(dialog, MOUSE_NOTE,
                    "When mouse scroll actions are used, these items determine how to scroll.");
    ShowNumber(dialog, DELAY_TIME_EDIT, Options.mousescroll_delay_time);
    CheckRadio(dialog, DelayRadios, Options.mousescroll_delay, AT_ONCE);
    Enable(dialog, DELAY_TIME_EDIT, Options.mousescroll_delay == DELAY_OF_A_TIME);
    CheckRadio(dialog, TypeRadios, Options.mousescroll_type, BY_MAXSCROLL);
}

static void ReadMouseOptions(HWND dialog) {
    ReadRadios(dialog, TypeRadios, &Options.mousescroll_type);
    ReadRadios(dialog, DelayRadios, &Options.mousescroll_delay);
    Options.mousescroll_delay_time = NumberIn(dialog, DELAY_TIME_EDIT);
}

// Against the right side of the edit box, wherever fonts and DPI have put that.
static void AddSpinner(HWND dialog, const SizeControls& size, int pixels) {
    RECT edit{};
    GetWindowRect(GetDlgItem(dialog, size.edit), &edit);
    POINT corner = {edit.left, edit.top};
    ScreenToClient(dialog, &corner);
    const HWND spinner = CreateSpinner(dialog, corner.x + edit.right - edit.left, corner.y, SPINNER_SIZE.cx,
                                       SPINNER_SIZE.cy, size.spinner, 0);
    SetSpinnerValue(spinner, Quotient(pixels, size.screen()));
    SetSpinnerInterval(spinner, SPINNER_INTERVAL);
}

static void OnOptionsInit(HWND dialog) {
    DialogHandles[KEYS_OPTIONS] = dialog;
    ClearRadios(dialog);
    if (Options.hook_present)
        ShowMouseOptions(dialog);
    else
        ShowNoMouseOptions(dialog);
    ShowNumbers(dialog);
    AddSpinner(dialog, Height, Quorl.bottom);
    AddSpinner(dialog, Width, Quorl.right);
    ShowWindow(dialog, SW_SHOW);
}

// Holds the edit box within the limits and has the spinner count what stands there.
static void LimitSize(HWND dialog, const SizeControls& size) {
    SpinnerState* const state = StateOfSpinner(GetDlgItem(dialog, size.spinner));
    if (!state)
        return;
    const int shown = NumberIn(dialog, size.edit);
    const int limited = LimitedSize(shown);
    if (limited != shown)
        ShowNumber(dialog, size.edit, limited);
    state->value = Quotient(limited, size.screen());
}

static void OnSpinnerStep(HWND dialog, WPARAM id, const SpinnerState* state) {
    for (const SizeControls& size : {Height, Width}) {
        if (id != static_cast<WPARAM>(size.spinner))
            continue;
        ShowNumber(dialog, size.edit, state->value * size.screen());
        LimitSize(dialog, size);
    }
}

static void StepSize(HWND dialog, const SizeControls& size, int step) {
    ShowNumber(dialog, size.edit, SizeByScreens(NumberIn(dialog, size.edit), size.screen(), step));
}

static void TakeNumbers(const OptionNumbers& taken) {
    Quorl.bottom = taken.height;
    Quorl.right = taken.width;
    Options.border = taken.border;
    Options.maxscroll = taken.maxscroll;
    Options.minscroll = taken.minscroll;
    Options.mousescroll = taken.mousescroll;
}

// What stood on a part of the desktop that is gone is folded back; every window is then held inside. The view
// stays: the next scroll brings it back.
static void OnAccept(HWND dialog, int) {
    const RECT before = Quorl;
    TakeNumbers(AcceptedNumbers(NumbersShown(dialog), ScreenW(), ScreenH(), Options.minscroll));
    if (Options.hook_present)
        ReadMouseOptions(dialog); // a box of the folding leaves the user free to close this dialog
    if (Quorl.right < before.right || Quorl.bottom < before.bottom)
        GatherWindows();
    Repaint(MainWnd);
    ShiftWindows(0, 0);
    CloseDialog(dialog, DIALOG_OPTIONS, IDOK);
}

static void OnCancel(HWND dialog, int) {
    CloseDialog(dialog, DIALOG_OPTIONS, IDCANCEL);
}

static void OnOpenActions(HWND dialog, int) {
    OpenDialog(dialog, DIALOG_ACTIONS, ActionsDlgProc);
}

static void OnOpenMenus(HWND dialog, int) {
    OpenDialog(dialog, DIALOG_CUSTOMIZE_MENU, CustomizeMenuDlgProc);
}

static void OnLimitHeight(HWND dialog, int) {
    LimitSize(dialog, Height);
}

static void OnLimitWidth(HWND dialog, int) {
    LimitSize(dialog, Width);
}

static void OnStepHeight(HWND dialog, int step) {
    StepSize(dialog, Height, step);
}

static void OnStepWidth(HWND dialog, int step) {
    StepSize(dialog, Width, step);
}

static void OnEnableDelayTime(HWND dialog, int bEnabled) {
    Enable(dialog, DELAY_TIME_EDIT, bEnabled);
}

// A click leaves the check of a hidden radio alone, and that would win over the user's choice.
static void OnChooseDelay(HWND dialog, int bTime) {
    CheckDlgButton(dialog, AFTER_RIGHT_CLICK, BST_UNCHECKED);
    OnEnableDelayTime(dialog, bTime);
}

namespace {

struct OptionsCommand {
    int id, code;
    void (*does)(HWND dialog, int with);
    int with;
};

} // namespace

static const int ANY_CODE = -1;

static const OptionsCommand Commands[] = {
    {IDOK,              ANY_CODE,     OnAccept,          0 },
    {IDCANCEL,          ANY_CODE,     OnCancel,          0 },
    {ACTIONS_BUTTON,    ANY_CODE,     OnOpenActions,     0 },
    {MENUS_BUTTON,      ANY_CODE,     OnOpenMenus,       0 },
    {HEIGHT_EDIT,       EN_KILLFOCUS, OnLimitHeight,     0 },
    {WIDTH_EDIT,        EN_KILLFOCUS, OnLimitWidth,      0 },
    {HEIGHT_MORE,       ANY_CODE,     OnStepHeight,      1 },
    {HEIGHT_LESS,       ANY_CODE,     OnStepHeight,      -1},
    {WIDTH_MORE,        ANY_CODE,     OnStepWidth,       1 },
    {WIDTH_LESS,        ANY_CODE,     OnStepWidth,       -1},
    {AFTER_TIME,        ANY_CODE,     OnChooseDelay,     1 },
    {AT_ONCE,           ANY_CODE,     OnChooseDelay,     0 },
    {AFTER_LEFT_CLICK,  ANY_CODE,     OnChooseDelay,     0 },
    {AFTER_RIGHT_CLICK, ANY_CODE,     OnEnableDelayTime, 0 },
};

static void OnOptionsCommand(HWND dialog, int id, int code) {
    for (const OptionsCommand& row : Commands)
        if (row.id == id && (row.code == ANY_CODE || row.code == code)) {
            row.does(dialog, row.with);
            return;
        }
}

INT_PTR CALLBACK OptionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnOptionsInit(dialog); return 1;
    case WM_COMMAND: OnOptionsCommand(dialog, LOWORD(wParam), HIWORD(wParam)); break;
    case WM_NOTIFY: OnSpinnerStep(dialog, wParam, reinterpret_cast<const SpinnerState*>(lParam)); break;
    default: break;
    }
    return 0;
}

int OpenOptionsDialog(HWND window) {
    OpenDialog(window, DIALOG_OPTIONS, OptionsDlgProc);
    return 1;
}

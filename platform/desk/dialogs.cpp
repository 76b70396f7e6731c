// Dialogs: creation from templates, closing, access to controls by id.
#include "controls.h"
#include "templates.h"

#include <commdlg.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

// Pixels of 4 horizontal and 8 vertical dialog units: MS Shell Dlg at 8 points and 96 DPI.
constexpr int BASE_WIDTH = 6;
constexpr int BASE_HEIGHT = 13;

static int PixelsX(int units) {
    return (units * BASE_WIDTH + 2) / 4;
}

static int PixelsY(int units) {
    return (units * BASE_HEIGHT + 4) / 8;
}

static void AddControl(HWND dialog, const ControlTemplate& from, const SystemClass& kind) {
    const POINT corner = ToScreen(dialog, PixelsX(from.rect.x), PixelsY(from.rect.y));
    DeskWindow control;
    control.className = kind.name;
    control.title = from.text;
    control.rect = {corner.x, corner.y, corner.x + PixelsX(from.rect.width),
                    corner.y + PixelsY(from.rect.height)};
    control.style = from.style;
    control.exStyle = from.exStyle;
    control.owner = dialog;
    control.id = from.id;
    control.instance = WindowOf(dialog).instance;
    control.procedure = kind.procedure;
    Invalidate(WindowOf(AddWindow(std::move(control))), nullptr, 1);
}

// Centred on the primary display, or at the template's position in the owner's client area, clamped to the
// display.
static POINT CornerOf(const DialogTemplate& from, HWND owner, SIZE size) {
    const RECT screen = Desk.displays.front().rect;
    if (from.style & DS_CENTER)
        return {screen.left + (Width(screen) - size.cx) / 2, screen.top + (Height(screen) - size.cy) / 2};
    POINT corner{PixelsX(from.rect.x), PixelsY(from.rect.y)};
    if (LiveWindow(owner))
        corner = ToScreen(owner, corner.x, corner.y);
    return {std::max(screen.left, std::min(corner.x, screen.right - size.cx)),
            std::max(screen.top, std::min(corner.y, screen.bottom - size.cy))};
}

static HWND NewDialog(const DialogTemplate& from, HWND owner, HINSTANCE instance) {
    DeskWindow dialog;
    dialog.className = "#32770";
    dialog.title = from.title;
    dialog.style = from.style & ~WS_VISIBLE;
    dialog.exStyle = from.exStyle;
    dialog.owner = owner;
    dialog.instance = instance;
    dialog.procedure = DialogProc;
    const RECT frame = FrameWidths(dialog);
    const SIZE size{PixelsX(from.rect.width) + frame.left + frame.right,
                    PixelsY(from.rect.height) + frame.top + frame.bottom};
    const POINT corner = CornerOf(from, owner, size);
    dialog.rect = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
    return AddWindow(std::move(dialog));
}

// False for an unknown class: the dialog is not created then.
static bool AddControls(HWND dialog, const DialogTemplate& from) {
    for (const ControlTemplate& control : from.controls) {
        const SystemClass* kind = FindSystemClass(control.className.c_str());
        if (!kind)
            return false;
        AddControl(dialog, control, *kind);
    }
    return true;
}

// If WM_INITDIALOG returns TRUE, the first tab stop gets the focus.
static void SendInit(HWND dialog, LPARAM parameter) {
    const HWND first = NextTabStop(dialog, nullptr, 0);
    const INT_PTR wantsFocus =
        WindowOf(dialog).dialog(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), parameter);
    if (!wantsFocus || !LiveWindow(dialog))
        return;
    const HWND now = NextTabStop(dialog, nullptr, 0);
    FocusWindow(now ? now : dialog);
}

static HWND CreateFromTemplate(HINSTANCE instance, UINT_PTR id, HWND parent, DLGPROC procedure,
                               LPARAM parameter) {
    const DialogTemplate* from = FindTemplate(static_cast<int>(id));
    if (!from)
        return nullptr;
    const HWND dialog = NewDialog(*from, parent, instance);
    if (!AddControls(dialog, *from)) {
        KillWindow(dialog);
        return nullptr;
    }
    WindowOf(dialog).dialog = procedure;
    SendInit(dialog, parameter);
    return LiveWindow(dialog) ? dialog : nullptr;
}

HWND CreateDialogParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC procedure, LPARAM parameter) {
    return CallFails("CreateDialogParamA")
               ? nullptr
               : CreateFromTemplate(instance, reinterpret_cast<UINT_PTR>(name), parent, procedure, parameter);
}

HWND CreateDialogParamW(HINSTANCE instance, LPCWSTR name, HWND parent, DLGPROC procedure, LPARAM parameter) {
    return CallFails("CreateDialogParamW")
               ? nullptr
               : CreateFromTemplate(instance, reinterpret_cast<UINT_PTR>(name), parent, procedure, parameter);
}

// For these the dialog procedure's result is the message's result; for all others it says whether it was
// handled.
static bool IsResult(UINT message) {
    return message == WM_INITDIALOG || message == WM_CTLCOLORSTATIC;
}

// WM_CLOSE becomes the Cancel command.
static LRESULT DefaultOfDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CLOSE)
        return DefaultProc(dialog, message, wParam, lParam);
    Desk.queue.push_back({dialog, WM_COMMAND, IDCANCEL,
                          reinterpret_cast<LPARAM>(FindControl(dialog, IDCANCEL)), Desk.now, Desk.cursor});
    return 0;
}

LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const DLGPROC procedure = WindowOf(dialog).dialog;
    const INT_PTR answer = procedure ? procedure(dialog, message, wParam, lParam) : 0;
    if (answer)
        return IsResult(message) ? answer : 0;
    return LiveWindow(dialog) ? DefaultOfDialog(dialog, message, wParam, lParam) : 0;
}

static bool IsInside(HWND control, HWND dialog) {
    const DeskWindow* record = LiveWindow(control);
    while (record && record->handle != dialog && (record->style & WS_CHILD))
        record = LiveWindow(record->owner);
    return record && record->handle == dialog;
}

// Only hides the window. A focused control loses the focus to the dialog first, with its notification.
BOOL EndDialog(HWND dialog, INT_PTR) {
    DeskWindow* record = CallFails("EndDialog") ? nullptr : ResolveHandle(dialog);
    if (!record || !record->dialog)
        return FALSE;
    if (IsInside(Desk.focus, dialog))
        ChangeFocus(dialog);
    const bool wasActive = Desk.foreground == dialog;
    HideWindow(*record);
    const DeskWindow* owner = LiveWindow(record->owner);
    if (wasActive && owner && (owner->style & WS_VISIBLE))
        Activate(owner->handle);
    return TRUE;
}

HWND FindControl(HWND dialog, int id) {
    const DeskWindow* record = LiveWindow(dialog);
    for (const HWND child : record ? record->children : std::vector<HWND>{})
        if (WindowOf(child).id == id)
            return child;
    return nullptr;
}

HWND GetDlgItem(HWND dialog, int id) {
    return CallFails("GetDlgItem") || !ResolveHandle(dialog) ? nullptr : FindControl(dialog, id);
}

static LRESULT SendToControl(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWndProc(FindControl(dialog, id), message, wParam, lParam);
}

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallFails("SendDlgItemMessageA") ? 0 : SendToControl(dialog, id, message, wParam, lParam);
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    return !CallFails("SetDlgItemTextA") &&
           SendToControl(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int limit) {
    if (limit > 0)
        *text = 0;
    if (CallFails("GetDlgItemTextA"))
        return 0;
    return static_cast<UINT>(
        SendToControl(dialog, id, WM_GETTEXT, static_cast<WPARAM>(limit), reinterpret_cast<LPARAM>(text)));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    const std::string text = isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    return !CallFails("SetDlgItemInt") &&
           SendToControl(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) != 0;
}

// Fails for anything that is not a 32-bit number.
static bool ParseNumber(const char* text, BOOL isSigned, UINT* value) {
    char* end = nullptr;
    const long long number = std::strtoll(text, &end, 10);
    const long long min = isSigned ? INT32_MIN : 0;
    const long long max = isSigned ? INT32_MAX : UINT32_MAX;
    if (end == text || number < min || number > max)
        return false;
    *value = static_cast<UINT>(number);
    return true;
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
    char text[30] = "";
    UINT value = 0;
    bool isNumber = false;
    if (!CallFails("GetDlgItemInt") &&
        SendToControl(dialog, id, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)))
        isNumber = ParseNumber(text, isSigned, &value);
    if (translated)
        *translated = isNumber;
    return value;
}

BOOL CheckDlgButton(HWND dialog, int id, UINT state) {
    if (CallFails("CheckDlgButton") || !FindControl(dialog, id))
        return FALSE;
    SendToControl(dialog, id, BM_SETCHECK, state, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    return CallFails("IsDlgButtonChecked") ? 0
                                           : static_cast<UINT>(SendToControl(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL ChooseColorA(CHOOSECOLORA* choice) {
    if (CallFails("ChooseColorA") || choice->lStructSize != sizeof *choice)
        return FALSE;
    Desk.colorDialogs.push_back({choice->hwndOwner,
                                 choice->rgbResult,
                                 choice->Flags,
                                 {choice->lpCustColors, choice->lpCustColors + 16}});
    if (Desk.colorChoices.empty()) {
        ++Desk.unexpected;
        return FALSE;
    }
    const std::optional<COLORREF> answer = Desk.colorChoices.front();
    Desk.colorChoices.pop_front();
    choice->rgbResult = answer.value_or(choice->rgbResult);
    return answer.has_value();
}

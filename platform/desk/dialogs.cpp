// Dialogs: made from their templates, ended, and asked for their controls by number.
#include "controls.h"
#include "templates.h"

#include <commdlg.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

// Pixels of MS Sans Serif at 8 points and 96 dots an inch: 4 units across, 8 down.
constexpr int BASE_WIDTH = 6;
constexpr int BASE_HEIGHT = 13;

static int Across(int units) {
    return (units * BASE_WIDTH + 2) / 4;
}

static int Down(int units) {
    return (units * BASE_HEIGHT + 4) / 8;
}

static void AddControl(HWND dialog, const ControlTemplate& from, const SystemClass& kind) {
    const POINT corner = OnScreen(dialog, Across(from.place.x), Down(from.place.y));
    DeskWindow control;
    control.className = kind.name;
    control.title = from.text;
    control.place = {corner.x, corner.y, corner.x + Across(from.place.width),
                     corner.y + Down(from.place.height)};
    control.style = from.style;
    control.exStyle = from.exStyle;
    control.owner = dialog;
    control.id = from.id;
    control.instance = RowOf(dialog).instance;
    control.procedure = kind.procedure;
    Invalidate(RowOf(NewWindow(std::move(control))), nullptr, 1);
}

// In the middle of the screen, or where the template says in the client area of its owner, on the screen.
static POINT CornerOf(const DialogTemplate& from, HWND owner, SIZE size) {
    const RECT screen = Desk.monitors.front();
    if (from.style & DS_CENTER)
        return {(screen.left + screen.right - size.cx) / 2, (screen.top + screen.bottom - size.cy) / 2};
    POINT corner{Across(from.place.x), Down(from.place.y)};
    if (Living(owner))
        corner = OnScreen(owner, corner.x, corner.y);
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
    const RECT frame = FrameOf(dialog);
    const SIZE size{Across(from.place.width) + frame.left + frame.right,
                    Down(from.place.height) + frame.top + frame.bottom};
    const POINT corner = CornerOf(from, owner, size);
    dialog.place = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
    return NewWindow(std::move(dialog));
}

// 0 if there is no such control: then there is no dialog.
static int AddControls(HWND dialog, const DialogTemplate& from) {
    for (const ControlTemplate& control : from.controls) {
        const SystemClass* kind = SystemClassNamed(control.className.c_str());
        if (!kind)
            return 0;
        AddControl(dialog, control, *kind);
    }
    return 1;
}

// TRUE from the procedure leaves the focus to the first control that Tab goes to.
static void Start(HWND dialog, LPARAM parameter) {
    const HWND first = NextTabStop(dialog, nullptr, 0);
    const INT_PTR bGiveFocus =
        RowOf(dialog).dialog(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), parameter);
    if (!bGiveFocus || !Living(dialog))
        return;
    const HWND now = NextTabStop(dialog, nullptr, 0);
    GoTo(now ? now : dialog);
}

HWND CreateDialogParamA(HINSTANCE instance, LPCSTR name, HWND parent, DLGPROC procedure, LPARAM parameter) {
    if (Fails("CreateDialogParamA"))
        return nullptr;
    const DialogTemplate* from = TemplateOf(static_cast<int>(reinterpret_cast<UINT_PTR>(name)));
    if (!from)
        return nullptr;
    const HWND dialog = NewDialog(*from, parent, instance);
    if (!AddControls(dialog, *from)) {
        KillWindow(dialog);
        return nullptr;
    }
    RowOf(dialog).dialog = procedure;
    Start(dialog, parameter);
    return Living(dialog) ? dialog : nullptr;
}

// Of these the result is what the dialog's procedure gives; of all others only whether it is done.
static int IsResult(UINT message) {
    return message == WM_INITDIALOG || message == WM_CTLCOLORSTATIC;
}

// Closing a dialog means what Escape means.
static LRESULT DefaultOfDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CLOSE)
        return DefaultAnswer(dialog, message, wParam, lParam);
    Desk.queue.push_back({dialog, WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(ControlOf(dialog, IDCANCEL)),
                          Desk.now, Desk.cursor});
    return 0;
}

LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const DLGPROC procedure = RowOf(dialog).dialog;
    const INT_PTR answer = procedure ? procedure(dialog, message, wParam, lParam) : 0;
    if (answer)
        return IsResult(message) ? answer : 0;
    return Living(dialog) ? DefaultOfDialog(dialog, message, wParam, lParam) : 0;
}

static int StandsIn(HWND control, HWND dialog) {
    const DeskWindow* row = Living(control);
    while (row && row->handle != dialog && (row->style & WS_CHILD))
        row = Living(row->owner);
    return row && row->handle == dialog;
}

// The window stays, hidden. The control with the focus loses it to the dialog first, and tells.
BOOL EndDialog(HWND dialog, INT_PTR) {
    DeskWindow* row = Fails("EndDialog") ? nullptr : Named(dialog);
    if (!row || !row->dialog)
        return FALSE;
    if (StandsIn(Desk.focus, dialog))
        MoveFocus(dialog);
    const int bActive = Desk.foreground == dialog;
    Hide(*row);
    const DeskWindow* owner = Living(row->owner);
    if (bActive && owner && (owner->style & WS_VISIBLE))
        Activate(owner->handle);
    return TRUE;
}

HWND ControlOf(HWND dialog, int id) {
    const DeskWindow* row = Living(dialog);
    for (const HWND child : row ? row->children : std::vector<HWND>{})
        if (RowOf(child).id == id)
            return child;
    return nullptr;
}

HWND GetDlgItem(HWND dialog, int id) {
    return Fails("GetDlgItem") || !Named(dialog) ? nullptr : ControlOf(dialog, id);
}

static LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallProcedure(ControlOf(dialog, id), message, wParam, lParam);
}

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return Fails("SendDlgItemMessageA") ? 0 : Ask(dialog, id, message, wParam, lParam);
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    return !Fails("SetDlgItemTextA") && Ask(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int limit) {
    if (limit > 0)
        *text = 0;
    if (Fails("GetDlgItemTextA"))
        return 0;
    return static_cast<UINT>(
        Ask(dialog, id, WM_GETTEXT, static_cast<WPARAM>(limit), reinterpret_cast<LPARAM>(text)));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL bSigned) {
    const std::string text = bSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    return !Fails("SetDlgItemInt") &&
           Ask(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) != 0;
}

// A number past its 32 bits, and what is no number, is 0.
static int ParseNumber(const char* text, BOOL bSigned, UINT* value) {
    char* end = nullptr;
    const long long number = std::strtoll(text, &end, 10);
    const long long least = bSigned ? INT32_MIN : 0;
    const long long most = bSigned ? INT32_MAX : UINT32_MAX;
    if (end == text || number < least || number > most)
        return 0;
    *value = static_cast<UINT>(number);
    return 1;
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* bRead, BOOL bSigned) {
    char text[30] = "";
    UINT value = 0;
    int bNumber = 0;
    if (!Fails("GetDlgItemInt") && Ask(dialog, id, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)))
        bNumber = ParseNumber(text, bSigned, &value);
    if (bRead)
        *bRead = bNumber;
    return value;
}

BOOL CheckDlgButton(HWND dialog, int id, UINT state) {
    if (Fails("CheckDlgButton") || !ControlOf(dialog, id))
        return FALSE;
    Ask(dialog, id, BM_SETCHECK, state, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    return Fails("IsDlgButtonChecked") ? 0 : static_cast<UINT>(Ask(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL ChooseColorA(CHOOSECOLORA* choice) {
    if (Fails("ChooseColorA") || choice->lStructSize != sizeof *choice)
        return FALSE;
    Desk.colorBoxes.push_back({
        choice->hwndOwner,
        choice->rgbResult,
        choice->Flags,
        {choice->lpCustColors, choice->lpCustColors + 16}
    });
    if (Desk.colorAnswers.empty()) {
        ++Desk.surprises;
        return FALSE;
    }
    const std::optional<COLORREF> answer = Desk.colorAnswers.front();
    Desk.colorAnswers.pop_front();
    choice->rgbResult = answer.value_or(choice->rgbResult);
    return answer.has_value();
}

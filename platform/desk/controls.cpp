// The plain controls: buttons, labels, edit boxes, list boxes, drop-down lists.
#include "controls.h"

#include <algorithm>

constexpr WORD EN_UPDATE = 0x0400;
constexpr WORD EN_CHANGE = 0x0300;
constexpr WORD EN_SETFOCUS = 0x0100;
constexpr WORD LBN_KILLFOCUS = 5;
constexpr WORD CBN_SELCHANGE = 1;
constexpr WORD CBN_SETFOCUS = 3;
constexpr WORD CBN_KILLFOCUS = 4;
constexpr LRESULT NO_ROOM = -2; // LB_ERRSPACE, CB_ERRSPACE

static const SystemClass SystemClasses[] = {
    {"#32770",            DialogProc  },
    {"Button",            ButtonProc  },
    {"ComboBox",          ComboBoxProc},
    {"Edit",              EditProc    },
    {"ListBox",           ListBoxProc },
    {"Static",            StaticProc  },
    {"SysListView32",     ListViewProc},
    {"SysTabControl32",   TabProc     },
    {"msctls_trackbar32", TrackbarProc},
};

const SystemClass* SystemClassNamed(const char* name) {
    for (const SystemClass& row : SystemClasses)
        if (LowerCase(row.name) == LowerCase(name))
            return &row;
    return nullptr;
}

LRESULT AnswerBy(std::span<const ControlMessage> table, HWND control, UINT message, WPARAM wParam,
                 LPARAM lParam) {
    for (const ControlMessage& row : table)
        if (row.message == message)
            return row.answer(RowOf(control), wParam, lParam);
    return DefaultAnswer(control, message, wParam, lParam);
}

void Tell(const DeskWindow& control, WORD code) {
    CallProcedure(control.owner, WM_COMMAND,
                  static_cast<WPARAM>(MAKELPARAM(static_cast<int>(control.id), code)),
                  reinterpret_cast<LPARAM>(control.handle));
}

template <WORD code>
static LRESULT TellCode(DeskWindow& control, WPARAM, LPARAM) {
    Tell(control, code);
    return 0;
}

int IsUsable(HWND control) {
    return IsInSight(control) && !(RowOf(control).style & WS_DISABLED);
}

int IsSeenThrough(const DeskWindow& control) {
    return control.procedure == StaticProc ||
           (control.procedure == ButtonProc && (control.style & BS_TYPEMASK) == BS_GROUPBOX);
}

// Buttons.

static LRESULT IsChecked(DeskWindow& button, WPARAM, LPARAM) {
    return button.control.bChecked;
}

// Tab goes to the checked one of a group of radio buttons.
static LRESULT SetCheck(DeskWindow& button, WPARAM state, LPARAM) {
    button.control.bChecked = state != 0;
    if ((button.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
        button.style = state ? button.style | WS_TABSTOP : button.style & ~WS_TABSTOP;
    return 0;
}

static LRESULT SetImage(DeskWindow& button, WPARAM, LPARAM image) {
    const HANDLE before = button.control.image;
    button.control.image = reinterpret_cast<HANDLE>(image);
    return reinterpret_cast<LRESULT>(before);
}

// A group goes from a control with WS_GROUP up to the next one.
static std::vector<HWND> GroupOf(const DeskWindow& button) {
    std::vector<HWND> group;
    for (const HWND sibling : RowOf(button.owner).children) {
        if (RowOf(sibling).style & WS_GROUP) {
            if (std::find(group.begin(), group.end(), button.handle) != group.end())
                break;
            group.clear();
        }
        group.push_back(sibling);
    }
    return group;
}

// The others of its group lose their marks, but for those that the user cannot reach.
static void CheckAlone(DeskWindow& button) {
    for (const HWND sibling : GroupOf(button)) {
        DeskWindow& other = RowOf(sibling);
        const int bReached = (other.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
        if (bReached && other.procedure == ButtonProc && (other.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
            SetCheck(other, sibling == button.handle, 0);
    }
}

void PressButton(DeskWindow& button) {
    const DWORD type = button.style & BS_TYPEMASK;
    if (type == BS_AUTOCHECKBOX)
        SetCheck(button, !button.control.bChecked, 0);
    if (type == BS_AUTORADIOBUTTON)
        CheckAlone(button);
    Tell(button, BN_CLICKED);
}

static LRESULT OnButtonKey(DeskWindow& button, WPARAM key, LPARAM) {
    if (key == VK_SPACE)
        PressButton(button);
    return 0;
}

static const ControlMessage ButtonMessages[] = {
    {BM_GETCHECK, IsChecked  },
    {BM_SETCHECK, SetCheck   },
    {BM_SETIMAGE, SetImage   },
    {WM_KEYUP,    OnButtonKey},
};

LRESULT CALLBACK ButtonProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(ButtonMessages, control, message, wParam, lParam);
}

// Labels.

// Its dialog is asked for the brush that fills it.
static LRESULT PaintStatic(DeskWindow& label, WPARAM, LPARAM) {
    label.bInvalid = label.bErase = 0;
    const HDC context = OpenContext(label);
    const LRESULT brush = CallProcedure(label.owner, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                                        reinterpret_cast<LPARAM>(label.handle));
    DeskContext& on = *ContextOf(context);
    if (brush)
        on.brush = reinterpret_cast<HGDIOBJ>(brush);
    Record(on, "FillRect", ClientArea(label));
    on.bLive = 0;
    return 0;
}

static LRESULT SetLabel(DeskWindow& label, WPARAM, LPARAM text) {
    label.title = reinterpret_cast<LPCSTR>(text);
    Invalidate(label, nullptr, 1);
    return TRUE;
}

static const ControlMessage StaticMessages[] = {
    {WM_PAINT,   PaintStatic},
    {WM_SETTEXT, SetLabel   },
};

LRESULT CALLBACK StaticProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(StaticMessages, control, message, wParam, lParam);
}

// Edit boxes.

// One of several lines does not tell when it is filled.
static LRESULT SetEditText(DeskWindow& edit, WPARAM, LPARAM text) {
    edit.title = reinterpret_cast<LPCSTR>(text);
    if (!(edit.style & ES_MULTILINE)) {
        Tell(edit, EN_UPDATE);
        Tell(edit, EN_CHANGE);
    }
    return TRUE;
}

static const ControlMessage EditMessages[] = {
    {WM_SETTEXT,   SetEditText           },
    {WM_SETFOCUS,  TellCode<EN_SETFOCUS> },
    {WM_KILLFOCUS, TellCode<EN_KILLFOCUS>},
};

LRESULT CALLBACK EditProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(EditMessages, control, message, wParam, lParam);
}

// List boxes and drop-down lists keep their rows alike.

static int HasRow(const DeskWindow& list, WPARAM row) {
    return row < list.control.rows.size();
}

static LRESULT CountRows(DeskWindow& list, WPARAM, LPARAM) {
    return static_cast<LRESULT>(list.control.rows.size());
}

static LRESULT EmptyRows(DeskWindow& list, WPARAM, LPARAM) {
    list.control.rows.clear();
    list.control.chosen = -1;
    return 0;
}

static LRESULT ChosenRow(DeskWindow& list, WPARAM, LPARAM) {
    return list.control.chosen;
}

// -1 clears the selection and is told like a mistake.
static LRESULT SetChosenRow(DeskWindow& list, WPARAM row, LPARAM) {
    if (static_cast<int>(row) != -1 && !HasRow(list, row))
        return LB_ERR;
    return list.control.chosen = static_cast<int>(row);
}

static LRESULT RowData(DeskWindow& list, WPARAM row, LPARAM) {
    return HasRow(list, row) ? list.control.rows[row].data : LB_ERR;
}

static LRESULT SetRowData(DeskWindow& list, WPARAM row, LPARAM data) {
    if (!HasRow(list, row))
        return LB_ERR;
    list.control.rows[row].data = data;
    return TRUE;
}

static LRESULT RowText(DeskWindow& list, WPARAM row, LPARAM text) {
    if (!HasRow(list, row))
        return LB_ERR;
    const std::string& from = list.control.rows[row].text;
    return CopyText(from, reinterpret_cast<LPSTR>(text), static_cast<int>(from.size()) + 1);
}

static LRESULT InsertAt(DeskControl& list, std::size_t place, LPARAM text) {
    if (list.rows.size() >= list.room)
        return NO_ROOM;
    list.rows.insert(list.rows.begin() + static_cast<std::ptrdiff_t>(place),
                     {reinterpret_cast<LPCSTR>(text), 0});
    if (list.chosen >= static_cast<int>(place))
        ++list.chosen;
    return static_cast<LRESULT>(place);
}

// A sorted one finds the place by itself, whatever the case of the letters.
static LRESULT AddRow(DeskWindow& list, WPARAM, LPARAM text) {
    const std::vector<DeskRow>& rows = list.control.rows;
    auto place = rows.end();
    if (list.style & LBS_SORT)
        place =
            std::upper_bound(rows.begin(), rows.end(), LowerCase(reinterpret_cast<LPCSTR>(text)),
                             [](const std::string& a, const DeskRow& b) { return a < LowerCase(b.text); });
    return InsertAt(list.control, static_cast<std::size_t>(place - rows.begin()), text);
}

static const ControlMessage ListBoxMessages[] = {
    {LB_ADDSTRING,    AddRow                 },
    {LB_RESETCONTENT, EmptyRows              },
    {LB_SETCURSEL,    SetChosenRow           },
    {LB_GETCURSEL,    ChosenRow              },
    {LB_GETTEXT,      RowText                },
    {LB_GETCOUNT,     CountRows              },
    {LB_GETITEMDATA,  RowData                },
    {LB_SETITEMDATA,  SetRowData             },
    {WM_SETFOCUS,     TellCode<LBN_SETFOCUS> },
    {WM_KILLFOCUS,    TellCode<LBN_KILLFOCUS>},
};

LRESULT CALLBACK ListBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(ListBoxMessages, control, message, wParam, lParam);
}

// Without LBS_NOTIFY only the focus is told of.
void ChooseInListBox(DeskWindow& control, int row) {
    if (!HasRow(control, static_cast<WPARAM>(row)))
        return;
    control.control.chosen = row;
    if (control.style & LBS_NOTIFY)
        Tell(control, LBN_SELCHANGE);
}

static LRESULT InsertRow(DeskWindow& list, WPARAM place, LPARAM text) {
    const std::size_t end = list.control.rows.size();
    if (static_cast<int>(place) != -1 && place > end)
        return CB_ERR;
    return InsertAt(list.control, static_cast<int>(place) == -1 ? end : place, text);
}

// From the row behind the one given, -1 for the first, round the end.
static LRESULT FindRow(DeskWindow& list, WPARAM after, LPARAM text) {
    const std::vector<DeskRow>& rows = list.control.rows;
    const std::string wanted = LowerCase(reinterpret_cast<LPCSTR>(text));
    for (std::size_t step = 0; step < rows.size(); ++step) {
        const std::size_t row = (static_cast<std::size_t>(static_cast<int>(after) + 1) + step) % rows.size();
        if (LowerCase(rows[row].text) == wanted)
            return static_cast<LRESULT>(row);
    }
    return CB_ERR;
}

// A drop-down list has no text of its own to change.
static LRESULT RefuseText(DeskWindow&, WPARAM, LPARAM) {
    return CB_ERR;
}

static const ControlMessage ComboBoxMessages[] = {
    {CB_GETCOUNT,        CountRows              },
    {CB_GETCURSEL,       ChosenRow              },
    {CB_INSERTSTRING,    InsertRow              },
    {CB_RESETCONTENT,    EmptyRows              },
    {CB_SETCURSEL,       SetChosenRow           },
    {CB_GETITEMDATA,     RowData                },
    {CB_SETITEMDATA,     SetRowData             },
    {CB_FINDSTRINGEXACT, FindRow                },
    {WM_SETTEXT,         RefuseText             },
    {WM_SETFOCUS,        TellCode<CBN_SETFOCUS> },
    {WM_KILLFOCUS,       TellCode<CBN_KILLFOCUS>},
};

LRESULT CALLBACK ComboBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(ComboBoxMessages, control, message, wParam, lParam);
}

void ChooseInComboBox(DeskWindow& control, int row) {
    if (!HasRow(control, static_cast<WPARAM>(row)))
        return;
    control.control.chosen = row;
    Tell(control, CBN_SELCHANGE);
}

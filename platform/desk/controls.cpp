// Standard controls: buttons, labels, edit boxes, list boxes, drop-down lists.
#include "controls.h"

#include <algorithm>

constexpr WORD EN_UPDATE = 0x0400;
constexpr WORD EN_CHANGE = 0x0300;
constexpr WORD EN_SETFOCUS = 0x0100;
constexpr WORD LBN_KILLFOCUS = 5;
constexpr WORD CBN_SELCHANGE = 1;
constexpr WORD CBN_SETFOCUS = 3;
constexpr WORD CBN_KILLFOCUS = 4;
constexpr LRESULT OUT_OF_SPACE = -2; // LB_ERRSPACE, CB_ERRSPACE

static const SystemClass SystemClasses[] = {
    {"#32770", DialogProc},
    {"Button", ButtonProc},
    {"ComboBox", ComboBoxProc},
    {"Edit", EditProc},
    {"ListBox", ListBoxProc},
    {"Static", StaticProc},
    {"SysListView32", ListViewProc},
    {"SysTabControl32", TabProc},
    {"msctls_trackbar32", TrackbarProc},
};

const SystemClass* FindSystemClass(const char* name) {
    for (const SystemClass& row : SystemClasses)
        if (LowerCase(row.name) == LowerCase(name))
            return &row;
    return nullptr;
}

LRESULT HandleByTable(std::span<const ControlMessage> table, HWND control, UINT message, WPARAM wParam,
                      LPARAM lParam) {
    for (const ControlMessage& row : table)
        if (row.message == message)
            return row.handler(WindowOf(control), wParam, lParam);
    return DefaultProc(control, message, wParam, lParam);
}

void NotifyCommand(const DeskWindow& control, WORD code) {
    CallWndProc(control.owner, WM_COMMAND,
                static_cast<WPARAM>(MAKELPARAM(static_cast<int>(control.id), code)),
                reinterpret_cast<LPARAM>(control.handle));
}

template <WORD code>
static LRESULT NotifyCode(DeskWindow& control, WPARAM, LPARAM) {
    NotifyCommand(control, code);
    return 0;
}

bool IsUsable(HWND control) {
    return IsShown(control) && !(WindowOf(control).style & WS_DISABLED);
}

bool IsTransparentToMouse(const DeskWindow& control) {
    return control.procedure == StaticProc ||
           (control.procedure == ButtonProc && (control.style & BS_TYPEMASK) == BS_GROUPBOX);
}

// Buttons.

static LRESULT IsChecked(DeskWindow& button, WPARAM, LPARAM) {
    return button.control.checked;
}

// Tab stops at the checked radio button of a group.
static LRESULT SetCheck(DeskWindow& button, WPARAM state, LPARAM) {
    button.control.checked = state != 0;
    if ((button.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
        button.style = state ? button.style | WS_TABSTOP : button.style & ~WS_TABSTOP;
    return 0;
}

static LRESULT SetImage(DeskWindow& button, WPARAM, LPARAM image) {
    const HANDLE before = button.control.image;
    button.control.image = reinterpret_cast<HANDLE>(image);
    return reinterpret_cast<LRESULT>(before);
}

// A group reaches from a control with WS_GROUP to the one before the next WS_GROUP.
static std::vector<HWND> GroupOf(const DeskWindow& button) {
    std::vector<HWND> group;
    for (const HWND sibling : WindowOf(button.owner).children) {
        if (WindowOf(sibling).style & WS_GROUP) {
            if (std::find(group.begin(), group.end(), button.handle) != group.end())
                break;
            group.clear();
        }
        group.push_back(sibling);
    }
    return group;
}

// Windows leaves hidden and disabled buttons of the group alone.
static void CheckAlone(DeskWindow& button) {
    for (const HWND sibling : GroupOf(button)) {
        DeskWindow& other = WindowOf(sibling);
        const bool reachable = (other.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
        if (reachable && other.procedure == ButtonProc && (other.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
            SetCheck(other, sibling == button.handle, 0);
    }
}

void PressButton(DeskWindow& button) {
    const DWORD type = button.style & BS_TYPEMASK;
    if (type == BS_AUTOCHECKBOX)
        SetCheck(button, !button.control.checked, 0);
    if (type == BS_AUTORADIOBUTTON)
        CheckAlone(button);
    NotifyCommand(button, BN_CLICKED);
}

static LRESULT OnButtonKey(DeskWindow& button, WPARAM key, LPARAM) {
    if (key == VK_SPACE)
        PressButton(button);
    return 0;
}

static const ControlMessage ButtonMessages[] = {
    {BM_GETCHECK, IsChecked},
    {BM_SETCHECK, SetCheck},
    {BM_SETIMAGE, SetImage},
    {WM_KEYUP, OnButtonKey},
};

LRESULT CALLBACK ButtonProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(ButtonMessages, control, message, wParam, lParam);
}

// Labels.

// The dialog supplies the background brush.
static LRESULT PaintStatic(DeskWindow& label, WPARAM, LPARAM) {
    label.needsPaint = label.needsErase = false;
    const HDC context = OpenContext(label);
    const LRESULT brush = CallWndProc(label.owner, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                                      reinterpret_cast<LPARAM>(label.handle));
    DeskContext& on = *LiveContext(context);
    if (brush)
        on.brush = reinterpret_cast<HGDIOBJ>(brush);
    RecordDraw(on, "FillRect", ClientRect(label));
    on.live = 0;
    return 0;
}

static LRESULT SetLabel(DeskWindow& label, WPARAM, LPARAM text) {
    label.title = TextFrom(text);
    Invalidate(label, nullptr, 1);
    return TRUE;
}

static const ControlMessage StaticMessages[] = {
    {WM_PAINT, PaintStatic},
    {WM_SETTEXT, SetLabel},
};

LRESULT CALLBACK StaticProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(StaticMessages, control, message, wParam, lParam);
}

// Edit boxes.

// A multi-line edit box sends no notification for WM_SETTEXT.
static LRESULT SetEditText(DeskWindow& edit, WPARAM, LPARAM text) {
    edit.title = TextFrom(text);
    if (!(edit.style & ES_MULTILINE)) {
        NotifyCommand(edit, EN_UPDATE);
        NotifyCommand(edit, EN_CHANGE);
    }
    return TRUE;
}

static const ControlMessage EditMessages[] = {
    {WM_SETTEXT, SetEditText},
    {WM_SETFOCUS, NotifyCode<EN_SETFOCUS>},
    {WM_KILLFOCUS, NotifyCode<EN_KILLFOCUS>},
};

LRESULT CALLBACK EditProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(EditMessages, control, message, wParam, lParam);
}

// Shared by list boxes and drop-down lists.

static bool HasItem(const DeskWindow& list, WPARAM index) {
    return index < list.control.items.size();
}

static LRESULT ItemCount(DeskWindow& list, WPARAM, LPARAM) {
    return static_cast<LRESULT>(list.control.items.size());
}

static LRESULT RemoveItems(DeskWindow& list, WPARAM, LPARAM) {
    list.control.items.clear();
    list.control.selected = -1;
    return 0;
}

static LRESULT SelectedItem(DeskWindow& list, WPARAM, LPARAM) {
    return list.control.selected;
}

// -1 clears the selection and returns the error value.
static LRESULT SetSelectedItem(DeskWindow& list, WPARAM index, LPARAM) {
    if (static_cast<int>(index) != -1 && !HasItem(list, index))
        return LB_ERR;
    return list.control.selected = static_cast<int>(index);
}

static LRESULT ItemData(DeskWindow& list, WPARAM index, LPARAM) {
    return HasItem(list, index) ? list.control.items[index].data : LB_ERR;
}

static LRESULT SetItemData(DeskWindow& list, WPARAM index, LPARAM data) {
    if (!HasItem(list, index))
        return LB_ERR;
    list.control.items[index].data = data;
    return TRUE;
}

static LRESULT ItemText(DeskWindow& list, WPARAM index, LPARAM text) {
    if (!HasItem(list, index))
        return LB_ERR;
    const std::string& from = list.control.items[index].text;
    return TextTo(from, text, from.size() + 1);
}

static LRESULT InsertAt(DeskControl& list, std::size_t position, LPARAM text) {
    if (list.items.size() >= list.capacity)
        return OUT_OF_SPACE;
    list.items.insert(list.items.begin() + static_cast<std::ptrdiff_t>(position), {TextFrom(text), 0});
    if (list.selected >= static_cast<int>(position))
        ++list.selected;
    return static_cast<LRESULT>(position);
}

// Sorting ignores case.
static LRESULT AddItem(DeskWindow& list, WPARAM, LPARAM text) {
    const std::vector<DeskItem>& items = list.control.items;
    auto position = items.end();
    if (list.style & LBS_SORT)
        position =
            std::upper_bound(items.begin(), items.end(), LowerCase(TextFrom(text)),
                             [](const std::string& a, const DeskItem& b) { return a < LowerCase(b.text); });
    return InsertAt(list.control, static_cast<std::size_t>(position - items.begin()), text);
}

static const ControlMessage ListBoxMessages[] = {
    {LB_ADDSTRING, AddItem},
    {LB_RESETCONTENT, RemoveItems},
    {LB_SETCURSEL, SetSelectedItem},
    {LB_GETCURSEL, SelectedItem},
    {LB_GETTEXT, ItemText},
    {LB_GETCOUNT, ItemCount},
    {LB_GETITEMDATA, ItemData},
    {LB_SETITEMDATA, SetItemData},
    {WM_SETFOCUS, NotifyCode<LBN_SETFOCUS>},
    {WM_KILLFOCUS, NotifyCode<LBN_KILLFOCUS>},
};

LRESULT CALLBACK ListBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(ListBoxMessages, control, message, wParam, lParam);
}

// Without LBS_NOTIFY the parent only hears about the focus.
void SelectInListBox(DeskWindow& control, int index) {
    if (!HasItem(control, static_cast<WPARAM>(index)))
        return;
    control.control.selected = index;
    if (control.style & LBS_NOTIFY)
        NotifyCommand(control, LBN_SELCHANGE);
}

static LRESULT InsertItem(DeskWindow& list, WPARAM position, LPARAM text) {
    const std::size_t end = list.control.items.size();
    if (static_cast<int>(position) != -1 && position > end)
        return CB_ERR;
    return InsertAt(list.control, static_cast<int>(position) == -1 ? end : position, text);
}

// Starts after the given item, -1 for the first, and wraps around.
static LRESULT FindItem(DeskWindow& list, WPARAM after, LPARAM text) {
    const std::vector<DeskItem>& items = list.control.items;
    const std::string wanted = LowerCase(TextFrom(text));
    for (std::size_t step = 0; step < items.size(); ++step) {
        const std::size_t index =
            (static_cast<std::size_t>(static_cast<int>(after) + 1) + step) % items.size();
        if (LowerCase(items[index].text) == wanted)
            return static_cast<LRESULT>(index);
    }
    return CB_ERR;
}

// A drop-down list has no text of its own.
static LRESULT RefuseText(DeskWindow&, WPARAM, LPARAM) {
    return CB_ERR;
}

static const ControlMessage ComboBoxMessages[] = {
    {CB_GETCOUNT, ItemCount},
    {CB_GETCURSEL, SelectedItem},
    {CB_INSERTSTRING, InsertItem},
    {CB_RESETCONTENT, RemoveItems},
    {CB_SETCURSEL, SetSelectedItem},
    {CB_GETITEMDATA, ItemData},
    {CB_SETITEMDATA, SetItemData},
    {CB_FINDSTRINGEXACT, FindItem},
    {WM_SETTEXT, RefuseText},
    {WM_SETFOCUS, NotifyCode<CBN_SETFOCUS>},
    {WM_KILLFOCUS, NotifyCode<CBN_KILLFOCUS>},
};

LRESULT CALLBACK ComboBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(ComboBoxMessages, control, message, wParam, lParam);
}

void SelectInComboBox(DeskWindow& control, int index) {
    if (!HasItem(control, static_cast<WPARAM>(index)))
        return;
    control.control.selected = index;
    NotifyCommand(control, CBN_SELCHANGE);
}

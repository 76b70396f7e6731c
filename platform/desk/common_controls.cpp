// Common controls: tab control, owner-data list view, trackbar.
#include "controls.h"

#include <algorithm>
#include <utility>

constexpr UINT TCN_SELCHANGE = static_cast<UINT>(-551);
constexpr UINT LVIF_STATE = 8;
constexpr UINT LVIS_FOCUSED = 1;
constexpr int TB_THUMBTRACK = 5;
constexpr int TB_ENDTRACK = 8;

LRESULT SendNotify(const DeskWindow& control, NMHDR& header, UINT code) {
    header = {control.handle, static_cast<UINT_PTR>(control.id), code};
    return CallWndProc(control.owner, WM_NOTIFY, static_cast<WPARAM>(control.id),
                       reinterpret_cast<LPARAM>(&header));
}

// Tab control.

// The first tab is selected as soon as it is inserted.
static LRESULT InsertTab(DeskWindow& tabs, WPARAM index, LPARAM item) {
    const auto& from = *reinterpret_cast<const TCITEMA*>(item);
    DeskControl& to = tabs.control;
    const std::size_t at = std::min<std::size_t>(index, to.items.size());
    to.items.insert(to.items.begin() + static_cast<std::ptrdiff_t>(at),
                    {from.mask & TCIF_TEXT ? from.pszText : "", 0});
    if (to.items.size() == 1 || static_cast<int>(at) <= to.selected)
        ++to.selected;
    return static_cast<LRESULT>(at);
}

static LRESULT RemoveTabs(DeskWindow& tabs, WPARAM, LPARAM) {
    tabs.control.items.clear();
    tabs.control.selected = -1;
    return TRUE;
}

static LRESULT SelectedTab(DeskWindow& tabs, WPARAM, LPARAM) {
    return tabs.control.selected;
}

// Sends no notification. Returns the tab that was selected before.
static LRESULT SelectTabItem(DeskWindow& tabs, WPARAM tab, LPARAM) {
    if (tab >= tabs.control.items.size())
        return -1;
    return std::exchange(tabs.control.selected, static_cast<int>(tab));
}

static const ControlMessage TabMessages[] = {
    {TCM_INSERTITEMA, InsertTab},
    {TCM_DELETEALLITEMS, RemoveTabs},
    {TCM_GETCURSEL, SelectedTab},
    {TCM_SETCURSEL, SelectTabItem},
};

LRESULT CALLBACK TabProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(TabMessages, control, message, wParam, lParam);
}

// The parent can refuse in TCN_SELCHANGING.
void SelectTab(DeskWindow& control, int index) {
    NMHDR header{};
    if (index < 0 || index >= static_cast<int>(control.control.items.size()) ||
        index == control.control.selected || SendNotify(control, header, TCN_SELCHANGING))
        return;
    control.control.selected = index;
    SendNotify(control, header, TCN_SELCHANGE);
}

// List view.

static LRESULT InsertColumn(DeskWindow& list, WPARAM index, LPARAM column) {
    const auto& from = *reinterpret_cast<const LVCOLUMNA*>(column);
    std::vector<DeskItem>& columns = list.control.columns;
    const std::size_t at = std::min<std::size_t>(index, columns.size());
    columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(at),
                   {from.mask & LVCF_TEXT ? from.pszText : "", from.mask & LVCF_WIDTH ? from.cx : 10});
    return static_cast<LRESULT>(at);
}

// An owner-data list view only increases its count; the returned index is the last one.
static LRESULT InsertRow(DeskWindow& list, WPARAM, LPARAM) {
    Invalidate(list, nullptr, 1);
    return list.control.itemCount++;
}

static void SendStateChange(const DeskWindow& list, int item, UINT before, UINT now) {
    NMLISTVIEW change{};
    change.iItem = item;
    change.uOldState = before;
    change.uNewState = now;
    change.uChanged = LVIF_STATE;
    SendNotify(list, change.hdr, LVN_ITEMCHANGED);
}

static void Unselect(DeskWindow& list) {
    const int item = std::exchange(list.control.selected, -1);
    if (item >= 0)
        SendStateChange(list, item, LVIS_SELECTED | LVIS_FOCUSED, 0);
}

static LRESULT RemoveRows(DeskWindow& list, WPARAM, LPARAM) {
    Unselect(list);
    list.control.itemCount = 0;
    return TRUE;
}

static LRESULT SetRowCount(DeskWindow& list, WPARAM count, LPARAM) {
    list.control.itemCount = static_cast<int>(count);
    return TRUE;
}

static LRESULT RowCount(DeskWindow& list, WPARAM, LPARAM) {
    return list.control.itemCount;
}

// The only search in use: the selected item after `start`.
static LRESULT NextItem(DeskWindow& list, WPARAM start, LPARAM) {
    return list.control.selected > static_cast<int>(start) ? list.control.selected : -1;
}

static LRESULT RedrawItems(DeskWindow& list, WPARAM first, LPARAM last) {
    for (int item = static_cast<int>(first); item <= static_cast<int>(last); ++item)
        list.control.redrawn.push_back(item);
    Invalidate(list, nullptr, 1);
    return TRUE;
}

// Asks the parent for the text of each visible item.
static LRESULT PaintList(DeskWindow& list, WPARAM, LPARAM) {
    constexpr int rowHeight = 17; // pixels
    list.needsPaint = list.needsErase = false;
    const int items = std::min(list.control.itemCount, static_cast<int>(ClientRect(list).bottom) / rowHeight);
    for (int item = 0; item < items; ++item)
        for (int column = 0; column < static_cast<int>(list.control.columns.size()); ++column)
            ListViewText(list.handle, item, column);
    return 0;
}

// A mask of 0 replaces the whole style.
static LRESULT SetExtendedStyle(DeskWindow& list, WPARAM mask, LPARAM style) {
    const DWORD which = mask ? static_cast<DWORD>(mask) : ~DWORD{0};
    const DWORD before = list.control.extendedStyle;
    list.control.extendedStyle = (before & ~which) | (static_cast<DWORD>(style) & which);
    return static_cast<LRESULT>(before);
}

static const ControlMessage ListViewMessages[] = {
    {LVM_GETITEMCOUNT, RowCount},
    {LVM_INSERTITEMA, InsertRow},
    {LVM_SETITEMCOUNT, SetRowCount},
    {LVM_DELETEALLITEMS, RemoveRows},
    {LVM_REDRAWITEMS, RedrawItems},
    {LVM_INSERTCOLUMNA, InsertColumn},
    {LVM_SETEXTENDEDLISTVIEWSTYLE, SetExtendedStyle},
    {LVM_GETNEXTITEM, NextItem},
    {WM_PAINT, PaintList},
};

LRESULT CALLBACK ListViewProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(ListViewMessages, control, message, wParam, lParam);
}

// The item that loses the selection is reported first. A click beside the items only takes the selection
// away.
void SelectInListView(DeskWindow& control, int item) {
    if (item >= control.control.itemCount || item == control.control.selected)
        return;
    Unselect(control);
    if (item < 0)
        return;
    control.control.selected = item;
    SendStateChange(control, item, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

std::string ListViewText(HWND listView, int item, int column) {
    NMLVDISPINFOA request{};
    char own[260] = "";
    request.item.mask = LVIF_TEXT;
    request.item.iItem = item;
    request.item.iSubItem = column;
    request.item.pszText = own;
    request.item.cchTextMax = sizeof own;
    SendNotify(WindowOf(listView), request.hdr, LVN_GETDISPINFOA);
    return request.item.pszText ? request.item.pszText : "";
}

// Trackbar.

static void MoveSlider(DeskControl& bar, int position) {
    bar.position = std::max(bar.min, std::min(position, bar.max));
}

static LRESULT SliderPosition(DeskWindow& bar, WPARAM, LPARAM) {
    return bar.control.position;
}

static LRESULT SetSlider(DeskWindow& bar, WPARAM, LPARAM position) {
    MoveSlider(bar.control, static_cast<int>(position));
    return 0;
}

static LRESULT SetRange(DeskWindow& bar, WPARAM, LPARAM range) {
    bar.control.min = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(range)));
    bar.control.max = static_cast<SHORT>(HIWORD(static_cast<DWORD_PTR>(range)));
    MoveSlider(bar.control, bar.control.position);
    return 0;
}

static const ControlMessage TrackbarMessages[] = {
    {TBM_GETPOS, SliderPosition},
    {TBM_SETPOS, SetSlider},
    {TBM_SETRANGE, SetRange},
};

LRESULT CALLBACK TrackbarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return HandleByTable(TrackbarMessages, control, message, wParam, lParam);
}

static void SendScroll(const DeskWindow& bar, int code, int position) {
    CallWndProc(bar.owner, WM_HSCROLL, static_cast<WPARAM>(MAKELPARAM(code, position)),
                reinterpret_cast<LPARAM>(bar.handle));
}

void DragSlider(HWND trackbar, int position) {
    if (!IsUsable(trackbar))
        return;
    FocusWindow(trackbar);
    DeskWindow& bar = WindowOf(trackbar);
    MoveSlider(bar.control, position);
    SendScroll(bar, TB_THUMBTRACK, bar.control.position);
    SendScroll(bar, TB_ENDTRACK, 0);
}

// The common controls: tab control, list view that keeps no data, trackbar.
#include "controls.h"

#include <algorithm>
#include <utility>

constexpr UINT TCN_SELCHANGE = static_cast<UINT>(-551);
constexpr UINT LVIF_STATE = 8;
constexpr UINT LVIS_FOCUSED = 1;
constexpr int TB_THUMBTRACK = 5;
constexpr int TB_ENDTRACK = 8;

LRESULT Notify(const DeskWindow& control, NMHDR& header, UINT code) {
    header = {control.handle, static_cast<UINT_PTR>(control.id), code};
    return CallProcedure(control.owner, WM_NOTIFY, static_cast<WPARAM>(control.id),
                         reinterpret_cast<LPARAM>(&header));
}

// Tabs.

// The first one is on top as soon as it is there.
static LRESULT InsertTab(DeskWindow& tabs, WPARAM place, LPARAM item) {
    const auto& from = *reinterpret_cast<const TCITEMA*>(item);
    DeskControl& to = tabs.control;
    const std::size_t at = std::min<std::size_t>(place, to.rows.size());
    to.rows.insert(to.rows.begin() + static_cast<std::ptrdiff_t>(at),
                   {from.mask & TCIF_TEXT ? from.pszText : "", 0});
    if (to.rows.size() == 1 || static_cast<int>(at) <= to.chosen)
        ++to.chosen;
    return static_cast<LRESULT>(at);
}

static LRESULT RemoveTabs(DeskWindow& tabs, WPARAM, LPARAM) {
    tabs.control.rows.clear();
    tabs.control.chosen = -1;
    return TRUE;
}

static LRESULT TabOnTop(DeskWindow& tabs, WPARAM, LPARAM) {
    return tabs.control.chosen;
}

// The program's own change is not told to it. Gives the tab that was on top.
static LRESULT PutOnTop(DeskWindow& tabs, WPARAM tab, LPARAM) {
    if (tab >= tabs.control.rows.size())
        return -1;
    return std::exchange(tabs.control.chosen, static_cast<int>(tab));
}

static const ControlMessage TabMessages[] = {
    {TCM_INSERTITEMA,    InsertTab },
    {TCM_DELETEALLITEMS, RemoveTabs},
    {TCM_GETCURSEL,      TabOnTop  },
    {TCM_SETCURSEL,      PutOnTop  },
};

LRESULT CALLBACK TabProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(TabMessages, control, message, wParam, lParam);
}

// The program is asked before the tab changes and may refuse.
void ChooseTab(DeskWindow& control, int row) {
    NMHDR header{};
    if (row < 0 || row >= static_cast<int>(control.control.rows.size()) || row == control.control.chosen ||
        Notify(control, header, TCN_SELCHANGING))
        return;
    control.control.chosen = row;
    Notify(control, header, TCN_SELCHANGE);
}

// List view.

static LRESULT InsertColumn(DeskWindow& list, WPARAM place, LPARAM column) {
    const auto& from = *reinterpret_cast<const LVCOLUMNA*>(column);
    std::vector<DeskRow>& columns = list.control.columns;
    const std::size_t at = std::min<std::size_t>(place, columns.size());
    columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(at),
                   {from.mask & LVCF_TEXT ? from.pszText : "", from.mask & LVCF_WIDTH ? from.cx : 10});
    return static_cast<LRESULT>(at);
}

// It counts, whatever the item says; the new one is told to be the last.
static LRESULT InsertItem(DeskWindow& list, WPARAM, LPARAM) {
    Invalidate(list, nullptr, 1);
    return list.control.count++;
}

static void TellState(const DeskWindow& list, int row, UINT before, UINT now) {
    NMLISTVIEW news{};
    news.iItem = row;
    news.uOldState = before;
    news.uNewState = now;
    news.uChanged = LVIF_STATE;
    Notify(list, news.hdr, LVN_ITEMCHANGED);
}

static void Unselect(DeskWindow& list) {
    const int row = std::exchange(list.control.chosen, -1);
    if (row >= 0)
        TellState(list, row, LVIS_SELECTED | LVIS_FOCUSED, 0);
}

static LRESULT RemoveItems(DeskWindow& list, WPARAM, LPARAM) {
    Unselect(list);
    list.control.count = 0;
    list.control.mark = -1;
    return TRUE;
}

static LRESULT SetItemCount(DeskWindow& list, WPARAM count, LPARAM) {
    list.control.count = static_cast<int>(count);
    return TRUE;
}

static LRESULT CountItems(DeskWindow& list, WPARAM, LPARAM) {
    return list.control.count;
}

static LRESULT SelectionMark(DeskWindow& list, WPARAM, LPARAM) {
    return list.control.mark;
}

static LRESULT RedrawItems(DeskWindow& list, WPARAM first, LPARAM last) {
    for (int row = static_cast<int>(first); row <= static_cast<int>(last); ++row)
        list.control.redrawn.push_back(row);
    Invalidate(list, nullptr, 1);
    return TRUE;
}

// As many rows as its inside has room for; the program is asked for the text of each.
static LRESULT PaintList(DeskWindow& list, WPARAM, LPARAM) {
    constexpr int rowHeight = 17; // pixels
    list.bInvalid = list.bErase = 0;
    const int rows = std::min(list.control.count, static_cast<int>(ClientArea(list).bottom) / rowHeight);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < static_cast<int>(list.control.columns.size()); ++column)
            TextInList(list.handle, row, column);
    return 0;
}

// Only what the mask names changes; no mask means all of it.
static LRESULT SetExtendedStyle(DeskWindow& list, WPARAM mask, LPARAM style) {
    const DWORD which = mask ? static_cast<DWORD>(mask) : ~DWORD{0};
    const DWORD before = list.control.extendedStyle;
    list.control.extendedStyle = (before & ~which) | (static_cast<DWORD>(style) & which);
    return static_cast<LRESULT>(before);
}

static const ControlMessage ListViewMessages[] = {
    {LVM_GETITEMCOUNT,             CountItems      },
    {LVM_INSERTITEMA,              InsertItem      },
    {LVM_SETITEMCOUNT,             SetItemCount    },
    {LVM_DELETEALLITEMS,           RemoveItems     },
    {LVM_REDRAWITEMS,              RedrawItems     },
    {LVM_INSERTCOLUMNA,            InsertColumn    },
    {LVM_SETEXTENDEDLISTVIEWSTYLE, SetExtendedStyle},
    {LVM_GETSELECTIONMARK,         SelectionMark   },
    {WM_PAINT,                     PaintList       },
};

LRESULT CALLBACK ListViewProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(ListViewMessages, control, message, wParam, lParam);
}

// The row that loses the selection is told first.
void ChooseInListView(DeskWindow& control, int row) {
    if (row < 0 || row >= control.control.count || row == control.control.chosen)
        return;
    Unselect(control);
    control.control.chosen = control.control.mark = row;
    TellState(control, row, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

std::string TextInList(HWND listView, int row, int column) {
    NMLVDISPINFOA request{};
    char own[260] = "";
    request.item.mask = LVIF_TEXT;
    request.item.iItem = row;
    request.item.iSubItem = column;
    request.item.pszText = own;
    request.item.cchTextMax = sizeof own;
    Notify(RowOf(listView), request.hdr, LVN_GETDISPINFOA);
    return request.item.pszText ? request.item.pszText : "";
}

// Trackbar.

static void PutSlider(DeskControl& bar, int position) {
    bar.position = std::max(bar.least, std::min(position, bar.most));
}

static LRESULT SliderPosition(DeskWindow& bar, WPARAM, LPARAM) {
    return bar.control.position;
}

static LRESULT SetSlider(DeskWindow& bar, WPARAM, LPARAM position) {
    PutSlider(bar.control, static_cast<int>(position));
    return 0;
}

static LRESULT SetRange(DeskWindow& bar, WPARAM, LPARAM range) {
    bar.control.least = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(range)));
    bar.control.most = static_cast<SHORT>(HIWORD(static_cast<DWORD_PTR>(range)));
    PutSlider(bar.control, bar.control.position);
    return 0;
}

static const ControlMessage TrackbarMessages[] = {
    {TBM_GETPOS,   SliderPosition},
    {TBM_SETPOS,   SetSlider     },
    {TBM_SETRANGE, SetRange      },
};

LRESULT CALLBACK TrackbarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerBy(TrackbarMessages, control, message, wParam, lParam);
}

static void TellScroll(const DeskWindow& bar, int code, int position) {
    CallProcedure(bar.owner, WM_HSCROLL, static_cast<WPARAM>(MAKELPARAM(code, position)),
                  reinterpret_cast<LPARAM>(bar.handle));
}

void DragSlider(HWND trackbar, int position) {
    if (!IsUsable(trackbar))
        return;
    GoTo(trackbar);
    DeskWindow& bar = RowOf(trackbar);
    PutSlider(bar.control, position);
    TellScroll(bar, TB_THUMBTRACK, bar.control.position);
    TellScroll(bar, TB_ENDTRACK, 0);
}

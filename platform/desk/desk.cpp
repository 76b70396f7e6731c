// The record itself: faults, look-up of handles, and what tests do to it.
#include "ground.h"

#include <algorithm>
#include <cstring>
#include <utility>

DeskState Desk;

int Fails(const char* call) {
    ++Desk.calls;
    if (Desk.bTrace)
        Desk.trace.push_back(call);
    DeskFault& fault = Desk.fault;
    if (fault.callsLeft == 0 || (!fault.call.empty() && fault.call != call))
        return 0;
    if (fault.callsLeft > 1) {
        --fault.callsLeft;
        return 0;
    }
    fault.callsLeft = fault.bForGood ? 1 : 0;
    ++fault.hits;
    Desk.lastError = fault.error;
    return 1;
}

int CallsOf(const char* call) {
    return static_cast<int>(std::count_if(Desk.trace.begin(), Desk.trace.end(),
                                          [call](const char* made) { return !std::strcmp(made, call); }));
}

// Handles start high and are spaced, so that a small number is never taken for one.
static HWND HandleAt(std::size_t place) {
    return reinterpret_cast<HWND>((place + 0x4000) * 4);
}

static std::size_t PlaceOf(HWND window) {
    return reinterpret_cast<std::size_t>(window) / 4 - 0x4000;
}

DeskWindow& RowOf(HWND window) {
    return Desk.windows.at(PlaceOf(window));
}

DeskWindow* Living(HWND window) {
    const std::size_t place = PlaceOf(window);
    if (place >= Desk.windows.size() || !Desk.windows[place].handle)
        return nullptr;
    return &Desk.windows[place];
}

DeskWindow* Named(HWND window) {
    DeskWindow* row = Living(window);
    if (row && row->diesAtCall && --row->diesAtCall == 0) {
        KillWindow(window);
        row = nullptr;
    }
    if (!row)
        Desk.lastError = ERROR_INVALID_WINDOW_HANDLE;
    return row;
}

// What a topmost window owns is topmost with it.
HWND NewWindow(DeskWindow row) {
    const HWND handle = HandleAt(Desk.windows.size());
    row.handle = handle;
    const int bChild = (row.style & WS_CHILD) != 0;
    const DeskWindow* owner = bChild ? nullptr : Living(row.owner);
    row.exStyle |= owner ? owner->exStyle & WS_EX_TOPMOST : 0;
    std::vector<HWND>& others = bChild ? RowOf(row.owner).children : Desk.order;
    Desk.windows.push_back(std::move(row));
    others.push_back(handle);
    if (!bChild)
        Raise(handle);
    return handle;
}

HWND OpenWindow(const char* title, const RECT& place, const char* className) {
    DeskWindow window;
    window.className = className;
    window.title = title;
    window.place = place;
    window.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    return NewWindow(std::move(window));
}

static void TakeFromOthers(HWND window) {
    std::erase(Desk.order, window);
    if (DeskWindow* parent = Living(RowOf(window).owner))
        std::erase(parent->children, window);
}

void KillWindow(HWND window) {
    const std::vector<HWND> children = RowOf(window).children;
    for (const HWND child : children)
        KillWindow(child);
    TakeFromOthers(window);
    RowOf(window).handle = nullptr;
    for (HWND* held : {&Desk.foreground, &Desk.focus, &Desk.capture})
        if (*held == window)
            *held = nullptr;
    DropTimersOf(window);
    DropHotkeysOf(window);
}

int CopyText(const std::string& from, char* to, int limit) {
    if (limit <= 0)
        return 0;
    const std::size_t length = std::min(from.size(), static_cast<std::size_t>(limit - 1));
    std::memcpy(to, from.data(), length);
    to[length] = 0;
    return static_cast<int>(length);
}

std::string LowerCase(const std::string& text) {
    std::string lower = text;
    for (char& letter : lower)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return lower;
}

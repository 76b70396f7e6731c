// The record itself: fault injection, window handles, opening and killing windows.
#include "internal.h"

#include <algorithm>
#include <cstring>
#include <utility>

DeskState Desk;

bool CallFails(const char* call) {
    ++Desk.calls;
    if (Desk.recording)
        Desk.trace.push_back(call);
    DeskFault& fault = Desk.fault;
    if (fault.callsLeft == 0 || (!fault.call.empty() && fault.call != call))
        return false;
    if (fault.callsLeft > 1) {
        --fault.callsLeft;
        return false;
    }
    fault.callsLeft = fault.permanent || fault.repeats-- > 0 ? 1 : 0;
    ++fault.hits;
    Desk.lastError = fault.error;
    return true;
}

int CountCalls(const char* call) {
    return static_cast<int>(std::count_if(Desk.trace.begin(), Desk.trace.end(),
                                          [call](const char* made) { return !std::strcmp(made, call); }));
}

// Handles start high, so a small number is never a valid one.
static HWND WindowHandleAt(std::size_t index) {
    return reinterpret_cast<HWND>((index + 0x4000) * 4);
}

static std::size_t IndexOf(HWND window) {
    return reinterpret_cast<std::size_t>(window) / 4 - 0x4000;
}

DeskWindow& WindowOf(HWND window) {
    return *Desk.windows.at(IndexOf(window));
}

DeskWindow* LiveWindow(HWND window) {
    const std::size_t index = IndexOf(window);
    DeskWindow* const row = index < Desk.windows.size() ? Desk.windows[index].get() : nullptr;
    return row && row->handle ? row : nullptr;
}

DeskWindow* ResolveHandle(HWND window) {
    DeskWindow* row = LiveWindow(window);
    if (row && row->diesAtCall && --row->diesAtCall == 0) {
        KillWindow(window);
        row = nullptr;
    }
    if (!row)
        Desk.lastError = ERROR_INVALID_WINDOW_HANDLE;
    return row;
}

DeskWindow* ResolveForChange(HWND window) {
    DeskWindow* record = ResolveHandle(window);
    if (record && record->elevated) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return nullptr;
    }
    if (record && record->response == DeskResponse::Hung)
        ++Desk.blockedCalls;
    return record;
}

// Windows owned by a topmost window are topmost too.
HWND AddWindow(DeskWindow window) {
    const HWND handle = WindowHandleAt(Desk.windows.size());
    window.handle = handle;
    window.dpi = DisplayFor(window.rect).dpi;
    const bool isChild = (window.style & WS_CHILD) != 0;
    const DeskWindow* owner = isChild ? nullptr : LiveWindow(window.owner);
    window.exStyle |= owner ? owner->exStyle & WS_EX_TOPMOST : 0;
    std::vector<HWND>& others = isChild ? WindowOf(window.owner).children : Desk.zOrder;
    Desk.windows.push_back(std::make_unique<DeskWindow>(std::move(window)));
    others.push_back(handle);
    if (!isChild)
        Raise(handle);
    return handle;
}

HWND OpenWindow(const char* title, const RECT& rect, const char* className) {
    DeskWindow window;
    window.className = className;
    window.title = title;
    window.rect = rect;
    window.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    return AddWindow(std::move(window));
}

static void Unlink(HWND window) {
    std::erase(Desk.zOrder, window);
    if (DeskWindow* parent = LiveWindow(WindowOf(window).owner))
        std::erase(parent->children, window);
}

void KillWindow(HWND window) {
    const std::vector<HWND> children = WindowOf(window).children;
    for (const HWND child : children)
        KillWindow(child);
    Unlink(window);
    WindowOf(window).handle = nullptr;
    for (HWND* held : {&Desk.foreground, &Desk.focus, &Desk.capture})
        if (*held == window)
            *held = nullptr;
    RemoveTimers(window);
    RemoveHotkeys(window);
}

int CopyText(const std::string& from, char* to, int limit) {
    if (limit <= 0)
        return 0;
    const std::size_t length = std::min(from.size(), static_cast<std::size_t>(limit - 1));
    std::memcpy(to, from.data(), length);
    to[length] = 0;
    return static_cast<int>(length);
}

std::string LowerCase(std::string text) {
    for (char& letter : text)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return text;
}

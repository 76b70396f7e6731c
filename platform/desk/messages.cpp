// Sending and posting, the message queue with its priorities, timers on a virtual clock.
#include "internal.h"

#include <algorithm>

// Delivers a message to another program's window.
static void Deliver(DeskWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskMessage arrived{message, wParam, lParam, {}};
    if (message == WM_MOVING) {
        RECT& record = *reinterpret_cast<RECT*>(lParam);
        arrived.record = record;
        if (window.overridesMove)
            record = window.moveOverride;
    }
    if (Desk.recording)
        window.received.push_back(arrived);
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskWindow* record = CallFails("SendMessageA") ? nullptr : ResolveHandle(window);
    if (!record)
        return 0;
    if (record->procedure)
        return CallWndProc(window, message, wParam, lParam);
    if (record->response != DeskResponse::Responds)
        ++Desk.unexpected;
    Deliver(*record, message, wParam, lParam);
    return 0;
}

// True if another program's window does not respond in time.
static bool FailsToRespond(const DeskWindow& window, UINT milliseconds) {
    if (window.elevated) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return true;
    }
    if (window.response == DeskResponse::Responds)
        return false;
    Desk.lastError = window.error;
    if (window.response == DeskResponse::TimesOut)
        Desk.now += milliseconds;
    if (window.response == DeskResponse::Exits) {
        Desk.lastError = ERROR_INVALID_WINDOW_HANDLE;
        KillWindow(window.handle);
    }
    return true;
}

LRESULT SendMessageTimeoutA(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT, UINT milliseconds,
                            DWORD_PTR* result) {
    if (CallFails("SendMessageTimeoutA"))
        return 0;
    *result = 0;
    if (window == HWND_BROADCAST) {
        Desk.broadcasts.push_back({message, wParam, lParam, {}});
        return 1;
    }
    DeskWindow* record = ResolveHandle(window);
    if (!record || FailsToRespond(*record, milliseconds))
        return 0;
    if (record->procedure)
        *result = static_cast<DWORD_PTR>(CallWndProc(window, message, wParam, lParam));
    else
        Deliver(*record, message, wParam, lParam);
    if (record->duringMessage)
        std::function<void()>(record->duringMessage)();
    return 1;
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (CallFails("PostMessageA"))
        return FALSE;
    const DeskWindow* record = window ? ResolveHandle(window) : nullptr;
    if (window && !record)
        return FALSE;
    if (record && record->elevated) {
        Desk.lastError = ERROR_ACCESS_DENIED;
        return FALSE;
    }
    Desk.queue.push_back({window, message, wParam, lParam, Desk.now, Desk.cursor});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    if (CallFails("PostQuitMessage"))
        return;
    Desk.quitPosted = true;
    Desk.exitCode = exitCode;
}

namespace {

// What GetMessageA or PeekMessageA asks for.
struct Filter {
    HWND window; // null: any
    UINT first, last;
};

} // namespace

static bool Matches(const Filter& filter, HWND window, UINT message) {
    const bool any = !filter.first && !filter.last;
    return (!filter.window || filter.window == window) &&
           (any || (message >= filter.first && message <= filter.last));
}

static auto NextPosted(const Filter& filter) {
    return std::find_if(Desk.queue.begin(), Desk.queue.end(), [&filter](const MSG& posted) {
        return Matches(filter, posted.hwnd, posted.message);
    });
}

// WM_QUIT comes after all posted messages, whatever the filter says.
static bool FindPostedOrQuit(MSG* message, const Filter& filter) {
    const auto posted = NextPosted(filter);
    if (posted != Desk.queue.end())
        *message = *posted;
    else if (Desk.quitPosted)
        *message = {nullptr, WM_QUIT, static_cast<WPARAM>(Desk.exitCode), 0, Desk.now, Desk.cursor};
    else
        return false;
    return true;
}

static bool TakePostedOrQuit(MSG* message, const Filter& filter) {
    const auto posted = NextPosted(filter);
    if (!FindPostedOrQuit(message, filter))
        return false;
    if (posted != Desk.queue.end())
        Desk.queue.erase(posted);
    else
        Desk.quitPosted = false;
    return true;
}

static bool TakePaint(MSG* message, const Filter& filter) {
    for (const auto& window : Desk.windows)
        if (window->needsPaint && window->procedure && IsShown(window->handle) &&
            Matches(filter, window->handle, WM_PAINT)) {
            *message = {window->handle, WM_PAINT, 0, 0, Desk.now, Desk.cursor};
            return true;
        }
    return false;
}

static DeskTimer* NextTimer() {
    const auto next = std::min_element(Desk.timers.begin(), Desk.timers.end(),
                                       [](const DeskTimer& a, const DeskTimer& b) { return a.due < b.due; });
    return next == Desk.timers.end() ? nullptr : &*next;
}

// A handler that takes longer than its timer's period would keep a test waiting for ever: `runUntil` ends
// that.
static bool TakeTimer(MSG* message, const Filter& filter) {
    DeskTimer* timer = NextTimer();
    const DWORD last = Desk.runUntil ? std::min(Desk.now, Desk.runUntil) : Desk.now;
    if (!timer || timer->due > last || !Matches(filter, timer->window, WM_TIMER))
        return false;
    timer->due = Desk.now + timer->period;
    *message = {timer->window, WM_TIMER,   timer->id, reinterpret_cast<LPARAM>(timer->callback),
                Desk.now,      Desk.cursor};
    return true;
}

// Mouse input is not filtered by window: no caller needs it.
static bool TakeNext(MSG* message, const Filter& filter) {
    const bool takesInput = Matches(filter, filter.window, WM_MOUSEMOVE);
    if (!TakePostedOrQuit(message, filter) && !(takesInput && TakeInput(message)) &&
        !TakePaint(message, filter) && !TakeTimer(message, filter))
        return false;
    Desk.messageTime = message->time;
    return true;
}

// With nothing left to do, runs the next script entry or moves the clock. False: `runUntil` is reached.
static bool Advance() {
    if (!Desk.script.empty()) {
        const auto act = Desk.script.front();
        Desk.script.pop_front();
        act();
        return true;
    }
    const DeskTimer* timer = NextTimer();
    if (timer && timer->due <= Desk.runUntil) {
        Desk.now = std::max(Desk.now, timer->due);
        return true;
    }
    Desk.now = std::max(Desk.now, Desk.runUntil);
    Desk.timeIsUp = true;
    return false;
}

BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last) {
    if (CallFails("GetMessageA"))
        return -1;
    *message = {};
    do {
        if (TakeNext(message, {window, first, last}))
            return message->message != WM_QUIT;
    } while (Advance());
    return FALSE;
}

// With PM_NOREMOVE it finds posted messages and WM_QUIT only.
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT flags) {
    if (CallFails("PeekMessageA"))
        return FALSE;
    const Filter filter{window, first, last};
    return flags & PM_REMOVE ? TakeNext(message, filter) : FindPostedOrQuit(message, filter);
}

LONG GetMessageTime() {
    return CallFails("GetMessageTime") ? 0 : static_cast<LONG>(Desk.messageTime);
}

DWORD GetTickCount() {
    return CallFails("GetTickCount") ? 0 : Desk.now;
}

void Sleep(DWORD milliseconds) {
    if (!CallFails("Sleep"))
        Desk.now += milliseconds;
}

BOOL TranslateMessage(const MSG*) {
    CallFails("TranslateMessage");
    return FALSE;
}

LRESULT Dispatch(const MSG& message) {
    if (message.message == WM_TIMER && message.lParam) {
        const auto callback = reinterpret_cast<TIMERPROC>(message.lParam);
        callback(message.hwnd, WM_TIMER, message.wParam, Desk.now);
        return 0;
    }
    return CallWndProc(message.hwnd, message.message, message.wParam, message.lParam);
}

LRESULT DispatchMessageA(const MSG* message) {
    return CallFails("DispatchMessageA") ? 0 : Dispatch(*message);
}

LRESULT DefaultProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskWindow* record = LiveWindow(window);
    if (!record)
        return 0;
    switch (message) {
    case WM_NCCREATE:
    case WM_QUERYENDSESSION:
    case WM_MOUSEACTIVATE: // MA_ACTIVATE
    case WM_ERASEBKGND: return 1;
    case WM_CLOSE: DestroyTree(window); return 0;
    case WM_PAINT: record->needsPaint = record->needsErase = false; return 0;
    case WM_SETTEXT: record->title = TextFrom(lParam); return TRUE;
    case WM_GETTEXT: return TextTo(record->title, lParam, wParam);
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(ToWide(record->title).size());
    default: return 0;
    }
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallFails("DefWindowProcA") ? 0 : DefaultProc(window, message, wParam, lParam);
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC callback) {
    constexpr UINT shortest = 10; // Windows raises shorter periods to this
    if (CallFails("SetTimer") || !ResolveHandle(window))
        return 0;
    const DWORD period = std::max(milliseconds, shortest);
    std::erase_if(Desk.timers,
                  [=](const DeskTimer& timer) { return timer.window == window && timer.id == id; });
    Desk.timers.push_back({window, id, period, Desk.now + period, callback});
    return id;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    if (CallFails("KillTimer"))
        return FALSE;
    return std::erase_if(Desk.timers, [=](const DeskTimer& timer) {
               return timer.window == window && timer.id == id;
           }) > 0;
}

void RemoveTimers(HWND window) {
    std::erase_if(Desk.timers, [window](const DeskTimer& timer) { return timer.window == window; });
}

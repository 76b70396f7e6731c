// Sending and posting, the queue with its order of precedence, timers on a virtual clock.
#include "ground.h"

#include <algorithm>

LRESULT CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const DeskWindow* row = Living(window);
    return row && row->procedure ? row->procedure(window, message, wParam, lParam) : 0;
}

// A window of another program takes a message.
static void Deliver(DeskWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskMessage arrived{message, wParam, lParam, {}};
    if (message == WM_MOVING) {
        RECT& record = *reinterpret_cast<RECT*>(lParam);
        arrived.record = record;
        if (window.bRewrites)
            record = window.rewritten;
    }
    if (Desk.bTrace)
        window.received.push_back(arrived);
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskWindow* row = Fails("SendMessageA") ? nullptr : Named(window);
    if (!row)
        return 0;
    if (row->procedure)
        return row->procedure(window, message, wParam, lParam);
    if (row->answer != DeskAnswer::Answers)
        ++Desk.surprises;
    Deliver(*row, message, wParam, lParam);
    return 0;
}

// Non-zero when a window of another program does not take the message in time.
static int Refuses(const DeskWindow& window, UINT milliseconds) {
    if (window.answer == DeskAnswer::Answers)
        return 0;
    Desk.lastError = window.error;
    if (window.answer == DeskAnswer::TimesOut)
        Desk.now += milliseconds;
    if (window.answer == DeskAnswer::Leaves) {
        Desk.lastError = ERROR_INVALID_WINDOW_HANDLE;
        KillWindow(window.handle);
    }
    return 1;
}

LRESULT SendMessageTimeoutA(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT, UINT milliseconds,
                            DWORD_PTR* result) {
    if (Fails("SendMessageTimeoutA"))
        return 0;
    *result = 0;
    if (window == HWND_BROADCAST) {
        Desk.broadcasts.push_back({message, wParam, lParam, {}});
        return 1;
    }
    DeskWindow* row = Named(window);
    if (!row || Refuses(*row, milliseconds))
        return 0;
    if (row->procedure)
        *result = static_cast<DWORD_PTR>(row->procedure(window, message, wParam, lParam));
    else
        Deliver(*row, message, wParam, lParam);
    return 1;
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (Fails("PostMessageA") || (window && !Named(window)))
        return FALSE;
    Desk.queue.push_back({window, message, wParam, lParam, Desk.now, Desk.cursor});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    if (Fails("PostQuitMessage"))
        return;
    Desk.bQuit = 1;
    Desk.exitCode = exitCode;
}

static int TakePosted(MSG* message) {
    if (Desk.queue.empty())
        return 0;
    *message = Desk.queue.front();
    Desk.queue.pop_front();
    return 1;
}

// The quit message comes when nothing that was posted is left.
static int TakeQuit(MSG* message) {
    if (!Desk.bQuit)
        return 0;
    Desk.bQuit = 0;
    *message = {nullptr, WM_QUIT, static_cast<WPARAM>(Desk.exitCode), 0, Desk.now, Desk.cursor};
    return 1;
}

static int TakePaint(MSG* message) {
    for (const DeskWindow& window : Desk.windows)
        if (window.handle && window.procedure && window.bInvalid && IsInSight(window.handle)) {
            *message = {window.handle, WM_PAINT, 0, 0, Desk.now, Desk.cursor};
            return 1;
        }
    return 0;
}

static DeskTimer* NextTimer() {
    const auto next = std::min_element(Desk.timers.begin(), Desk.timers.end(),
                                       [](const DeskTimer& a, const DeskTimer& b) { return a.due < b.due; });
    return next == Desk.timers.end() ? nullptr : &*next;
}

static int TakeTimer(MSG* message) {
    DeskTimer* timer = NextTimer();
    if (!timer || timer->due > Desk.now)
        return 0;
    timer->due = Desk.now + timer->period;
    *message = {timer->window, WM_TIMER,   timer->id, reinterpret_cast<LPARAM>(timer->callback),
                Desk.now,      Desk.cursor};
    return 1;
}

// Nothing is left to do at this moment: the user acts, or time passes. 0: the time allowed is over.
static int GoOn() {
    if (!Desk.script.empty()) {
        const auto act = Desk.script.front();
        Desk.script.pop_front();
        act();
        return 1;
    }
    const DeskTimer* timer = NextTimer();
    if (timer && timer->due <= Desk.until) {
        Desk.now = std::max(Desk.now, timer->due);
        return 1;
    }
    Desk.now = std::max(Desk.now, Desk.until);
    Desk.bRunDry = 1;
    return 0;
}

BOOL GetMessageA(MSG* message, HWND, UINT, UINT) {
    if (Fails("GetMessageA"))
        return -1;
    *message = {};
    do {
        if (TakePosted(message) || TakeQuit(message) || TakeInput(message) || TakePaint(message) ||
            TakeTimer(message))
            return message->message != WM_QUIT;
    } while (GoOn());
    return FALSE;
}

BOOL TranslateMessage(const MSG*) {
    Fails("TranslateMessage");
    return FALSE;
}

LRESULT Dispatch(const MSG& message) {
    if (message.message == WM_TIMER && message.lParam) {
        const auto callback = reinterpret_cast<TIMERPROC>(message.lParam);
        callback(message.hwnd, WM_TIMER, message.wParam, Desk.now);
        return 0;
    }
    return CallProcedure(message.hwnd, message.message, message.wParam, message.lParam);
}

LRESULT DispatchMessageA(const MSG* message) {
    return Fails("DispatchMessageA") ? 0 : Dispatch(*message);
}

LRESULT DefaultAnswer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DeskWindow* row = Living(window);
    if (!row)
        return 0;
    switch (message) {
    case WM_NCCREATE:
    case WM_ERASEBKGND: return 1;
    case WM_CLOSE: EndWindow(window); return 0;
    case WM_PAINT: row->bInvalid = row->bErase = 0; return 0;
    case WM_SETTEXT: row->title = reinterpret_cast<LPCSTR>(lParam); return TRUE;
    case WM_GETTEXT: return CopyText(row->title, reinterpret_cast<LPSTR>(lParam), static_cast<int>(wParam));
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(row->title.size());
    default: return 0;
    }
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Fails("DefWindowProcA") ? 0 : DefaultAnswer(window, message, wParam, lParam);
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC callback) {
    constexpr UINT shortest = 10; // Windows knows no shorter period
    if (Fails("SetTimer") || !Named(window))
        return 0;
    const DWORD period = std::max(milliseconds, shortest);
    std::erase_if(Desk.timers,
                  [=](const DeskTimer& timer) { return timer.window == window && timer.id == id; });
    Desk.timers.push_back({window, id, period, Desk.now + period, callback});
    return id;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    if (Fails("KillTimer"))
        return FALSE;
    return std::erase_if(Desk.timers, [=](const DeskTimer& timer) {
               return timer.window == window && timer.id == id;
           }) > 0;
}

void DropTimersOf(HWND window) {
    std::erase_if(Desk.timers, [window](const DeskTimer& timer) { return timer.window == window; });
}

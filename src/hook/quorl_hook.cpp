// Watches the mouse with a low-level hook and posts its messages to the map.
//
// All input of the system waits for a low-level hook, so it has a thread of its own that waits for nothing
// but messages. Posting returns at once, however busy the map is. Sending would make the map handle the
// message in the middle of moving windows.
#include "hook/quorl_hook.h"

#include "hook/hook_message.h"

static const UINT HOOK_EVENT = WM_APP;   // to the watcher thread; wParam: the number of a mouse message
static const WPARAM END_MARK = 0;        // in HOOK_MOUSE_MESSAGE: the end of the messages queued before
static const DWORD START_TIMEOUT = 2000; // milliseconds for the thread to start or to stop

// Milliseconds, more than the five seconds after which Windows considers a window hung. A window that is not
// hung has retrieved a move posted this long ago; if we do not know, we missed it.
static const DWORD MOVE_TIMEOUT = 6000;

// Minimum milliseconds between posted moves; GetTickCount, with its steps of 16, is precise enough. Posted
// messages come before input: moves without a limit would keep the map's own mouse
// messages waiting.
static const DWORD MOVE_INTERVAL = 10;

static const DWORD MAX_SILENCE = 3000; // milliseconds without a hook call, until the cursor is checked

namespace {

struct Hooks {
    HHOOK queue; // on the map's queue
    HHOOK mouse;
};

} // namespace

static HWND MainWindow;
static HMODULE Self;   // the watcher's own reference: keeps its code loaded while it runs
static HANDLE Watcher; // the thread; null if it was not started, or ended by SetMouseHook(0)
static HANDLE Started; // event: the hooks are set
static HANDLE Stop;    // event: the thread must end
static HANDLE Renew;   // event: the mouse hook must be installed again

// On the watcher's thread:
static POINT LastPosition; // of the mouse, in the last hook call
static DWORD LastMove;     // when a move was posted last
static bool bMoveWaits;    // a move is to be posted when MOVE_INTERVAL is over

static volatile LONG MoveQueued; // when the move in the map's queue was posted; 0 if there is none

// Called before the cursor moves, so GetCursorPos would return the old position. Queue the event to this
// thread and forward it from its loop.
static LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM details) {
    if (code == HC_ACTION) {
        LastPosition = reinterpret_cast<const MSLLHOOKSTRUCT*>(details)->pt;
        PostThreadMessageA(GetCurrentThreadId(), HOOK_EVENT, message, 0);
    }
    return CallNextHookEx(nullptr, code, message, details);
}

// Called on the map's thread when it retrieves a message from its queue.
static LRESULT CALLBACK OnMessageRetrieved(int code, WPARAM bRemoved, LPARAM details) {
    const MSG& retrieved = *reinterpret_cast<const MSG*>(details);
    if (code == HC_ACTION && (bRemoved & PM_REMOVE) && retrieved.message == HOOK_MOUSE_MESSAGE &&
        retrieved.wParam == WM_MOUSEMOVE)
        InterlockedExchange(&MoveQueued, 0);
    return CallNextHookEx(nullptr, code, bRemoved, details);
}

// The hook installed last is called first.
static HHOOK HookQueueOf(HWND window) {
    return SetWindowsHookExA(WH_GETMESSAGE, OnMessageRetrieved, nullptr,
                             GetWindowThreadProcessId(window, nullptr));
}

static LONG Now() {
    return static_cast<LONG>(GetTickCount() | 1); // never 0
}

// A hook installed after ours that does not call CallNextHookEx can hide the removal from us.
static bool HasMissedRemoval(HWND window) {
    const LONG posted = MoveQueued;
    return posted && static_cast<DWORD>(Now()) - static_cast<DWORD>(posted) > MOVE_TIMEOUT &&
           !IsHungAppWindow(window);
}

// Not needed if one is queued: the map reads the cursor's position when it handles it.
static void PostMove(HWND window) {
    if (InterlockedCompareExchange(&MoveQueued, Now(), 0) != 0)
        return;
    if (!PostMessageA(window, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0))
        InterlockedExchange(&MoveQueued, 0);
    LastMove = GetTickCount();
}

static void ForwardMove(HWND window) {
    bMoveWaits = GetTickCount() - LastMove < MOVE_INTERVAL;
    if (!bMoveWaits)
        PostMove(window);
}

// False if the window is gone.
static bool Forward(HWND window, WPARAM message) {
    if (message == WM_MOUSEMOVE)
        ForwardMove(window);
    else if (message != WM_MOUSEWHEEL && message != WM_MOUSEHWHEEL)
        PostMessageA(window, HOOK_MOUSE_MESSAGE, message, 0);
    return IsWindow(window) != 0;
}

static bool ForwardAll(HWND window) {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        if (message.message == HOOK_EVENT && !Forward(window, message.wParam))
            return false;
    return true;
}

static HHOOK HookMouse() {
    return SetWindowsHookExA(WH_MOUSE_LL, OnMouse, Self, 0);
}

// Hooks are called while this thread looks for messages. It does not in between, so no click is reported
// twice.
static void RenewMouseHook(Hooks& hooks) {
    const HHOOK renewed = HookMouse();
    if (!renewed)
        return;
    UnhookWindowsHookEx(hooks.mouse);
    hooks.mouse = renewed;
}

// Windows silently removes a low-level hook that once did not return in time, for example after sleep or
// paging. The only sign is a cursor that moves without a hook call.
static void RenewIfRemoved(Hooks& hooks) {
    POINT at;
    if (!GetCursorPos(&at) || (at.x == LastPosition.x && at.y == LastPosition.y))
        return;
    LastPosition = at;
    RenewMouseHook(hooks);
}

static void RenewQueueHook(HWND window, Hooks& hooks) {
    UnhookWindowsHookEx(hooks.queue);
    hooks.queue = HookQueueOf(window);
    InterlockedExchange(&MoveQueued, 0);
}

// False if the window is gone.
static bool OnMessages(HWND window, Hooks& hooks) {
    if (HasMissedRemoval(window))
        RenewQueueHook(window, hooks);
    return ForwardAll(window);
}

static void OnTimeout(HWND window, Hooks& hooks) {
    if (bMoveWaits)
        ForwardMove(window);
    else
        RenewIfRemoved(hooks);
}

static DWORD WaitForEvents() {
    const HANDLE events[] = {Stop, Renew};
    const DWORD timeout = bMoveWaits ? MOVE_INTERVAL : MAX_SILENCE;
    return MsgWaitForMultipleObjects(2, events, FALSE, timeout, QS_ALLINPUT);
}

static void WatchUntilStopped(HWND window, Hooks& hooks) {
    for (;;)
        switch (WaitForEvents()) {
        case WAIT_OBJECT_0 + 1: RenewMouseHook(hooks); break;
        case WAIT_OBJECT_0 + 2:
            if (!OnMessages(window, hooks))
                return;
            break;
        case WAIT_TIMEOUT: OnTimeout(window, hooks); break;
        default: return;
        }
}

// Windows removes the hooks itself when the thread that installed them ends.
static void Watch(HWND window) {
    Hooks hooks = {HookQueueOf(window), HookMouse()};
    bMoveWaits = false;
    GetCursorPos(&LastPosition);
    ForwardAll(window); // Wine calls a hook only after its thread has looked for messages
    SetEvent(Started);
    if (hooks.queue && hooks.mouse)
        WatchUntilStopped(window, hooks);
    UnhookWindowsHookEx(hooks.mouse);
    UnhookWindowsHookEx(hooks.queue);
}

static DWORD WINAPI WatcherMain(void* window) {
    Watch(static_cast<HWND>(window));
    return 0;
}

static bool HasEnded(DWORD milliseconds) {
    return !Watcher || WaitForSingleObject(Watcher, milliseconds) == WAIT_OBJECT_0;
}

static void CloseAndClear(HANDLE& handle) {
    if (handle)
        CloseHandle(handle);
    handle = nullptr;
}

// Releases what the thread held, once it has ended.
static void ReleaseWatcher() {
    CloseAndClear(Watcher);
    CloseAndClear(Started);
    CloseAndClear(Stop);
    CloseAndClear(Renew);
    if (Self)
        FreeLibrary(Self); // not the last reference: the caller has its own
    Self = nullptr;
}

static void StartWatcher() {
    if (!GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCSTR>(&MainWindow),
                            &Self))
        return;
    Watcher = CreateThread(nullptr, 0, WatcherMain, MainWindow, 0, nullptr);
    if (!Watcher)
        return;
    SetThreadPriority(Watcher, THREAD_PRIORITY_HIGHEST); // the input of all programs waits for it
    const HANDLE either[] = {Started, Watcher};
    WaitForMultipleObjects(2, either, FALSE, START_TIMEOUT);
}

// An earlier watcher's move may still be queued. Repost the queued messages without moves.
static void DropWaitingMoves(HWND window) {
    MSG queued;
    if (!PostMessageA(window, HOOK_MOUSE_MESSAGE, END_MARK, 0))
        return;
    while (PeekMessageA(&queued, window, HOOK_MOUSE_MESSAGE, HOOK_MOUSE_MESSAGE, PM_REMOVE) &&
           !(queued.message == HOOK_MOUSE_MESSAGE && queued.wParam == END_MARK)) {
        if (queued.message == WM_QUIT) { // returned whatever the filter
            PostQuitMessage(static_cast<int>(queued.wParam));
            return;
        }
        if (queued.wParam != WM_MOUSEMOVE)
            PostMessageA(window, HOOK_MOUSE_MESSAGE, queued.wParam, queued.lParam);
    }
}

static void BeginWatching() {
    if (!HasEnded(0)) {
        SetEvent(Renew);
        return;
    }
    ReleaseWatcher(); // a thread that ended by itself
    if (!IsWindow(MainWindow))
        return;
    DropWaitingMoves(MainWindow);
    MoveQueued = 0;
    Started = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Stop = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Renew = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    StartWatcher();
}

// Starting and ending a thread takes the loader lock. A caller that holds it would wait forever, hence the
// timeout. The thread then ends later; the next call releases it.
static void EndWatching() {
    if (Stop)
        SetEvent(Stop);
    if (HasEnded(START_TIMEOUT))
        ReleaseWatcher();
}

void SaveSharedData(HWND window) {
    const int bWatching = !HasEnded(0) && window != MainWindow;
    if (bWatching)
        EndWatching();
    MainWindow = window;
    if (bWatching)
        BeginWatching();
}

void SetMouseHook(int bWatch) {
    if (bWatch)
        BeginWatching();
    else
        EndWatching();
}

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

// Milliseconds, more than the five seconds after which Windows considers a window hung: a window that is not
// hung has removed a move posted this long ago.
static const DWORD MOVE_TIMEOUT = 6000;

static HWND MainWindow;
static HMODULE Self;   // the watcher's own reference: keeps its code loaded while it runs
static HANDLE Watcher; // the thread; null if it was not started, or ended by SetMouseHook(0)
static HANDLE Started; // event: the hooks are set
static HANDLE Stop;    // event: the thread must end

static volatile LONG MoveQueued; // when the move in the map's queue was posted; 0 if there is none

// Called before the cursor moves, so GetCursorPos would return the old position. Queue the event to this
// thread and forward it from its loop.
static LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM details) {
    if (code == HC_ACTION)
        PostThreadMessageA(GetCurrentThreadId(), HOOK_EVENT, message, 0);
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

static void ForwardMove(HWND window) {
    if (InterlockedCompareExchange(&MoveQueued, Now(), 0) == 0 &&
        !PostMessageA(window, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0))
        InterlockedExchange(&MoveQueued, 0);
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

static void WatchUntilStopped(HWND window, HHOOK* queue) {
    while (MsgWaitForMultipleObjects(1, &Stop, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        if (HasMissedRemoval(window)) {
            UnhookWindowsHookEx(*queue);
            *queue = HookQueueOf(window);
            InterlockedExchange(&MoveQueued, 0);
        }
        if (!ForwardAll(window))
            return;
    }
}

// Windows removes the hooks itself when the thread that installed them ends.
static void Watch(HWND window) {
    HHOOK queue = HookQueueOf(window);
    const HHOOK mouse = SetWindowsHookExA(WH_MOUSE_LL, OnMouse, Self, 0);
    ForwardAll(window); // Wine calls a hook only after its thread has looked for messages
    SetEvent(Started);
    if (queue && mouse)
        WatchUntilStopped(window, &queue);
    UnhookWindowsHookEx(mouse);
    UnhookWindowsHookEx(queue);
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
           queued.wParam != END_MARK)
        if (queued.wParam != WM_MOUSEMOVE)
            PostMessageA(window, HOOK_MOUSE_MESSAGE, queued.wParam, queued.lParam);
}

static void BeginWatching() {
    if (!HasEnded(0))
        return;
    ReleaseWatcher(); // a thread that ended by itself
    if (!IsWindow(MainWindow))
        return;
    DropWaitingMoves(MainWindow);
    MoveQueued = 0;
    Started = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Stop = CreateEventA(nullptr, TRUE, FALSE, nullptr);
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

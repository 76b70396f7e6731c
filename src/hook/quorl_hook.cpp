// Watches the mouse over all programs and posts what it does to the main window.
//
// The whole system's input waits for a low-level hook, so the hook has a thread of its own that never waits
// for anything but news: posting returns at once however busy the main window is. Messages are not sent,
// because the main window would have to take them in the midst of whatever it is doing with other windows.
#include "hook/quorl_hook.h"

#include "mouse/hook_mouse.h"

static const UINT NEWS = WM_APP;    // to the watching thread itself; wParam: the number of a mouse message
static const WPARAM MARK = 0;       // no mouse message: the end of the news that waited
static const DWORD PATIENCE = 2000; // milliseconds for the watching to begin or to end

// Milliseconds, more than the five seconds after which Windows calls a window hung: a window that is not has
// taken a move that was posted so long ago.
static const DWORD LONG_WAIT = 6000;

static HWND MainWindow;
static HMODULE Self;   // a reference of the watcher's own: its code stays for as long as it may run
static HANDLE Watcher; // the thread; null: never begun, or ended by SetMouseHook(0)
static HANDLE Started; // event: the hooks are set
static HANDLE Stop;    // event: the watching shall end

static volatile LONG MoveQueued; // when the move in the main window's queue was posted; 0: there is none

// Runs before the cursor has moved: who reported from here would be answered with the old place. So the
// thread tells itself, and passes the news on from its loop.
static LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM details) {
    if (code == HC_ACTION)
        PostThreadMessageA(GetCurrentThreadId(), NEWS, message, 0);
    return CallNextHookEx(nullptr, code, message, details);
}

// Runs on the main window's thread, whenever that takes a message out of its queue.
static LRESULT CALLBACK OnTaken(int code, WPARAM bRemoved, LPARAM details) {
    const MSG& taken = *reinterpret_cast<const MSG*>(details);
    if (code == HC_ACTION && (bRemoved & PM_REMOVE) && taken.message == HOOK_MOUSE_MESSAGE &&
        taken.wParam == WM_MOUSEMOVE)
        InterlockedExchange(&MoveQueued, 0);
    return CallNextHookEx(nullptr, code, bRemoved, details);
}

// The newest hook is asked first.
static HHOOK HookQueueOf(HWND window) {
    return SetWindowsHookExA(WH_GETMESSAGE, OnTaken, nullptr, GetWindowThreadProcessId(window, nullptr));
}

static LONG TimeOfNow() {
    return static_cast<LONG>(GetTickCount() | 1); // never 0
}

// A newer hook of someone else that does not pass on what it sees has kept from us that the move was taken.
static int HasMissedTheTaking(HWND window) {
    const LONG posted = MoveQueued;
    return posted && static_cast<DWORD>(TimeOfNow() - posted) > LONG_WAIT && !IsHungAppWindow(window);
}

static void PassMoveOn(HWND window) {
    if (InterlockedCompareExchange(&MoveQueued, TimeOfNow(), 0) == 0 &&
        !PostMessageA(window, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0))
        InterlockedExchange(&MoveQueued, 0);
}

// 0: the window is gone.
static int PassOn(HWND window, WPARAM message) {
    if (message == WM_MOUSEMOVE)
        PassMoveOn(window);
    else if (message != WM_MOUSEWHEEL && message != WM_MOUSEHWHEEL)
        PostMessageA(window, HOOK_MOUSE_MESSAGE, message, 0);
    return IsWindow(window);
}

static int PassOnAll(HWND window) {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        if (message.message == NEWS && !PassOn(window, message.wParam))
            return 0;
    return 1;
}

static void WatchUntilStopped(HWND window, HHOOK* queue) {
    while (MsgWaitForMultipleObjects(1, &Stop, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        if (HasMissedTheTaking(window)) {
            UnhookWindowsHookEx(*queue);
            *queue = HookQueueOf(window);
            InterlockedExchange(&MoveQueued, 0);
        }
        if (!PassOnAll(window))
            return;
    }
}

// Windows takes the hooks back by itself when the thread that set them dies.
static void Watch(HWND window) {
    HHOOK queue = HookQueueOf(window);
    const HHOOK mouse = SetWindowsHookExA(WH_MOUSE_LL, OnMouse, Self, 0);
    PassOnAll(window); // Wine asks a hook only once its thread has looked for messages
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

static int HasEnded(DWORD milliseconds) {
    return !Watcher || WaitForSingleObject(Watcher, milliseconds) == WAIT_OBJECT_0;
}

static void Forget(HANDLE& handle) {
    if (handle)
        CloseHandle(handle);
    handle = nullptr;
}

// To be called once the watcher has ended, however it did: what it held goes.
static void ForgetWatcher() {
    Forget(Watcher);
    Forget(Started);
    Forget(Stop);
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
    SetThreadPriority(Watcher, THREAD_PRIORITY_HIGHEST); // all programs' input waits for it
    const HANDLE either[] = {Started, Watcher};
    WaitForMultipleObjects(2, either, FALSE, PATIENCE);
}

// A move of an earlier watching may wait still, and nobody saw whether it was taken. The waiting news goes
// round once, and the moves are left out.
static void DropWaitingMoves(HWND window) {
    MSG news;
    if (!PostMessageA(window, HOOK_MOUSE_MESSAGE, MARK, 0))
        return;
    while (PeekMessageA(&news, window, HOOK_MOUSE_MESSAGE, HOOK_MOUSE_MESSAGE, PM_REMOVE) &&
           news.wParam != MARK)
        if (news.wParam != WM_MOUSEMOVE)
            PostMessageA(window, HOOK_MOUSE_MESSAGE, news.wParam, news.lParam);
}

static void BeginWatching() {
    if (!HasEnded(0))
        return;
    ForgetWatcher(); // one that died
    if (!IsWindow(MainWindow))
        return;
    DropWaitingMoves(MainWindow);
    MoveQueued = 0;
    Started = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Stop = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    StartWatcher();
}

// A thread that begins or ends needs the loader, so under the loader's lock this waits in vain: hence the
// limit. The watcher then ends later, and its reference stays until it is seen to have.
static void EndWatching() {
    if (Stop)
        SetEvent(Stop);
    if (HasEnded(PATIENCE))
        ForgetWatcher();
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

// Watches the mouse over all programs and posts what it does to the main window.
//
// The whole system's input waits for a low-level hook, so the hook has a thread of its own that never waits
// for anything but news: posting returns at once however busy the main window is. Messages are not sent,
// because the main window would have to take them in the midst of whatever it is doing with other windows.
#include "hook/quorl_hook.h"

#include "mouse/hook_mouse.h"

static const UINT NEWS = WM_APP;    // to the watching thread itself; wParam: the number of a mouse message
static const DWORD PATIENCE = 2000; // milliseconds for the watching to begin or to end

static HWND MainWindow;
static HMODULE Self;   // a reference of the watcher's own: its code stays for as long as it runs
static HANDLE Watcher; // the thread; null: never begun, or ended by SetMouseHook(0)
static HANDLE Started; // event: the hooks are set
static HANDLE Stop;    // event: the watching shall end

static volatile LONG bMoveQueued; // a move lies in the main window's queue

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
        InterlockedExchange(&bMoveQueued, 0);
    return CallNextHookEx(nullptr, code, bRemoved, details);
}

// 0: the window is gone.
static int PassOn(HWND window, WPARAM message) {
    if (message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL)
        return 1;
    const int bMove = message == WM_MOUSEMOVE;
    const int bSpared = bMove && InterlockedExchange(&bMoveQueued, 1);
    if (!bSpared && !PostMessageA(window, HOOK_MOUSE_MESSAGE, message, 0) && bMove)
        InterlockedExchange(&bMoveQueued, 0);
    return IsWindow(window);
}

static int PassOnAll(HWND window) {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        if (message.message == NEWS && !PassOn(window, message.wParam))
            return 0;
    return 1;
}

static void WatchUntilStopped(HWND window) {
    DWORD woken;
    do
        woken = MsgWaitForMultipleObjects(1, &Stop, FALSE, INFINITE, QS_ALLINPUT);
    while (woken == WAIT_OBJECT_0 + 1 && PassOnAll(window));
}

// Windows takes the hooks back by itself when the thread that set them dies.
static void Watch(HWND window) {
    const DWORD owner = GetWindowThreadProcessId(window, nullptr);
    const HHOOK taken = SetWindowsHookExA(WH_GETMESSAGE, OnTaken, nullptr, owner);
    const HHOOK mouse = SetWindowsHookExA(WH_MOUSE_LL, OnMouse, Self, 0);
    PassOnAll(window); // Wine asks a hook only once its thread has looked for messages
    SetEvent(Started);
    if (taken && mouse)
        WatchUntilStopped(window);
    UnhookWindowsHookEx(mouse);
    UnhookWindowsHookEx(taken);
}

// A watcher that ends unasked leaves the library loaded: the window's thread may be inside OnTaken just now.
static DWORD WINAPI WatcherMain(void* window) {
    Watch(static_cast<HWND>(window));
    if (WaitForSingleObject(Stop, 0) == WAIT_OBJECT_0)
        FreeLibraryAndExitThread(Self, 0);
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

static void ForgetWatcher() {
    Forget(Watcher);
    Forget(Started);
    Forget(Stop);
}

static void StartWatcher() {
    if (!GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCSTR>(&MainWindow),
                            &Self))
        return;
    Watcher = CreateThread(nullptr, 0, WatcherMain, MainWindow, 0, nullptr);
    if (!Watcher) {
        FreeLibrary(Self);
        return;
    }
    SetThreadPriority(Watcher, THREAD_PRIORITY_HIGHEST); // all programs' input waits for it
    const HANDLE either[] = {Started, Watcher};
    WaitForMultipleObjects(2, either, FALSE, PATIENCE);
}

static void BeginWatching() {
    if (!HasEnded(0) || !IsWindow(MainWindow))
        return;
    ForgetWatcher(); // one that died
    Started = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Stop = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    bMoveQueued = 0;
    StartWatcher();
}

// A thread that begins or ends needs the loader, so under the loader's lock this waits in vain: hence the
// limit. The watcher then ends later, and its own reference keeps its code until it has.
static void EndWatching() {
    if (!Watcher)
        return;
    SetEvent(Stop);
    if (HasEnded(PATIENCE))
        ForgetWatcher();
}

void WINAPI SaveSharedData(HWND window) {
    MainWindow = window;
}

void WINAPI SetMouseHook(int bWatch) {
    if (bWatch)
        BeginWatching();
    else
        EndWatching();
}

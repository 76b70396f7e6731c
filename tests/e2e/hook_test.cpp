// The companion library on its own: this program loads it and gives it a window, as quorl.exe does.
#include "mouse.h"

#include <tlhelp32.h>

#include <vector>

namespace {

constexpr UINT NEWS = 1124;
constexpr POINT TARGET = {300, 300}; // over the window

std::vector<WPARAM> News; // as it was handled
int Pressed;              // presses that reached the window itself

LRESULT CALLBACK TargetWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == NEWS)
        News.push_back(wParam);
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
        ++Pressed;
    return DefWindowProcA(window, message, wParam, lParam);
}

void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
}

int CountOf(WPARAM message) {
    Pump();
    return static_cast<int>(std::count(News.begin(), News.end(), message));
}

std::vector<DWORD> OwnThreads() {
    std::vector<DWORD> threads;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            threads.push_back(entry.th32ThreadID);
    CloseHandle(snapshot);
    return threads;
}

// A thread that sends input waits for the hook, and while it waits its windows do not count as hung.
DWORD WINAPI MoveToTarget(void*) {
    SendMouse(TARGET.x, TARGET.y);
    return 0;
}

void MoveFromAnotherThread() {
    const HANDLE mover = CreateThread(nullptr, 0, MoveToTarget, nullptr, 0, nullptr);
    WaitForSingleObject(mover, INFINITE);
    CloseHandle(mover);
}

// Another program's hook on our messages, which keeps what it sees to itself.
LRESULT CALLBACK KeepToItself(int, WPARAM, LPARAM) {
    return 0;
}

class HookLibrary : public testing::Test {
  protected:
    HMODULE library = nullptr;
    HWND window = nullptr;
    std::vector<DWORD> threadsBefore;
    void (*SaveSharedData)(HWND) = nullptr;
    void (*SetMouseHook)(int) = nullptr;

    void SetUp() override {
        MoveMouse(TARGET);
        OpenTarget();
        Load();
        SaveSharedData(window);
        threadsBefore = OwnThreads();
    }

    void TearDown() override {
        if (GetModuleHandleA("quorl.dll"))
            SetMouseHook(0);
        while (GetModuleHandleA("quorl.dll") && FreeLibrary(library))
            ;
        DestroyWindow(window);
        Pump();
    }

    void OpenTarget() {
        WNDCLASSA description = {};
        description.lpfnWndProc = TargetWndProc;
        description.lpszClassName = "HookTarget";
        RegisterClassA(&description);
        window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_NOACTIVATE, "HookTarget", "", WS_POPUP | WS_VISIBLE,
                                 200, 200, 300, 300, nullptr, nullptr, nullptr, nullptr);
        Pump();
        News.clear();
        Pressed = 0;
    }

    // The threads that the library has begun.
    std::vector<DWORD> Watchers() {
        std::vector<DWORD> threads = OwnThreads();
        std::erase_if(threads, [this](DWORD thread) {
            return std::find(threadsBefore.begin(), threadsBefore.end(), thread) != threadsBefore.end();
        });
        return threads;
    }

    HANDLE OpenWatcher() {
        return OpenThread(SYNCHRONIZE | THREAD_TERMINATE | THREAD_SUSPEND_RESUME, FALSE, Watchers().at(0));
    }

    // Nothing but the program itself holds the library.
    int GoesWithOneRelease() {
        FreeLibrary(library);
        return !GetModuleHandleA("quorl.dll");
    }

    template <typename Function>
    void Find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
        ASSERT_TRUE(function) << name;
    }

    void Load() {
        library = LoadLibraryA("quorl.dll");
        ASSERT_TRUE(library);
        Find(SaveSharedData, "SaveSharedData");
        Find(SetMouseHook, "SetMouseHook");
    }

    // How often the library tells of one click: presses, once its release is told as well or time is over.
    int ToldOfAClick(int bExpected) {
        News.clear();
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        if (bExpected) {
            EXPECT_SOON(CountOf(WM_LBUTTONUP) > 0, true);
        }
        Sleep(100);
        return CountOf(WM_LBUTTONDOWN);
    }
};

} // namespace

TEST_F(HookLibrary, OneMoveWaitsForAWindowThatIsBusyAndEveryClickDoes) {
    constexpr LONG times = 3; // over before a slow machine takes the window for one that works
    SetMouseHook(1);
    for (LONG i = 0; i < times; ++i) { // busy: nothing is taken out of the queue meanwhile
        SendMouse(TARGET.x + i, TARGET.y);
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        SendMouse(TARGET.x, TARGET.y + i);
    }
    Sleep(6300); // long enough to be called hung
    MoveFromAnotherThread();
    Sleep(100);
    EXPECT_EQ(CountOf(WM_MOUSEMOVE), 1);
    EXPECT_EQ(News.front(), static_cast<WPARAM>(WM_MOUSEMOVE)) << "the first news stays the first";
    for (const WPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP})
        EXPECT_EQ(CountOf(message), times) << message;
    EXPECT_EQ(Pressed, times) << "nothing is withheld";
    SendMouse(TARGET.x + 50, TARGET.y);
    EXPECT_SOON(CountOf(WM_MOUSEMOVE), 2);
}

TEST_F(HookLibrary, OneMoveWaitsHoweverOftenTheWatchingEndsAndBegins) {
    for (int time = 0; time < 3; ++time) {
        SetMouseHook(1);
        SendMouse(TARGET.x + time, TARGET.y);
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        Sleep(100);
        SetMouseHook(0);
    }
    EXPECT_EQ(CountOf(WM_MOUSEMOVE), 1);
    EXPECT_EQ(CountOf(WM_LBUTTONDOWN), 3);
    EXPECT_EQ(CountOf(WM_LBUTTONUP), 3);
}

TEST_F(HookLibrary, AForeignHookThatHidesTheMessagesHoldsTheNewsUpOnce) {
    SetMouseHook(1);
    const HHOOK foreign = SetWindowsHookExA(WH_GETMESSAGE, KeepToItself, nullptr, GetCurrentThreadId());
    SendMouse(TARGET.x + 1, TARGET.y);
    EXPECT_SOON(CountOf(WM_MOUSEMOVE), 1);
    for (int time = 0; time < 65; ++time) { // a program that is alive takes messages all the time
        Sleep(100);
        Pump();
    }
    for (int time = 2; time < 5; ++time) {
        SendMouse(TARGET.x + time, TARGET.y);
        EXPECT_SOON(CountOf(WM_MOUSEMOVE), time);
    }
    UnhookWindowsHookEx(foreign);
}

TEST_F(HookLibrary, AWheelThatTurnsTellsNothing) {
    SetMouseHook(1);
    Click(MOUSEEVENTF_WHEEL, MOUSEEVENTF_WHEEL);
    Click(MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP);
    EXPECT_SOON(CountOf(WM_MBUTTONUP), 1);
    EXPECT_EQ(News, (std::vector<WPARAM>{WM_MBUTTONDOWN, WM_MBUTTONUP}));
}

TEST_F(HookLibrary, AskingTwiceInAnyOrderIsAskingOnce) {
    for (const std::string asked : {"00", "11", "01", "10", "110", "101"}) {
        for (const char bWatch : asked)
            SetMouseHook(bWatch == '1');
        const int bWatching = asked.back() == '1';
        EXPECT_EQ(ToldOfAClick(bWatching), bWatching) << asked;
        SetMouseHook(0);
    }
}

TEST_F(HookLibrary, LoadedTwiceItWatchesOnceAndGoesWithTheSecondRelease) {
    SetMouseHook(1);
    Load();
    SaveSharedData(window);
    SetMouseHook(1);
    EXPECT_EQ(Watchers().size(), 1U);
    FreeLibrary(library);
    EXPECT_EQ(ToldOfAClick(1), 1);
    SetMouseHook(0);
    EXPECT_EQ(Watchers().size(), 0U) << "the thread has ended when the call is back";
    EXPECT_TRUE(GoesWithOneRelease());
}

TEST_F(HookLibrary, ComesAndGoesWhileTheMouseMoves) {
    FreeLibrary(library);
    StartShakingMouse(TARGET);
    for (int i = 0; i < 50; ++i) {
        Load();
        SaveSharedData(window);
        SetMouseHook(1);
        if (i % 2)
            Sleep(5);
        Pump();
        SetMouseHook(0);
        EXPECT_TRUE(GoesWithOneRelease()) << i;
    }
    StopShakingMouse();
    EXPECT_GT(CountOf(WM_MOUSEMOVE), 0);
}

TEST_F(HookLibrary, ReleasedWithoutAWordItStaysWhileItsThreadRuns) {
    SetMouseHook(1);
    StartShakingMouse(TARGET);
    FreeLibrary(library);
    News.clear();
    EXPECT_SOON(CountOf(WM_MOUSEMOVE) > 0, true);
    StopShakingMouse();
    EXPECT_TRUE(GetModuleHandleA("quorl.dll"));
    library = LoadLibraryA("quorl.dll");
    EXPECT_EQ(ToldOfAClick(1), 1);
}

TEST_F(HookLibrary, AWindowThatIsGoneEndsTheWatching) {
    SetMouseHook(1);
    DestroyWindow(window);
    SendMouse(TARGET.x + 5, TARGET.y);
    EXPECT_SOON(Watchers().size(), 0U);
    SetMouseHook(1);
    EXPECT_EQ(Watchers().size(), 0U) << "there is no window to tell";
    OpenTarget();
    SaveSharedData(window);
    SetMouseHook(1);
    EXPECT_EQ(ToldOfAClick(1), 1);
    SetMouseHook(0);
    EXPECT_TRUE(GoesWithOneRelease());
}

TEST_F(HookLibrary, AnotherWindowHasTheNewsFromTheMomentItIsNamed) {
    SetMouseHook(1);
    const HWND other = CreateWindowExA(WS_EX_NOACTIVATE, "HookTarget", "", WS_POPUP, 0, 0, 10, 10, nullptr,
                                       nullptr, nullptr, nullptr);
    SaveSharedData(other);
    DestroyWindow(window);
    window = other;
    EXPECT_EQ(ToldOfAClick(1), 1);
    SaveSharedData(nullptr);
    EXPECT_EQ(ToldOfAClick(0), 0);
}

TEST_F(HookLibrary, AThreadThatWasKilledIsReplacedAndHoldsNothing) {
    for (int time = 0; time < 2; ++time) {
        SetMouseHook(1);
        EXPECT_EQ(ToldOfAClick(1), 1);
        const HANDLE watcher = OpenWatcher();
        EXPECT_TRUE(TerminateThread(watcher, 0));
        CloseHandle(watcher);
        EXPECT_SOON(Watchers().size(), 0U);
        EXPECT_EQ(ToldOfAClick(0), 0);
    }
    SetMouseHook(0);
    EXPECT_TRUE(GoesWithOneRelease());
}

TEST_F(HookLibrary, TheCodeOfAThreadThatEndsTooLateStaysUntilItHasEnded) {
    SetMouseHook(1);
    const HANDLE watcher = OpenWatcher();
    SuspendThread(watcher);
    SetMouseHook(0);
    EXPECT_FALSE(GoesWithOneRelease()) << "the thread is still in it";
    ResumeThread(watcher);
    EXPECT_EQ(WaitForSingleObject(watcher, 5000), WAIT_OBJECT_0);
    CloseHandle(watcher);
    Load();
    SetMouseHook(1);
    EXPECT_EQ(ToldOfAClick(1), 1);
    SetMouseHook(0);
    EXPECT_TRUE(GoesWithOneRelease());
}

// The companion library on its own: this program loads it and gives it a window, as quorl.exe does.
#include "user.h"

#include <tlhelp32.h>

#include <set>
#include <thread>

namespace {

constexpr UINT NEWS = 1124;
constexpr POINT TARGET = {300, 300}; // over the window

std::vector<WPARAM> News; // as it was handled
int Pressed;              // presses that reached the window itself

LRESULT CALLBACK TargetWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == NEWS)
        News.push_back(wParam);
    Pressed += message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
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

void MoveBy(LONG dx) {
    SendMouse(TARGET.x + dx, TARGET.y);
}

// Another program's hook on our messages, which keeps what it sees to itself.
LRESULT CALLBACK KeepToItself(int, WPARAM, LPARAM) {
    return 0;
}

void Shake(const std::stop_token& stop) {
    for (LONG i = 0; !stop.stop_requested(); i = (i + 1) % 20) {
        MoveBy(i);
        if (i == 0)
            Sleep(1);
    }
}

class HookLibrary : public testing::Test {
  protected:
    HMODULE library = nullptr;
    HWND window = nullptr;
    std::set<DWORD> threadsBefore;
    void (*SaveSharedData)(HWND) = nullptr;
    void (*SetMouseHook)(int) = nullptr;

    void SetUp() override {
        MoveMouse(TARGET);
        WNDCLASSA description = {};
        description.lpfnWndProc = TargetWndProc;
        description.lpszClassName = "HookTarget";
        RegisterClassA(&description);
        threadsBefore = Watchers();
        OpenTarget();
        Load();
    }

    void TearDown() override {
        SetMouseHook(0);
        DestroyWindow(window);
    }

    void OpenTarget() {
        window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_NOACTIVATE, "HookTarget", "", WS_POPUP | WS_VISIBLE,
                                 200, 200, 300, 300, nullptr, nullptr, nullptr, nullptr);
        Pump();
        News.clear();
    }

    template <typename Function>
    void Find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }

    // Loads the library and has it watch.
    void Load() {
        library = LoadLibraryA("quorl.dll");
        Find(SaveSharedData, "SaveSharedData");
        Find(SetMouseHook, "SetMouseHook");
        SaveSharedData(window);
        SetMouseHook(1);
    }

    // Nothing but this program holds the library once it does not watch. Then it is loaded again.
    void ExpectToGoWithOneRelease() {
        SetMouseHook(0);
        FreeLibrary(library);
        EXPECT_FALSE(GetModuleHandleA("quorl.dll"));
        Load();
    }

    // The threads that the library has begun.
    std::set<DWORD> Watchers() {
        std::set<DWORD> threads;
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
        THREADENTRY32 entry = {};
        entry.dwSize = sizeof entry;
        for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
            if (entry.th32OwnerProcessID == GetCurrentProcessId() &&
                !threadsBefore.contains(entry.th32ThreadID))
                threads.insert(entry.th32ThreadID);
        CloseHandle(snapshot);
        return threads;
    }

    HANDLE OpenWatcher() { return OpenThread(THREAD_ALL_ACCESS, FALSE, *Watchers().begin()); }

    // How often the library tells of one click: presses, once its release is told as well or time is over.
    void ExpectToTellOfAClick(int times) {
        News.clear();
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        EXPECT_SOON(CountOf(WM_LBUTTONUP) >= times, true);
        Sleep(100);
        EXPECT_EQ(CountOf(WM_LBUTTONDOWN), times);
    }
};

} // namespace

TEST_F(HookLibrary, OneMoveWaitsForAWindowThatIsBusyAndEveryClickDoes) {
    constexpr int TIMES = 3; // over before a slow machine takes the window for one that works
    Pressed = 0;
    for (int i = 0; i < TIMES; ++i) { // busy: nothing is taken out of the queue meanwhile
        MoveBy(i);
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        Click(MOUSEEVENTF_WHEEL, MOUSEEVENTF_WHEEL);
        MoveBy(-i);
    }
    Sleep(6300); // long enough to be called hung
    // A thread that sends input waits for the hook, and while it waits its windows do not count as hung.
    std::jthread(MoveBy, 20).join();
    Sleep(100);
    EXPECT_EQ(CountOf(WM_MOUSEMOVE), 1);
    EXPECT_EQ(News.front(), WPARAM{WM_MOUSEMOVE}) << "the first news stays the first";
    for (const WPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP})
        EXPECT_EQ(CountOf(message), TIMES) << message;
    EXPECT_EQ(News.size(), 1U + 4 * TIMES) << "the wheel tells nothing";
    EXPECT_EQ(Pressed, TIMES) << "nothing is withheld";
    MoveBy(50);
    EXPECT_SOON(CountOf(WM_MOUSEMOVE), 2);
}

TEST_F(HookLibrary, OneMoveWaitsHoweverOftenTheWatchingEndsAndBegins) {
    for (int time = 0; time < 3; ++time) {
        SetMouseHook(1);
        MoveBy(time);
        Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
        Sleep(100);
        SetMouseHook(0);
    }
    EXPECT_EQ(CountOf(WM_MOUSEMOVE), 1);
    EXPECT_EQ(CountOf(WM_LBUTTONDOWN), 3);
    EXPECT_EQ(CountOf(WM_LBUTTONUP), 3);
}

TEST_F(HookLibrary, AForeignHookThatHidesTheMessagesHoldsTheNewsUpOnce) {
    SetWindowsHookExA(WH_GETMESSAGE, KeepToItself, nullptr, GetCurrentThreadId());
    for (int time = 1; time < 4; ++time) {
        MoveBy(time);
        EXPECT_SOON(CountOf(WM_MOUSEMOVE), time);
        for (int i = 0; i < 65 && time == 1; ++i) { // a program that is alive takes messages all the time
            Sleep(100);
            Pump();
        }
    }
}

TEST_F(HookLibrary, AskedOrLoadedTwiceItWatchesOnce) {
    for (const std::string asked : {"00", "11", "01", "10", "110", "101"}) {
        SetMouseHook(0);
        for (const char bWatch : asked)
            SetMouseHook(bWatch == '1');
        ExpectToTellOfAClick(asked.back() == '1');
    }
    Load();
    EXPECT_EQ(Watchers().size(), 1U);
    FreeLibrary(library);
    ExpectToTellOfAClick(1);
    SetMouseHook(0);
    EXPECT_EQ(Watchers().size(), 0U) << "the thread has ended when the call is back";
    ExpectToGoWithOneRelease();
}

TEST_F(HookLibrary, ComesAndGoesWhileTheMouseMoves) {
    const std::jthread shaking(Shake);
    for (int i = 0; i < 50; ++i) {
        Sleep(i % 2 * 5U);
        Pump();
        ExpectToGoWithOneRelease();
    }
    EXPECT_SOON(CountOf(WM_MOUSEMOVE) > 0, true);
}

TEST_F(HookLibrary, AWindowThatIsGoneEndsTheWatchingAndAnotherOneHasTheNewsOnceItIsNamed) {
    DestroyWindow(window);
    MoveBy(5);
    EXPECT_SOON(Watchers().size(), 0U);
    SetMouseHook(1);
    EXPECT_EQ(Watchers().size(), 0U) << "there is no window to tell";
    OpenTarget();
    SaveSharedData(window);
    SetMouseHook(1);
    const HWND first = window;
    OpenTarget();
    SaveSharedData(window); // while it watches
    DestroyWindow(first);
    ExpectToTellOfAClick(1);
    SaveSharedData(nullptr);
    ExpectToTellOfAClick(0);
    ExpectToGoWithOneRelease();
}

TEST_F(HookLibrary, AThreadThatWasKilledIsReplacedAndHoldsNothing) {
    for (int time = 0; time < 2; ++time) {
        SetMouseHook(1);
        ExpectToTellOfAClick(1);
        TerminateThread(OpenWatcher(), 0);
        EXPECT_SOON(Watchers().size(), 0U);
        ExpectToTellOfAClick(0);
    }
    ExpectToGoWithOneRelease();
}

TEST_F(HookLibrary, TheCodeOfAThreadThatEndsTooLateStaysUntilItHasEnded) {
    const HANDLE watcher = OpenWatcher();
    SuspendThread(watcher);
    SetMouseHook(0);
    FreeLibrary(library);
    EXPECT_TRUE(GetModuleHandleA("quorl.dll")) << "the thread is still in it";
    ResumeThread(watcher);
    EXPECT_EQ(WaitForSingleObject(watcher, 5000), WAIT_OBJECT_0);
    Load();
    ExpectToTellOfAClick(1);
    ExpectToGoWithOneRelease();
}

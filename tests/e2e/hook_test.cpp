// quorl.dll on its own: this program loads it and names a window, as quorl.exe does.
#include "shared/user.h"

#include <tlhelp32.h>

#include <set>
#include <thread>

namespace {

constexpr UINT HOOK_MESSAGE = 1124;
constexpr POINT TARGET = {300, 300}; // over the window

std::vector<WPARAM> Reported; // by the library, in order
std::vector<LONG> MoveTimes;  // when they were posted
int Pressed;                  // presses that reached the window itself

LRESULT CALLBACK TargetWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == HOOK_MESSAGE)
        Reported.push_back(wParam);
    if (message == HOOK_MESSAGE && wParam == WM_MOUSEMOVE)
        MoveTimes.push_back(GetMessageTime());
    Pressed += message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
    return DefWindowProcA(window, message, wParam, lParam);
}

int CountOf(WPARAM message) {
    HandleMessages();
    return static_cast<int>(std::count(Reported.begin(), Reported.end(), message));
}

void MoveBy(int dx) {
    SendMouse(TARGET.x + dx, TARGET.y);
}

// Another program's hook on our messages that does not call CallNextHookEx.
LRESULT CALLBACK HideMessage(int, WPARAM, LPARAM) {
    return 0;
}

class HookLibrary : public testing::Test {
  protected:
    HMODULE library = nullptr;
    HWND window = nullptr;
    std::set<DWORD> threadsBefore;
    void (*SaveSharedData)(HWND) = nullptr;
    void (*SetMouseHook)(int) = nullptr;

    void SetUp() override {
        MoveMouse(TARGET.x, TARGET.y);
        WNDCLASSA description{};
        description.lpfnWndProc = TargetWndProc;
        description.lpszClassName = "HookTarget";
        RegisterClassA(&description);
        threadsBefore = HookThreads();
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
        HandleMessages();
        Reported.clear();
    }

    // Loads the library and sets its hook.
    void Load() {
        library = LoadLibraryA("quorl.dll");
        const auto find = [this]<typename Function>(Function& function, const char* name) {
            function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
        };
        find(SaveSharedData, "SaveSharedData");
        find(SetMouseHook, "SetMouseHook");
        SaveSharedData(window);
        SetMouseHook(1);
    }

    // Without its hook nothing but this program's reference holds the library.
    void ExpectToUnloadAtOneRelease() {
        SetMouseHook(0);
        FreeLibrary(library);
        EXPECT_FALSE(GetModuleHandleA("quorl.dll"));
        Load();
    }

    // The threads that the library has started.
    std::set<DWORD> HookThreads() {
        std::set<DWORD> threads;
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
        THREADENTRY32 entry{};
        entry.dwSize = sizeof entry;
        for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
            if (entry.th32OwnerProcessID == GetCurrentProcessId() &&
                !threadsBefore.contains(entry.th32ThreadID))
                threads.insert(entry.th32ThreadID);
        CloseHandle(snapshot);
        return threads;
    }

    HANDLE OpenHookThread() { return OpenThread(THREAD_ALL_ACCESS, FALSE, *HookThreads().begin()); }

    // Clicks, and expects so many reports of the press.
    void ExpectReportsOfAClick(int times) {
        Reported.clear();
        Click(VK_LBUTTON);
        EXPECT_EVENTUALLY(CountOf(WM_LBUTTONUP) >= times, true);
        Sleep(100);
        EXPECT_EQ(CountOf(WM_LBUTTONDOWN), times);
    }
};

TEST_F(HookLibrary, QueuesOneMoveAndEveryClickForABusyWindow) {
    constexpr int TIMES = 3; // few enough that a slow machine does not take the window for a responding one
    Pressed = 0;
    for (int i = 0; i < TIMES; ++i) { // no message is handled meanwhile
        MoveBy(i);
        Click(VK_LBUTTON);
        Click(VK_RBUTTON);
        TurnWheel();
        TurnWheel();
        MoveBy(-i);
    }
    Sleep(6300); // until the window counts as hung
    // The thread that sends input waits for the hook, and while it waits its windows do not count as hung.
    std::jthread(MoveBy, 20).join();
    Sleep(100);
    EXPECT_EQ(CountOf(WM_MOUSEMOVE), 1);
    EXPECT_EQ(Reported.front(), WPARAM{WM_MOUSEMOVE});
    for (const WPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP})
        EXPECT_EQ(CountOf(message), TIMES) << message;
    EXPECT_EQ(Reported.size(), 1U + 4 * TIMES) << "the wheel is not reported";
    EXPECT_EQ(Pressed, TIMES) << "no input is withheld";
    MoveBy(50);
    EXPECT_EVENTUALLY(CountOf(WM_MOUSEMOVE), 2);
}

TEST_F(HookLibrary, PostsMovesTenMillisecondsApartAndAlwaysTheLast) {
    for (int i = 0; i < 50; ++i) {
        const int before = CountOf(WM_MOUSEMOVE);
        MoveBy(2 * i);
        while (CountOf(WM_MOUSEMOVE) == before)
            YieldProcessor();
        MoveBy(2 * i + 1);
        ASSERT_TRUE(Eventually([&] { return CountOf(WM_MOUSEMOVE) > before + 1; }, true)) << i;
    }
    // Ten ticks of the library's clock, which counts whole milliseconds, can be nine of the messages' clock.
    for (std::size_t i = 1; i < MoveTimes.size(); ++i)
        EXPECT_GE(MoveTimes[i] - MoveTimes[i - 1], 9);
}

// A removed hook cannot be told from one that another program's hook keeps from being called, until it is
// installed again: then it is the first to be called.
TEST_F(HookLibrary, IsInstalledAgainOnRequestAndWhenTheMouseMovesUnseen) {
    for (const bool requested : {true, false}) {
        const HHOOK hiding = SetWindowsHookExA(WH_MOUSE_LL, HideMessage, GetModuleHandleA(nullptr), 0);
        ExpectReportsOfAClick(0);
        if (requested)
            SetMouseHook(1);
        else
            MoveMouse(TARGET.x + 40, TARGET.y);
        Sleep(requested ? 200 : 3500);
        ExpectReportsOfAClick(1);
        UnhookWindowsHookEx(hiding);
    }
}

TEST_F(HookLibrary, ReportsOnceIfSetOrLoadedTwice) {
    for (const std::string calls : {"00", "11", "01", "10", "110", "101"}) {
        SetMouseHook(0);
        for (const char set : calls)
            SetMouseHook(set == '1');
        ExpectReportsOfAClick(calls.back() == '1');
    }
    Load();
    EXPECT_EQ(HookThreads().size(), 1U);
    FreeLibrary(library);
    ExpectReportsOfAClick(1);
    SetMouseHook(0);
    EXPECT_EQ(HookThreads().size(), 0U) << "the thread has ended when the call returns";
    ExpectToUnloadAtOneRelease();
}

TEST_F(HookLibrary, LoadsAndUnloadsWhileTheMouseMoves) {
    const std::jthread moving([](const std::stop_token& stop) {
        for (int i = 0; !stop.stop_requested(); i = (i + 1) % 20) {
            MoveBy(i);
            if (i == 0)
                Sleep(1);
        }
    });
    for (int i = 0; i < 50; ++i) {
        Sleep(i % 2 * 5U);
        HandleMessages();
        ExpectToUnloadAtOneRelease();
    }
    EXPECT_EVENTUALLY(CountOf(WM_MOUSEMOVE) > 0, true);
}

TEST_F(HookLibrary, StopsWithItsWindowAndReportsToTheNextOne) {
    DestroyWindow(window);
    MoveBy(5);
    EXPECT_EVENTUALLY(HookThreads().size(), 0U);
    SetMouseHook(1);
    EXPECT_EQ(HookThreads().size(), 0U) << "there is no window to report to";
    OpenTarget();
    SaveSharedData(window);
    SetMouseHook(1);
    const HWND first = window;
    OpenTarget();
    SaveSharedData(window); // while the hook is set
    DestroyWindow(first);
    ExpectReportsOfAClick(1);
    SaveSharedData(nullptr);
    ExpectReportsOfAClick(0);
    ExpectToUnloadAtOneRelease();
}

TEST_F(HookLibrary, ReplacesAKilledThread) {
    for (int time = 0; time < 2; ++time) {
        SetMouseHook(1);
        ExpectReportsOfAClick(1);
        TerminateThread(OpenHookThread(), 0);
        EXPECT_EVENTUALLY(HookThreads().size(), 0U);
        ExpectReportsOfAClick(0);
    }
    ExpectToUnloadAtOneRelease();
}

} // namespace

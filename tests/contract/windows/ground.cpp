// The ground of the contract tests on Windows: this program, started again, plays the other programs.
#include "contract/ground.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <utility>

// The other program's side.

constexpr DWORD SLOWNESS = 500, LONGEST_PLAY = 60000; // milliseconds

static LRESULT CALLBACK StrangerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER)
        ExitProcess(1);
    if (message == WM_MOVING)
        Sleep(SLOWNESS);
    return DefWindowProcA(window, message, wParam, lParam);
}

static void PlayStranger(const char* title) {
    WNDCLASSA description{};
    description.lpfnWndProc = StrangerProc;
    description.lpszClassName = "Stranger";
    RegisterClassA(&description);
    const HWND window = CreateWindowA("Stranger", title, WS_OVERLAPPEDWINDOW, PLACE.left, PLACE.top, 300, 200,
                                      nullptr, nullptr, nullptr, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    SetTimer(window, 1, LONGEST_PLAY, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}

int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    if (count != 2)
        return RUN_ALL_TESTS();
    PlayStranger(words[1]);
}

// The tests' side.

static std::vector<HANDLE> Programs;

void GroundTearDown() {
    for (const HANDLE program : std::exchange(Programs, {})) {
        TerminateProcess(program, 0);
        WaitForSingleObject(program, 5000);
    }
}

HWND OpenStranger(const char* title, int /*bSlow*/) {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string words = std::string("contract_tests ") + title;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(CreateProcessA(path, words.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr,
                               nullptr, &start, &started));
    Programs.push_back(started.hProcess);
    for (int patience = 0; patience < 500; ++patience) {
        const HWND window = FindWindowA("Stranger", title);
        if (IsWindowVisible(window))
            return window;
        Sleep(20);
    }
    ADD_FAILURE() << "the window \"" << title << "\" of another program did not come";
    return nullptr;
}

void Handle(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    for (DWORD gone = 0; gone <= milliseconds; gone = GetTickCount() - start) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - gone, QS_ALLINPUT);
    }
}

// What the system has kept in memory of the file is written or forgotten first.
static std::string PathOf(const char* file) {
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file);
    return std::string(folder) + "\\" + file;
}

void WriteProfile(const char* file, const std::string& text) {
    std::ofstream(PathOf(file), std::ios::binary) << text;
}

std::string ReadProfile(const char* file) {
    std::ifstream text(PathOf(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(text), {}};
}

// The ground of the contract tests on Windows: this program, started again, plays the other programs.
#include "contract/ground.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>

constexpr char STRANGER[] = "--stranger";
constexpr DWORD SLOWNESS = 500;          // milliseconds
constexpr DWORD UNTIL_KNOWN_HUNG = 5500; // the system's patience is 5 seconds
constexpr DWORD LONGEST_PLAY = 60000;

static std::vector<HANDLE> Programs;

// The other program's side.

static Manner Played;

static LRESULT CALLBACK StrangerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_MOVING)
        return DefWindowProcA(window, message, wParam, lParam);
    switch (Played) {
    case Manner::Rewrites: *reinterpret_cast<RECT*>(lParam) = RewrittenRecord; break;
    case Manner::Slow: Sleep(SLOWNESS); break;
    case Manner::Leaves: ExitProcess(0);
    default: break;
    }
    return TRUE;
}

void CALLBACK EndPlay(HWND, UINT, UINT_PTR, DWORD) {
    ExitProcess(1);
}

int PlayStranger(int count, char** words) {
    if (count != 4 || std::strcmp(words[1], STRANGER))
        return 0;
    Played = static_cast<Manner>(std::atoi(words[2]));
    WNDCLASSA description{};
    description.lpfnWndProc = StrangerProc;
    description.hInstance = Instance();
    description.lpszClassName = "Stranger";
    RegisterClassA(&description);
    const HWND window = CreateWindowExA(0, "Stranger", words[3], WS_OVERLAPPEDWINDOW, PLACE.left, PLACE.top,
                                        PLACE.right - PLACE.left, PLACE.bottom - PLACE.top, nullptr, nullptr,
                                        Instance(), nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    if (Played == Manner::Hung)
        Sleep(LONGEST_PLAY);
    SetTimer(window, 1, LONGEST_PLAY, EndPlay);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 1;
}

// The tests' side.

void GroundTearDown() {
    for (const HANDLE program : Programs) {
        TerminateProcess(program, 0);
        WaitForSingleObject(program, 5000);
        CloseHandle(program);
    }
    Programs.clear();
}

HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

static void StartProgram(std::string words) {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started;
    ASSERT_TRUE(CreateProcessA(path, words.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr,
                               nullptr, &start, &started));
    CloseHandle(started.hThread);
    Programs.push_back(started.hProcess);
}

HWND OpenStranger(const char* title, Manner manner) {
    StartProgram(std::string("contract_tests ") + STRANGER + " " + std::to_string(static_cast<int>(manner)) +
                 " " + title);
    for (int patience = 0; patience < 500; ++patience) {
        const HWND window = FindWindowA("Stranger", title);
        if (window && IsWindowVisible(window)) {
            if (manner == Manner::Hung)
                Sleep(UNTIL_KNOWN_HUNG);
            return window;
        }
        Sleep(20);
    }
    ADD_FAILURE() << "the window \"" << title << "\" of another program did not come";
    return nullptr;
}

DWORD Clock() {
    return GetTickCount();
}

void Pass(DWORD milliseconds) {
    Sleep(milliseconds);
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

void HoldKey(int key, int bDown) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(key);
    input.ki.dwFlags = bDown ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

static std::string PathOf(const char* file) {
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    return std::string(folder) + "\\" + file;
}

void WriteProfile(const char* file, const std::string& text) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file); // forget what was kept in memory of it
    std::ofstream(PathOf(file), std::ios::binary) << text;
}

void RemoveProfile(const char* file) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file);
    DeleteFileA(PathOf(file).c_str());
}

std::vector<std::string> ProfileLines(const char* file) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file);
    std::ifstream text(PathOf(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

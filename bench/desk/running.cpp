// Starts Quorl and opens windows on the in-memory desktop.
#include "running.h"

#include "app/main.h"
#include "core/state.h"

#include "desk/desk.h"

#include <vector>

static std::vector<HWND> Windows;

void RunQuorl() {
    Desk.recording = 0;
    if (!MainWnd)
        StartUp(reinterpret_cast<HINSTANCE>(0x400000));
}

void RunWithWindows(int count) {
    RunQuorl();
    for (; static_cast<int>(Windows.size()) > count; Windows.pop_back())
        KillWindow(Windows.back());
    while (static_cast<int>(Windows.size()) < count) {
        const LONG at = static_cast<LONG>(Windows.size()) % 500;
        Windows.push_back(OpenWindow("program", {at, at / 2, at + 300, at / 2 + 200}));
    }
    Desk.foreground = Windows.empty() ? nullptr : Windows.front();
}

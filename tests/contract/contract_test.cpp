#include "contract/contract_test.h"

#include <algorithm>
#include <utility>

std::vector<MSG> Received;
std::map<UINT, std::function<LRESULT(const MSG&)>> Handlers;

static std::vector<HWND> Own;

static INT_PTR CALLBACK RecordingDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG received{dialog, message, wParam, lParam, 0, {}};
    Received.push_back(received);
    return Handlers.contains(message) ? Handlers[message](received) : FALSE;
}

static LRESULT CALLBACK RecordingWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = RecordingDlgProc(window, message, wParam, lParam);
    return Handlers.contains(message) ? result : DefWindowProcA(window, message, wParam, lParam);
}

void Contract::SetUp() {
    WNDCLASSA description{};
    description.style = CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = RecordingWndProc;
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BACKGROUND);
    description.lpszClassName = "Contract";
    RegisterClassA(&description); // fails if an earlier case did it
}

void Contract::TearDown() {
    Handlers.clear();
    for (const HWND window : std::exchange(Own, {}))
        DestroyWindow(window);
    CloseOthers();
    HandleFor(50);
    Received.clear();
}

void HandleUntil(const std::function<bool()>& happened) {
    for (int i = 0; i < 250 && !happened(); ++i)
        HandleFor(20);
}

Numbers ReceivedOf(std::initializer_list<UINT> messages) {
    Numbers found;
    for (const MSG& received : Received)
        if (std::find(messages.begin(), messages.end(), received.message) != messages.end())
            found.push_back(received.message);
    return found;
}

Numbers Notified(UINT code) {
    Numbers controls;
    for (const MSG& received : std::exchange(Received, {}))
        if (received.message == WM_COMMAND && HIWORD(received.wParam) == code)
            controls.push_back(LOWORD(received.wParam));
    return controls;
}

HWND OpenOwn(DWORD style, DWORD exStyle, const RECT& rect, HWND owner) {
    Own.push_back(CreateWindowExA(exStyle, "Contract", "own", style, rect.left, rect.top,
                                  rect.right - rect.left, rect.bottom - rect.top, owner, nullptr, nullptr,
                                  nullptr));
    return Own.back();
}

HWND OpenTemplate(int id, HWND owner) {
    Own.push_back(CreateDialogParamA(nullptr, MAKEINTRESOURCEA(id), owner, RecordingDlgProc, 77));
    EXPECT_NE(Own.back(), nullptr) << id;
    return Own.back();
}

HWND ShowTemplate(int id) {
    const HWND dialog = OpenTemplate(id);
    ShowWindow(dialog, SW_SHOW);
    SetForegroundWindow(dialog);
    HandleFor(100);
    Received.clear();
    return dialog;
}

static BOOL CALLBACK Collect(HWND window, LPARAM to) {
    reinterpret_cast<std::vector<HWND>*>(to)->push_back(window);
    return TRUE;
}

std::vector<HWND> Order(std::initializer_list<HWND> windows) {
    std::vector<HWND> order;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&order));
    std::erase_if(order, [windows](HWND window) {
        return std::find(windows.begin(), windows.end(), window) == windows.end();
    });
    return order;
}

// Windows and dialogs of this program that keep what arrives.
#include "contract/contract_test.h"

#include <algorithm>
#include <utility>

std::vector<MSG> Seen;
std::map<UINT, std::function<LRESULT(const MSG&)>> Replies;

static std::vector<HWND> Own;

static INT_PTR CALLBACK KeepingDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG arrived{dialog, message, wParam, lParam, 0, {}};
    Seen.push_back(arrived);
    return Replies.contains(message) ? Replies[message](arrived) : FALSE;
}

static LRESULT CALLBACK KeepingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT reply = KeepingDlgProc(window, message, wParam, lParam);
    return Replies.contains(message) ? reply : DefWindowProcA(window, message, wParam, lParam);
}

void Contract::SetUp() {
    WNDCLASSA description{};
    description.style = CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = KeepingProc;
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BACKGROUND);
    description.lpszClassName = "Contract";
    RegisterClassA(&description); // fails when an earlier case has done it
}

void Contract::TearDown() {
    Replies.clear();
    for (const HWND window : std::exchange(Own, {}))
        DestroyWindow(window);
    GroundTearDown();
    Handle(50);
    Seen.clear();
}

Numbers SeenOf(std::initializer_list<UINT> messages) {
    Numbers found;
    for (const MSG& arrived : Seen)
        if (std::find(messages.begin(), messages.end(), arrived.message) != messages.end())
            found.push_back(arrived.message);
    return found;
}

Numbers Told(UINT code) {
    Numbers controls;
    for (const MSG& arrived : std::exchange(Seen, {}))
        if (arrived.message == WM_COMMAND && HIWORD(arrived.wParam) == code)
            controls.push_back(LOWORD(arrived.wParam));
    return controls;
}

HWND OpenOwn(DWORD style, DWORD exStyle, const RECT& place, HWND owner) {
    Own.push_back(CreateWindowExA(exStyle, "Contract", "own", style, place.left, place.top,
                                  place.right - place.left, place.bottom - place.top, owner, nullptr, nullptr,
                                  nullptr));
    return Own.back();
}

HWND OpenTemplate(int id, HWND owner) {
    Own.push_back(CreateDialogParamA(nullptr, MAKEINTRESOURCEA(id), owner, KeepingDlgProc, 77));
    EXPECT_NE(Own.back(), nullptr) << id;
    return Own.back();
}

HWND ShowTemplate(int id) {
    const HWND dialog = OpenTemplate(id);
    ShowWindow(dialog, SW_SHOW);
    SetForegroundWindow(dialog);
    Handle(100);
    Seen.clear();
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

RECT PlaceOf(HWND window) {
    RECT place{};
    EXPECT_TRUE(GetWindowRect(window, &place));
    return place;
}

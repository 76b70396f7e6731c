// Windows of this program that keep what arrives.
#include "contract/contract_test.h"

#include <algorithm>
#include <ostream>

std::vector<MSG> Seen;
std::map<UINT, std::function<LRESULT(const MSG&)>> Replies;

static std::vector<HWND> Own;

static LRESULT CALLBACK KeepingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG arrived{window, message, wParam, lParam, 0, {}};
    Seen.push_back(arrived);
    const auto reply = Replies.find(message);
    return reply == Replies.end() ? DefWindowProcA(window, message, wParam, lParam) : reply->second(arrived);
}

void Contract::SetUp() {
    WNDCLASSA description{};
    description.style = CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = KeepingProc;
    description.hInstance = Instance();
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BACKGROUND);
    description.lpszClassName = "Contract";
    RegisterClassA(&description); // fails when an earlier case has done it
}

void Contract::TearDown() {
    Replies.clear();
    for (const HWND window : Own)
        DestroyWindow(window);
    Own.clear();
    GroundTearDown();
    Handle(50);
    Seen.clear();
}

Kinds SeenOf(std::initializer_list<UINT> messages) {
    Kinds found;
    for (const MSG& arrived : Seen)
        if (std::find(messages.begin(), messages.end(), arrived.message) != messages.end())
            found.push_back(arrived.message);
    return found;
}

HWND OpenOwn(DWORD style, DWORD exStyle, const RECT& place, HWND owner) {
    const HWND window =
        CreateWindowExA(exStyle, "Contract", "own", style, place.left, place.top, place.right - place.left,
                        place.bottom - place.top, owner, nullptr, Instance(), nullptr);
    if (window)
        Own.push_back(window);
    return window;
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

RECT Rect(int left, int top, int right, int bottom) {
    return {left, top, right, bottom};
}

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

void PrintTo(const RECT& rect, std::ostream* out) {
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

// One program, three uses: the end-to-end tests; the windows in them, which Quorl scrolls (--play); the tour
// (--tour).
#include "tour.h"

namespace {

std::string Part;

LRESULT CALLBACK PlayerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP && Part == "hung")
        Sleep(INFINITE);
    if (message == WM_MOVING && Part == "dies")
        ExitProcess(0);
    if (message == WM_MOVING && Part == "rewrites") {
        RECT* const place = reinterpret_cast<RECT*>(lParam);
        place->left += 7;
        place->top += 9;
        return TRUE;
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

// Plays a part until the window is closed: `--play PART TITLE LEFT TOP WIDTH HEIGHT`. Parts: "plain"; "hung"
// (answers nothing once it is on show); "rewrites" (asks in WM_MOVING for 7 pixels more to the right and 9
// down); "dies" (ends in WM_MOVING).
int Play(char** arguments) {
    Part = arguments[0];
    WNDCLASSA type = {};
    type.lpfnWndProc = PlayerProc;
    type.lpszClassName = "Player";
    type.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassA(&type);
    const HWND window = CreateWindowExA(0, "Player", arguments[1], WS_OVERLAPPEDWINDOW, atoi(arguments[2]),
                                        atoi(arguments[3]), atoi(arguments[4]), atoi(arguments[5]), nullptr,
                                        nullptr, nullptr, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    PostMessageA(window, WM_APP, 0, 0);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}

class FreshDesktop : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { CleanDesktop(); }
    void OnTestEnd(const testing::TestInfo&) override { CleanDesktop(); }
};

} // namespace

int main(int count, char** arguments) {
    const std::string use = count > 1 ? arguments[1] : "";
    if (use == "--play" && count == 8)
        return Play(arguments + 2);
    if (use == "--tour")
        return Tour();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new FreshDesktop);
    return RUN_ALL_TESTS();
}

// Plays the windows of other programs, the well-behaved and the difficult ones.
#include "player.h"

#include <cstdlib>
#include <cstring>

namespace {

LRESULT CALLBACK PlainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK HungProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP)
        Sleep(INFINITE);
    return PlainProc(window, message, wParam, lParam);
}

LRESULT CALLBACK RewritingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_MOVING)
        return PlainProc(window, message, wParam, lParam);
    RECT* const place = reinterpret_cast<RECT*>(lParam);
    place->left += 7;
    place->top += 9;
    return TRUE;
}

LRESULT CALLBACK DyingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOVING)
        ExitProcess(0);
    return PlainProc(window, message, wParam, lParam);
}

struct Part {
    const char* name;
    WNDPROC procedure;
};
const Part Parts[] = {
    {"plain",    PlainProc    },
    {"hung",     HungProc     },
    {"rewrites", RewritingProc},
    {"dies",     DyingProc    },
};

const Part* FindPart(const char* name) {
    for (const Part& part : Parts)
        if (strcmp(part.name, name) == 0)
            return &part;
    return nullptr;
}

void RegisterPlayer(const Part& part) {
    WNDCLASSA type = {};
    type.lpfnWndProc = part.procedure;
    type.lpszClassName = "Player";
    type.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassA(&type);
}

} // namespace

int Play(int count, char** arguments) {
    const Part* const part = count == 6 ? FindPart(arguments[0]) : nullptr;
    if (!part)
        return 2;
    RegisterPlayer(*part);
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

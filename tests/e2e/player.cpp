// Plays the windows of other programs, the well-behaved and the difficult ones.
#include "player.h"

#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

WNDPROC ListViewProc;

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

LRESULT CALLBACK ListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == LVM_SCROLL) {
        char title[64];
        snprintf(title, sizeof title, "scrolled by %d, %d", static_cast<int>(wParam),
                 static_cast<int>(lParam));
        SetWindowTextA(window, title);
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return CallWindowProcA(ListViewProc, window, message, wParam, lParam);
}

struct Part {
    const char* name;
    const char* baseClass; // null: a class of our own
    WNDPROC procedure;
};
const Part Parts[] = {
    {"plain",    nullptr,      PlainProc    },
    {"hung",     nullptr,      HungProc     },
    {"rewrites", nullptr,      RewritingProc},
    {"dies",     nullptr,      DyingProc    },
    {"list",     WC_LISTVIEWA, ListProc     },
};

const Part* FindPart(const char* name) {
    for (const Part& part : Parts)
        if (strcmp(part.name, name) == 0)
            return &part;
    return nullptr;
}

const char* ClassOf(const Part& part) {
    if (part.baseClass)
        return part.baseClass;
    WNDCLASSA type = {};
    type.lpfnWndProc = part.procedure;
    type.lpszClassName = "Player";
    type.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassA(&type);
    return type.lpszClassName;
}

} // namespace

int Play(int count, char** arguments) {
    const Part* const part = count == 6 ? FindPart(arguments[0]) : nullptr;
    if (!part)
        return 2;
    InitCommonControls();
    const HWND window = CreateWindowExA(0, ClassOf(*part), arguments[1], WS_OVERLAPPEDWINDOW,
                                        atoi(arguments[2]), atoi(arguments[3]), atoi(arguments[4]),
                                        atoi(arguments[5]), nullptr, nullptr, nullptr, nullptr);
    if (part->baseClass)
        ListViewProc = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(part->procedure)));
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

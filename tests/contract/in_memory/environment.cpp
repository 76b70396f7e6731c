// The contract tests' environment on the in-memory desktop.
#include "contract/environment.h"

#include "desk/desk.h"

HWND OpenOther(const char* title, bool slow) {
    const HWND window = OpenWindow(title, RECT_OF_WINDOWS);
    WindowOf(window).response = slow ? DeskResponse::TimesOut : DeskResponse::Responds;
    return window;
}

void CloseOthers() {}

void HandleFor(DWORD milliseconds) {
    Desk.runUntil = Desk.now + milliseconds;
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}

void WriteProfile(const char* file, const std::string& text) {
    Desk.files[file] = text;
}

std::string ReadProfile(const char* file) {
    return Desk.files[file];
}

void GiveOwnRights(const char* file) {
    Desk.ownRights.insert(file);
}

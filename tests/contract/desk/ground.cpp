// The ground of the contract tests on the in-memory desktop: rows of its record.
#include "contract/ground.h"

#include "desk/desk.h"

void GroundTearDown() {}

HWND OpenStranger(const char* title, int bSlow) {
    const HWND window = OpenWindow(title, PLACE, "Stranger");
    RowOf(window).answer = bSlow ? DeskAnswer::TimesOut : DeskAnswer::Answers;
    return window;
}

void Handle(DWORD milliseconds) {
    Desk.until = Desk.now + milliseconds;
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

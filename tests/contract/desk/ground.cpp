// The ground of the contract tests on the in-memory desktop: rows of its record.
#include "contract/ground.h"

#include "desk/desk.h"

#include <sstream>

void GroundTearDown() {}

HINSTANCE Instance() {
    return reinterpret_cast<HINSTANCE>(UINT_PTR{0x400000});
}

HWND OpenStranger(const char* title, Manner manner) {
    const HWND window = OpenWindow(title, PLACE, "Stranger");
    DeskWindow& row = RowOf(window);
    switch (manner) {
    case Manner::Answers: break;
    case Manner::Rewrites:
        row.bRewrites = 1;
        row.rewritten = RewrittenRecord;
        break;
    case Manner::Slow: row.answer = DeskAnswer::TimesOut; break;
    case Manner::Hung: row.answer = DeskAnswer::Hung; break;
    case Manner::Leaves: row.answer = DeskAnswer::Leaves; break;
    }
    return window;
}

DWORD Clock() {
    return Desk.now;
}

void Pass(DWORD milliseconds) {
    Desk.now += milliseconds;
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

void RemoveProfile(const char* file) {
    Desk.files.erase(file);
}

std::vector<std::string> ProfileLines(const char* file) {
    std::istringstream text(Desk.files[file]);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!line.empty())
            lines.push_back(line);
    }
    return lines;
}

int PlayStranger(int, char**) {
    return 0;
}

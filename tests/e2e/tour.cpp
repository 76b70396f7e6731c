// Shows what Quorl does, on a screen that nobody needs to look at.
#include "tour.h"

#include "user.h"

#include <cstdarg>
#include <cstdio>

namespace {

int Surprises; // steps that did not end as announced

struct Exhibit {
    const char* name;
    const char* command;
    const char* windowClass;
    int left, top;
    HWND window;
};
Exhibit Exhibits[] = {
    {"notepad",  "notepad",  "Notepad",  140, 230, nullptr},
    {"winemine", "winemine", "WineMine", 760, 90,  nullptr},
    {"clock",    "clock",    "CLClass",  780, 380, nullptr},
};

void Say(const char* format, ...) {
    va_list values;
    va_start(values, format);
    vprintf(format, values);
    va_end(values);
    printf("\n");
    fflush(stdout);
}

void TakePicture(const char* name) {
    char line[16];
    Sleep(500); // the programs paint at their own pace
    Say("picture %s", name);
    if (!fgets(line, sizeof line, stdin))
        ++Surprises;
}

void Show(Exhibit& exhibit) {
    exhibit.window = OpenProgram(exhibit.command, exhibit.windowClass);
    SetWindowPos(exhibit.window, nullptr, exhibit.left, exhibit.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const Place place = PlaceOf(exhibit.window);
    Say("%s stands at %d, %d", exhibit.name, place.left, place.top);
}

// Presses the keys and tells where the windows went, which should be by (dx, dy).
void Press(const char* name, std::initializer_list<WORD> keys, int dx, int dy) {
    Place before[std::size(Exhibits)];
    for (size_t i = 0; i < std::size(Exhibits); ++i)
        before[i] = PlaceOf(Exhibits[i].window);
    PressKeys(keys);
    std::string report;
    for (size_t i = 0; i < std::size(Exhibits); ++i) {
        const HWND window = Exhibits[i].window;
        const Place wanted = Moved(before[i], dx, dy);
        const Place now = Soon([window] { return PlaceOf(window); }, wanted);
        char line[128];
        snprintf(line, sizeof line, "%s %s %d, %d to %d, %d", i ? "," : "", Exhibits[i].name, before[i].left,
                 before[i].top, now.left, now.top);
        report += line;
        Surprises += now != wanted;
    }
    Say("%s:%s", name, report.c_str());
}

void Quit(HANDLE quorl) {
    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    const HWND box = WaitForBox("QUIT?");
    SetForegroundWindow(box);
    PressKeys({'Y'});
    Surprises += WaitForExit(quorl) != 0;
    for (const Exhibit& exhibit : Exhibits) {
        const Place place = PlaceOf(exhibit.window);
        const bool inReach =
            place.left >= 0 && place.left < SCREEN_W && place.top >= 0 && place.top < SCREEN_H;
        Say("Quorl has ended and brought %s back to %d, %d", exhibit.name, place.left, place.top);
        Surprises += !inReach;
    }
}

} // namespace

int Tour() {
    CleanDesktop();
    for (Exhibit& exhibit : Exhibits)
        Show(exhibit);
    const HANDLE quorl = LaunchQuorl();
    if (!Soon([] { return QuorlWindow() && IsWindowVisible(QuorlWindow()); }, true)) {
        Say("Quorl does not start");
        return 1;
    }
    const Place map = PlaceOf(QuorlWindow());
    Say("Quorl stands at %d, %d: 4 x 2 screens on a map of %d x %d", map.left, map.top, map.right - map.left,
        map.bottom - map.top);
    TakePicture("1-start");
    Press("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, -SCREEN_W, 0);
    TakePicture("2-one-screen-right");
    Press("Ctrl+Alt+Down", {VK_CONTROL, VK_MENU, VK_DOWN}, 0, -SCREEN_H);
    Press("Ctrl+Alt+Up", {VK_CONTROL, VK_MENU, VK_UP}, 0, SCREEN_H);
    Press("Ctrl+Alt+Left", {VK_CONTROL, VK_MENU, VK_LEFT}, SCREEN_W, 0);
    for (int i = 0; i < 3; ++i)
        Press("Ctrl+Alt+Shift+Right", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_RIGHT}, -5, 0);
    TakePicture("3-a-little-right");
    Press("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, -SCREEN_W + 15, 0);
    Quit(quorl);
    CleanDesktop();
    return Surprises ? 1 : 0;
}

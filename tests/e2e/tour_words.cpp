// What the chapters of the tour have in common.
#include "tour_words.h"

#include <cstdarg>

Exhibit Exhibits[NUM_EXHIBITS] = {
    {"notepad",  "notepad",  "Notepad",         {60, 250, 560, 640},    nullptr},
    {"winemine", "winemine", "WineMine",        {640, 330, 640, 330},   nullptr},
    {"clock",    "clock",    "CLClass",         {700, 80, 920, 300},    nullptr},
    {"regedit",  "regedit",  "RegEdit_RegEdit", {1330, 320, 1930, 670}, nullptr},
};
bool bPictures;

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
    if (!bPictures)
        return;
    Sleep(500); // the programs paint at their own pace
    Say("picture %s", name);
    Insist(fgets(line, sizeof line, stdin) != nullptr, "an answer from who takes the pictures");
}

void SeeView(const char* act, LONG x, LONG y) {
    std::string report;
    for (const Exhibit& exhibit : Exhibits) {
        const Place now = Soon([&] { return PlaceOf(exhibit.window); }, Moved(exhibit.home, -x, -y));
        report += std::string(report.empty() ? "" : "; ") + exhibit.name + " at " + std::to_string(now.left) +
                  ", " + std::to_string(now.top);
    }
    Say("  %s: %s", act, report.c_str());
    Insist(StandAt(x, y), "the view at " + std::to_string(x) + ", " + std::to_string(y));
}

void SeeKeys(const char* act, std::initializer_list<WORD> keys, LONG x, LONG y) {
    Insist(PressKeys(keys), act);
    SeeView(act, x, y);
}

void ShowPlace(const char* act, const char* name, HWND window) {
    const Place now = PlaceOf(window);
    Say("  %s: %s is at %d, %d and %d x %d in size", act, name, now.left, now.top, now.right - now.left,
        now.bottom - now.top);
}

bool StandAt(LONG x, LONG y) {
    return std::all_of(std::begin(Exhibits), std::end(Exhibits), [&](const Exhibit& exhibit) {
        return PlaceOf(exhibit.window) == Moved(exhibit.home, -x, -y);
    });
}

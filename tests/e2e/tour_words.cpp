// What the chapters of the tour have in common.
#include "tour_words.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

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

static std::string Standing(const Exhibit& exhibit, const Place& place) {
    char text[64];
    snprintf(text, sizeof text, "%s at %d, %d", exhibit.name, place.left, place.top);
    return text;
}

void SeeView(const char* act, LONG x, LONG y) {
    std::string report, wanted;
    for (const Exhibit& exhibit : Exhibits) {
        const Place place = Moved(exhibit.home, -x, -y);
        const Place now = Soon([&] { return PlaceOf(exhibit.window); }, place);
        report += (report.empty() ? "" : "; ") + Standing(exhibit, now);
        if (now != place)
            wanted += Standing(exhibit, place) + " ";
    }
    Say("  %s: %s", act, report.c_str());
    Insist(wanted.empty(), wanted);
}

bool StandAt(LONG x, LONG y) {
    return std::all_of(std::begin(Exhibits), std::end(Exhibits), [&](const Exhibit& exhibit) {
        return PlaceOf(exhibit.window) == Moved(exhibit.home, -x, -y);
    });
}

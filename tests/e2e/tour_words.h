// What the chapters of the tour have in common: the programs on show, telling, and seeing whether it came.
#pragma once

#include "user.h"

#include <vector>

struct Chapter {
    const char* title;
    void (*play)();
};

// A walk through the dialogs. Each chapter begins and ends with the view at the desktop's first screen.
extern const std::vector<Chapter> DialogChapters;

struct Exhibit {
    const char* name;
    const char* command;
    const char* windowClass;
    Place home; // where it stands while the view is at 0, 0; no width: as it comes
    HWND window;
};
enum ExhibitRow { NOTEPAD, WINEMINE, CLOCK, REGEDIT, NUM_EXHIBITS };
extern Exhibit Exhibits[NUM_EXHIBITS];

// Tells one line.
void Say(const char* format, ...);

// Asks who runs the tour for a picture of the screen, and waits until it is taken; not in a test.
extern bool bPictures;
void TakePicture(const char* name);

// Tells where all programs stand, which should be as the view at this place of the desktop shows them.
void SeeView(const char* act, LONG x, LONG y);
bool StandAt(LONG x, LONG y);

struct KeyStep {
    const char* name;
    std::initializer_list<WORD> keys;
    LONG x, y; // where the view is then
};
template <std::size_t COUNT>
void SeeKeys(const KeyStep (&steps)[COUNT]) {
    for (const KeyStep& step : steps) {
        Insist(PressKeys(step.keys), step.name);
        SeeView(step.name, step.x, step.y);
    }
}

// What the chapters of the tour have in common: the programs on show, telling, and seeing whether it came.
#pragma once

#include "user.h"

// A guided tour: real programs, real keys, and what they did, in numbers read back from the windows. Tells
// each step in one line on the standard output. A line "picture NAME" asks the caller for a picture of the
// screen; the tour goes on when it reads a line. Returns the exit code: 0 if everything came as announced.
// Without pictures its parts are tests.
int Tour();

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

// Tells where all programs stand, which should be as the view at this place of the desktop shows them. The
// same after the keys are pressed.
void SeeView(const char* act, LONG x, LONG y);
void SeeKeys(const char* act, std::initializer_list<WORD> keys, LONG x, LONG y);
bool StandAt(LONG x, LONG y);
void ShowPlace(const char* act, const char* name, HWND window);

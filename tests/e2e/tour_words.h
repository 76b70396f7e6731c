// What the chapters of the tour have in common: the programs on show, telling, and seeing whether it came.
#pragma once

#include "user.h"

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

// Ends the tour where something did not come as announced.
void Insist(bool came, const char* wanted);

// Asks who runs the tour for a picture of the screen, and waits until it is taken.
void TakePicture(const char* name);

// Tells where all programs stand, which should be as the view at this place of the desktop shows them.
void SeeView(const char* act, LONG x, LONG y);

// Does it again while it has not come: a click is lost now and then under Wine on a busy machine.
template <typename Came, typename Act>
void Until(Came came, Act act) {
    for (int tries = 0; tries < 5 && !came(); ++tries) {
        act();
        for (int wait = 0; wait < 100 && !came(); ++wait)
            Sleep(20);
    }
}

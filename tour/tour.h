// What the chapters share: demo programs, output, pictures, and checks that end the tour if something is
// missing.
#pragma once

#include "dialog_user.h"

struct Chapter {
    const char* title;
    void (*run)();
};

// First keys, map, menu, regions and mouse; then the dialogs, where each chapter begins and ends with the
// view at the desktop's first screen.
extern const std::vector<Chapter> DesktopChapters, DialogChapters;
void QuitAtTheEnd();

struct DemoProgram {
    const char* name;
    const char* command;
    const char* windowClass;
    RECT home; // its rect while the view is at 0, 0; without a width: its own size
    HWND window;
};
enum DemoIndex { NOTEPAD, WINEMINE, CLOCK, REGEDIT, NUM_PROGRAMS };
extern DemoProgram Programs[NUM_PROGRAMS];

// Prints one line.
void Say(const char* format, ...);

// Asks the caller for a picture of the screen and waits until it is taken.
void TakePicture(const char* name);

// Prints where all programs are, and requires what the view at this point of the desktop shows of them; or
// presses keys first.
void SeeView(const char* step, LONG x, LONG y);
void SeeKeys(const char* step, std::initializer_list<WORD> keys, LONG x, LONG y);
bool ViewIsAt(LONG x, LONG y);
void SayRect(const char* step, const char* name, HWND window);

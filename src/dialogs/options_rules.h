// What the Options dialog makes of the numbers typed into it. All of it is pure; the numbers are pixels.
#pragma once

// A desktop's width or height as typed, clamped to 0 to LARGEST_DESKTOP.
int ClampSize(int shown);

// The size after adding (`step` 1) or removing (-1) one screen: a multiple of the screen, at least one, but
// at most LARGEST_DESKTOP. Rounds down first.
int StepSize(int shown, int screen, int step);

// What the edit boxes show. The border is shown as one less than it is.
struct OptionNumbers {
    int height, width; // of the desktop
    int border, maxscroll, minscroll, mousescroll;
};

// The border as the dialog shows it.
int ShownBorder(int border);

// What OK stores, border included. The desktop is at least one screen; maxscroll is at least the old
// `minscroll`, and the new minscroll is at most maxscroll.
OptionNumbers AcceptNumbers(const OptionNumbers& shown, int screenW, int screenH, int minscroll);

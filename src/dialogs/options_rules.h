// What the Options dialog makes of the numbers that are typed into it. All of it is pure, in int32, and
// defined for every input; the numbers are pixels.
#pragma once

// Of a desktop's width or height as typed: 0 to LARGEST_DESKTOP.
int LimitedSize(int shown);

// One screen more (`step` 1) or less (-1), whole screens of `screen` each: at least one, at most
// LARGEST_DESKTOP, which need not be a multiple. What stands over a whole screen goes first.
int SizeByScreens(int shown, int screen, int step);

// What the edit boxes show. The border is shown as one less than it is.
struct OptionNumbers {
    int height, width; // of the desktop
    int border, maxscroll, minscroll, mousescroll;
};

// What OK takes over for what is shown: at least one screen each way, steps from 1 to LARGEST_DESKTOP.
// `minscroll` is the one in force, which the new `maxscroll` must not fall below; the new `minscroll` then
// gives way to that. The border is the real one here.
OptionNumbers AcceptedNumbers(const OptionNumbers& shown, int screen_w, int screen_h, int minscroll);

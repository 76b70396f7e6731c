// What the Options dialog makes of the numbers typed into it.
#include "dialogs/options_rules.h"

#include "core/arithmetic.h"
#include "core/state.h"

#include <algorithm>

int ClampSize(int shown) {
    return std::clamp(shown, 0, LARGEST_DESKTOP);
}

int StepSize(int shown, int screen, int step) {
    const int screens = std::max(1, Quotient(shown, screen) + step);
    return static_cast<int>(std::min(1LL * screens * screen, 0LL + LARGEST_DESKTOP));
}

static const int BORDER_OFFSET = 1; // the border is this much more than the dialog shows

int ShownBorder(int border) {
    return border - BORDER_OFFSET;
}

OptionNumbers AcceptNumbers(const OptionNumbers& shown, int screenW, int screenH, int minscroll) {
    OptionNumbers accepted{};
    accepted.height = std::max(shown.height, screenH);
    accepted.width = std::max(shown.width, screenW);
    accepted.border = ClampOption(OPTION_BORDER, shown.border) + BORDER_OFFSET;
    accepted.maxscroll = std::max(ClampOption(OPTION_MAXSCROLL, shown.maxscroll), minscroll);
    accepted.minscroll = std::min(ClampOption(OPTION_MINSCROLL, shown.minscroll), accepted.maxscroll);
    accepted.mousescroll = ClampOption(OPTION_MOUSESCROLL, shown.mousescroll);
    return accepted;
}

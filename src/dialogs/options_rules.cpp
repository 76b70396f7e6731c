// The rules of the Options dialog.
#include "dialogs/options_rules.h"

#include "core/arithmetic.h"
#include "core/state.h"

#include <algorithm>

static const int MOST_SHOWN_BORDER = 10;

int LimitedSize(int shown) {
    return std::clamp(shown, 0, LARGEST_DESKTOP);
}

int SizeByScreens(int shown, int screen, int step) {
    const int screens = std::max(1, Quotient(shown, screen) + step);
    return std::min(screens * screen, LARGEST_DESKTOP);
}

static int LimitedStep(int shown) {
    return std::clamp(shown, 1, LARGEST_DESKTOP);
}

OptionNumbers AcceptedNumbers(const OptionNumbers& shown, int screen_w, int screen_h, int minscroll) {
    OptionNumbers taken{};
    taken.height = std::max(shown.height, screen_h);
    taken.width = std::max(shown.width, screen_w);
    taken.border = std::clamp(shown.border, 1, MOST_SHOWN_BORDER) + 1;
    taken.maxscroll = std::max(LimitedStep(shown.maxscroll), minscroll);
    taken.minscroll = std::min(LimitedStep(shown.minscroll), taken.maxscroll);
    taken.mousescroll = LimitedStep(shown.mousescroll);
    return taken;
}

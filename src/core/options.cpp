#include "core/options.h"

#include <algorithm>
#include <climits>

OptionsRecord Options;

static const int ALL_BITS = -1;

// A border that reaches the middle of the screen would make every mouse move scroll. Steps beyond the largest
// desktop would overflow window coordinates. The others are valid for every number.
// clang-format off
const OptionDef OptionDefs[NUM_OPTIONS] = {
    // key                     field                                   start  max              userMin  userMax          storedBits
    {"border",                 &OptionsRecord::border,                 5,     100,             1,       10,              ALL_BITS},
    {"maxscroll",              &OptionsRecord::maxscroll,              100,   LARGEST_DESKTOP, 1,       LARGEST_DESKTOP, ALL_BITS},
    {"minscroll",              &OptionsRecord::minscroll,              5,     LARGEST_DESKTOP, 1,       LARGEST_DESKTOP, ALL_BITS},
    {"mousescroll",            &OptionsRecord::mousescroll,            800,   LARGEST_DESKTOP, 1,       LARGEST_DESKTOP, ALL_BITS},
    {"alpha",                  &OptionsRecord::alpha,                  255,   INT_MAX,         10,      255,             255},
    {"mousescroll_type",       &OptionsRecord::mousescroll_type,       3,     INT_MAX,         0,       3,               ALL_BITS},
    {"mousescroll_delay",      &OptionsRecord::mousescroll_delay,      0,     INT_MAX,         0,       3,               ALL_BITS},
    {"mousescroll_delay_time", &OptionsRecord::mousescroll_delay_time, 100,   INT_MAX,         INT_MIN, INT_MAX,         ALL_BITS},
};
// clang-format on

void ResetOptions() {
    for (const OptionDef& def : OptionDefs)
        Options.*def.field = def.start;
    Options.hook_present = 0;
}

int ClampOption(OptionId option, int number) {
    return std::clamp(number, OptionDefs[option].userMin, OptionDefs[option].userMax);
}

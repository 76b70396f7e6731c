// The numeric settings: where they are kept, and everything constant about each.
#pragma once

constexpr int LARGEST_DESKTOP = 32000; // pixels, for Quorl.right and Quorl.bottom

// mousescroll_type: what an edge scroll moves by. Any other number is 10 pixels.
enum EdgeDistance { EDGE_BY_MIN, EDGE_BY_MAX, EDGE_BY_MOUSESCROLL, EDGE_BY_SCREEN };

// mousescroll_delay: when an edge scroll starts. Any other number is at once.
enum EdgeDelay { EDGE_AT_ONCE, EDGE_ON_LEFT_CLICK, EDGE_ON_RIGHT_CLICK, EDGE_AFTER_DELAY };

struct OptionsRecord {
    int border;      // pixels: the band along the screen's edge, and the inset of a window pulled back
    int maxscroll;   // pixels: the step that actions call <max>
    int minscroll;   // pixels: the step that actions call <min>
    int mousescroll; // pixels: the edge-scroll step of mousescroll_type 2
    int mousescroll_delay_time; // milliseconds before a delayed edge scroll
    int alpha;                  // opacity of the map; only the low 8 bits count
    int mousescroll_type;       // an EdgeDistance
    int mousescroll_delay;      // an EdgeDelay
    int hook_present;           // 1 if the hook library is loaded; never stored
};

extern OptionsRecord Options;

enum OptionId {
    OPTION_BORDER,
    OPTION_MAXSCROLL,
    OPTION_MINSCROLL,
    OPTION_MOUSESCROLL,
    OPTION_ALPHA,
    OPTION_MOUSESCROLL_TYPE,
    OPTION_MOUSESCROLL_DELAY,
    OPTION_MOUSESCROLL_DELAY_TIME,
    NUM_OPTIONS
};

struct OptionDef {
    const char* key; // in the settings file
    int OptionsRecord::*field;
    int start;            // before any settings are loaded
    int max;              // a larger number in the settings file is read as this; the minimum is 0
    int userMin, userMax; // limits in dialogs and actions; Options shows a border as one less than it is
    int storedBits;       // mask of the bits that the settings file stores
};

// In the order of the settings file.
extern const OptionDef OptionDefs[NUM_OPTIONS];

void ResetOptions();

// Clamps to the limits of dialogs and actions.
int ClampOption(OptionId option, int number);

// The frequent deeds of Quorl, each with the bare calls that it is measured against.
#pragma once

constexpr int TICKS = 12; // of the refresh timer, from one rebuilding of the window table to the next

struct Deed {
    const char* name;
    void (*quorl)();
    void (*bare)();
    int times;      // how often the deed is done in one run of it
    int bSameCalls; // the bare calls are all that Quorl makes, not only those that it cannot do without
};

extern const Deed Deeds[];
extern const int num_deeds;

// Has the rows of a running Quorl set as the deeds need them: edge scrolling is armed, and no strip tells
// what happens. Then looks at the desktop as it is now.
void PrepareDeeds();

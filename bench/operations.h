// Frequent operations of Quorl, each with the bare platform calls it is compared with.
#pragma once

constexpr int TICKS = 12; // of the refresh timer, from one rebuild of the window table to the next

struct Operation {
    const char* name;
    void (*quorl)();
    void (*bare)();
    int times;      // repetitions in one run
    bool sameCalls; // `bare` makes every call Quorl makes, not only the indispensable ones
};

extern const Operation Operations[];
extern const int num_operations;

// Sets the options of a running Quorl: edge scrolling armed, status strip off. Then records the present
// desktop.
void PrepareOperations();

// Frequent operations allocate no memory. Every allocation, of operator new and of the C library as well,
// ends in `malloc`, which counts here.
#include "mouse/hook_mouse.h"
#include "mouse/map_hover.h"
#include "scroll/refresh.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

static int Allocations;

// The C library's own.
void* SystemMalloc(std::size_t size) __asm__("__libc_malloc");

extern "C" void* malloc(std::size_t size) {
    ++Allocations;
    return SystemMalloc(size);
}

static void RunFrequentOperations() {
    ScrollView(MainWnd, VDesk.left ? -1024 : 1024, 0, SV_RELATIVE, 0);
    RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
    Repaint(MainWnd);
    for (const LONG x : {512, 1023, 0}) {
        Desk.cursor = {x, 384};
        OnHookMouse(MainWnd, WM_MOUSEMOVE);
        OnToolwinMouseMove(MainWnd, x ? 0 : 1, 20, 0);
    }
}

// The in-memory desktop does not record meanwhile, so it allocates nothing either.
TEST_F(RunningQuorl, FrequentOperationsAllocateNothing) {
    EXPECT_GT(Allocations, 0) << "they are not counted";
    for (int i = 0; i < 100; ++i)
        OpenWindow("program", {i, i, i + 300, i + 200});
    Desk.foreground = Desk.zOrder.front();
    AddRegion("home", 1024, 0);
    AddRegion("work", 1024, 0);
    for (const ActionId id : {ACTION_FOLLOW_MOUSE, ACTION_FOLLOW_ACTIVE})
        ActionTable[id].value = 1;
    Desk.recording = 0;
    int before = 0;
    for (int round = 0; round < 264; ++round) {
        if (round == 24) // the first rounds create what stays, such as the status strip
            before = Allocations;
        RunFrequentOperations();
    }
    EXPECT_EQ(Allocations, before);
}

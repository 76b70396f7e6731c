// Nothing that happens again and again all day takes memory from the heap. Every road to it, also that of
// operator new and of the C library, ends in `malloc`, and here it counts.
#include "mouse/hook_mouse.h"
#include "mouse/map_hover.h"
#include "scroll/refresh.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

static int Allocations;

// The C library's own, under a name that a program may use.
void* SystemMalloc(std::size_t size) __asm__("__libc_malloc");

extern "C" void* malloc(std::size_t size) {
    ++Allocations;
    return SystemMalloc(size);
}

static void DoAllThatIsDoneOften() {
    ScrollView(MainWnd, VDesk.left ? -1024 : 1024, 0, SV_RELATIVE, 0);
    RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
    RefreshTimer(MainWnd, WM_TIMER, FLASH_TIMER, 0);
    Repaint(MainWnd);
    for (const LONG x : {512, 1023, 0}) {
        Desk.cursor = {x, 384};
        OnHookMouse(MainWnd, WM_MOUSEMOVE);
        OnToolwinMouseMove(MainWnd, x ? 0 : 1, 20, 0);
    }
}

// The in-memory desktop writes nothing down meanwhile, so it takes no memory either and nothing need be told
// apart.
TEST_F(RunningQuorl, TakesNothingFromTheHeapInWhatItDoesAllDay) {
    EXPECT_GT(Allocations, 0) << "they are counted";
    for (int i = 0; i < 100; ++i)
        OpenWindow("some program", {i, i, i + 300, i + 200});
    Desk.foreground = Desk.order.front();
    for (const char* region : {"home", "work"})
        Mark(region, 1024, 0);
    for (const ActionId row : {ROW_FOLLOW_MOUSE, ROW_TOOLTIP, ROW_QUICK_REDRAW, ROW_KEEP_ACTIVE_IN_VIEW})
        ActionTable[row].value = 1;
    Desk.bTrace = 0;
    int before = 0;
    for (int time = 0; time < 264; ++time) {
        if (time == 24) // the first times make what then stays, as the strip's window
            before = Allocations;
        DoAllThatIsDoneOften();
    }
    EXPECT_EQ(Allocations, before);
}

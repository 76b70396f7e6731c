// Nothing that happens again and again all day takes memory from the heap. Every road to it ends in `malloc`
// or one of its sisters, also that of operator new and of the C library, and here they count.
#include "actions/action_table.h"
#include "core/state.h"
#include "mouse/hook_mouse.h"
#include "mouse/map_hover.h"
#include "scroll/refresh.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

#include <cstdlib>
#include <cstring>

static int Allocations;

// The C library's own, under names that a program may use.
void* SystemMalloc(std::size_t size) __asm__("__libc_malloc");
void* SystemCalloc(std::size_t count, std::size_t size) __asm__("__libc_calloc");
void* SystemRealloc(void* block, std::size_t size) __asm__("__libc_realloc");

extern "C" {
void* malloc(std::size_t size) {
    ++Allocations;
    return SystemMalloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    ++Allocations;
    return SystemCalloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    ++Allocations;
    return SystemRealloc(block, size);
}
}

namespace {

void Scroll() {
    const int way = VDesk.left ? -ScreenW() : ScreenW();
    EXPECT_TRUE(ScrollView(MainWnd, way, 0, SV_RELATIVE, 0));
}

void Tick() {
    RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, 0);
}

void TickOfThePulse() {
    RefreshTimer(MainWnd, WM_TIMER, FLASH_TIMER, 0);
}

void Paint() {
    Repaint(MainWnd);
}

void MoveInTheMiddle() {
    Desk.cursor = {512, 384};
    OnHookMouse(MainWnd, WM_MOUSEMOVE);
}

void MoveAtBothEdges() {
    for (const LONG x : {1023, 0}) {
        Desk.cursor = {x, 384};
        OnHookMouse(MainWnd, WM_MOUSEMOVE);
    }
}

void MoveOverTheMap() {
    static int x = 1;
    OnToolwinMouseMove(MainWnd, x ^= 1, 20, 0);
}

struct Deed {
    const char* name;
    void (*does)();
};

const Deed Deeds[] = {
    {"a scroll",                  Scroll         },
    {"a refresh tick",            Tick           },
    {"a tick of the pulse",       TickOfThePulse },
    {"a paint",                   Paint          },
    {"a mouse move",              MoveInTheMiddle},
    {"mouse moves at the edges",  MoveAtBothEdges},
    {"a mouse move over the map", MoveOverTheMap },
};

int AllocationsOf(void (*does)(), int times) {
    const int before = Allocations;
    for (int i = 0; i < times; ++i)
        does();
    return Allocations - before;
}

// The in-memory desktop writes nothing down meanwhile, so it takes no memory either and nothing need be told
// apart.
TEST_F(RunningQuorl, TakesNothingFromTheHeapInWhatItDoesAllDay) {
    for (int i = 0; i < 100; ++i)
        OpenWindow("some program", {i, i, i + 300, i + 200});
    Desk.foreground = Desk.order.front();
    for (const char* region : {"home", "work"})
        Mark(region, 1024, 0);
    for (const ActionId row : {ROW_FOLLOW_MOUSE, ROW_TOOLTIP, ROW_QUICK_REDRAW, ROW_KEEP_ACTIVE_IN_VIEW})
        ActionTable[row].value = 1;
    Desk.bTrace = 0;
    for (const Deed& deed : Deeds) {
        AllocationsOf(deed.does, 24); // the first times make what then stays, as the strip's window
        EXPECT_EQ(AllocationsOf(deed.does, 240), 0) << deed.name;
    }
}

TEST(Allocations, AreCountedWhicheverRoadTheyTake) {
    const int before = Allocations;
    ::operator delete(::operator new(8));
    const int ofOperatorNew = Allocations - before;
    std::free(strdup("text"));
    EXPECT_EQ(ofOperatorNew, 1);
    EXPECT_EQ(Allocations - before, 2) << "the C library's own";
}

} // namespace

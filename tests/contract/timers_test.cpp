// Timers: their callbacks, their order, replacing and ending them.
#include "contract/contract_test.h"

namespace {

using Timers = Contract;

struct Tick {
    HWND window;
    UINT message;
    UINT_PTR id;
};

std::vector<Tick> Ticks;

void CALLBACK Keep(HWND window, UINT message, UINT_PTR id, DWORD) {
    Ticks.push_back({window, message, id});
}

int TicksOf(UINT_PTR id) {
    int count = 0;
    for (const Tick& tick : Ticks)
        count += tick.id == id;
    return count;
}

TEST_F(Timers, ACallbackIsToldItsWindowAndId) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_NE(SetTimer(window, 2000, 30, Keep), 0U);
    Handle(50);
    ASSERT_EQ(Ticks.size(), 1U);
    EXPECT_EQ(Ticks[0].window, window);
    EXPECT_EQ(Ticks[0].message, WM_TIMER);
    EXPECT_EQ(Ticks[0].id, 2000U);
    EXPECT_TRUE(SeenOf({WM_TIMER}).empty()) << "with a callback the procedure hears nothing";
}

TEST_F(Timers, WithoutACallbackTheProcedureHearsIt) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_NE(SetTimer(window, 7, 30, nullptr), 0U);
    Handle(50);
    ASSERT_EQ(SeenOf({WM_TIMER}).size(), 1U);
    EXPECT_EQ(Seen.back().wParam, 7U);
}

TEST_F(Timers, EachGoesAtItsOwnPaceAndTheEarlierDueComesFirst) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    SetTimer(window, 1, 150, Keep);
    SetTimer(window, 2, 100, Keep);
    Handle(220);
    std::vector<UINT_PTR> order;
    for (const Tick& tick : Ticks)
        order.push_back(tick.id);
    EXPECT_EQ(order, (std::vector<UINT_PTR>{2, 1, 2}));
}

TEST_F(Timers, OneThatIsLateTicksOnceNotForEachPeriodMissed) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    SetTimer(window, 1, 100, Keep);
    Pass(350);
    Handle(40);
    EXPECT_EQ(Ticks.size(), 1U);
}

TEST_F(Timers, SettingOneAgainReplacesPeriodAndCallback) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    SetTimer(window, 1, 60, nullptr);
    Pass(40);
    EXPECT_NE(SetTimer(window, 1, 60, Keep), 0U);
    Handle(40);
    EXPECT_TRUE(Ticks.empty()) << "its time starts anew";
    Handle(40);
    EXPECT_EQ(TicksOf(1), 1);
    EXPECT_TRUE(SeenOf({WM_TIMER}).empty());
}

TEST_F(Timers, KillingTellsWhetherThereWasOne) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    SetTimer(window, 1, 20, Keep);
    EXPECT_TRUE(KillTimer(window, 1));
    EXPECT_FALSE(KillTimer(window, 1));
    EXPECT_FALSE(KillTimer(window, 99));
    Handle(50);
    EXPECT_TRUE(Ticks.empty());
}

TEST_F(Timers, TimersEndWithTheirWindow) {
    Ticks.clear();
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    SetTimer(window, 1, 20, Keep);
    DestroyWindow(window);
    Handle(50);
    EXPECT_TRUE(Ticks.empty());
}

} // namespace

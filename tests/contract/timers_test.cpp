// Timers: their callbacks, replacing and ending them.
#include "contract/contract_test.h"

namespace {

std::vector<UINT_PTR> Ticks; // ids

void CALLBACK Keep(HWND, UINT, UINT_PTR id, DWORD) {
    Ticks.push_back(id);
}

class Timers : public Contract {
  protected:
    HWND window = nullptr;

    void SetUp() override {
        Contract::SetUp();
        window = OpenOwn();
        Ticks.clear();
    }
};

TEST_F(Timers, ACallbackTakesTheProceduresPlace) {
    SetTimer(window, 2000, 30, Keep);
    Handle(50);
    EXPECT_EQ(Ticks, std::vector<UINT_PTR>{2000});
    EXPECT_TRUE(SeenOf({WM_TIMER}).empty());
    SetTimer(window, 2000, 30, nullptr);
    Handle(50);
    EXPECT_EQ(Ticks.size(), 1U);
    ASSERT_EQ(SeenOf({WM_TIMER}).size(), 1U);
    EXPECT_EQ(Seen.back().wParam, 2000U);
}

TEST_F(Timers, OneThatIsLateTicksOnceNotForEachPeriodMissed) {
    SetTimer(window, 1, 100, Keep);
    Pass(350);
    Handle(40);
    EXPECT_EQ(Ticks.size(), 1U);
}

TEST_F(Timers, SettingOneAgainStartsItsTimeAnew) {
    SetTimer(window, 1, 60, Keep);
    Pass(40);
    EXPECT_NE(SetTimer(window, 1, 60, Keep), 0U);
    Handle(40);
    EXPECT_TRUE(Ticks.empty());
    Handle(40);
    EXPECT_EQ(Ticks.size(), 1U);
}

TEST_F(Timers, TheyEndWhenTheyAreKilledAndWithTheirWindow) {
    SetTimer(window, 1, 20, Keep);
    SetTimer(window, 2, 20, Keep);
    EXPECT_TRUE(KillTimer(window, 1));
    EXPECT_FALSE(KillTimer(window, 1));
    DestroyWindow(window);
    Handle(50);
    EXPECT_TRUE(Ticks.empty());
}

} // namespace

#include "core/create.h"

#include "support/quorl_test.h"

TEST_F(QuorlTest, MeasuresTheUnionOfTheMonitorsAndMakesNoDesktopPastTheLargest) {
    Desk.monitors = {Rect(-1280, 50, 0, 1004), Rect(100, -20, 11520, 16001)};
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(VDesk, Rect(-1280, -20, 11520, 16001));
    EXPECT_EQ(Quorl, Rect(-1280, -20, 32000, 32000));
}

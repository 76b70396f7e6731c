#include "core/create.h"

#include "core/coordinates.h"
#include "support/quorl_test.h"

class Creation : public QuorlTest {};

TEST_F(Creation, MeasuresTheUnionOfTheMonitorsAndMakesNoDesktopPastTheLargest) {
    RECT all{9, 9, 9, 9};
    Desk.monitors.clear();
    EXPECT_EQ(MonitorUnion(&all), 1);
    EXPECT_EQ(all, Rect(0, 0, 0, 0));

    Desk.monitors = {Rect(-1280, 50, 0, 1004), Rect(100, -20, 11520, 16001)};
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(VDesk, Rect(-1280, -20, 11520, 16001));
    EXPECT_EQ(Quorl, Rect(-1280, -20, 32000, 32000));
}

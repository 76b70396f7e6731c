#include "core/coordinates.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Coordinates : public QuorlTest {};

TEST_F(Coordinates, TheScreenIsTheUnionOfTheMonitorsAndTheOrigin) {
    struct {
        std::vector<RECT> monitors;
        RECT all;
    } const cases[] = {
        {{{0, 0, 1024, 768}, {-1280, -100, 0, 924}},   {-1280, -100, 1024, 924}},
        {{{0, 0, 1024, 768}, {1024, 200, 2944, 1280}}, {0, 0, 2944, 1280}      },
        {{{100, 50, 1124, 818}},                       {0, 0, 1124, 818}       },
        {{},                                           {0, 0, 0, 0}            },
    };
    for (const auto& [monitors, all] : cases) {
        Desk.monitors = monitors;
        RECT rect{9, 9, 9, 9};
        EXPECT_EQ(MonitorUnion(&rect), 1);
        EXPECT_EQ(rect, all);
    }
}

TEST_F(Coordinates, APointOfTheMapBecomesAPointOfTheDesktop) {
    ASSERT_EQ(StartQuorl(), 1);
    RowOf(MainWnd).place = {100, 100, 308, 208}; // its client area: 200 by 100
    struct {
        POINT map, desktop;
    } const cases[] = {
        {{1, 1},   {20, 15}  },
        {{-1, -3}, {-20, -46}},
    };
    for (const auto& [map, desktop] : cases) {
        ActionPoint point{map.x, map.y};
        EXPECT_EQ(MapToDesktop(&point), &point);
        EXPECT_EQ((POINT{point.x, point.y}), desktop);
    }
    RowOf(MainWnd).place = {100, 100, 108, 108};
    ActionPoint point{5, 5};
    MapToDesktop(&point);
    EXPECT_EQ(point.x, 0) << "a map without area";
}

} // namespace

// Displays: which one a rectangle or a point belongs to, and what is reported about it.
#include "contract/contract_test.h"

namespace {

using Displays = Contract;

TEST_F(Displays, NearestOneIsFoundForAnyRectangleAndPoint) {
    const HMONITOR primary = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTONULL);
    ASSERT_NE(primary, nullptr);
    const RECT away{-30000, -30000, -29000, -29000};
    EXPECT_EQ(MonitorFromRect(&away, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(MonitorFromRect(&away, MONITOR_DEFAULTTONEAREST), primary);
    EXPECT_EQ(MonitorFromPoint({30000, 30000}, MONITOR_DEFAULTTOPRIMARY), primary);
    EXPECT_EQ(MonitorFromWindow(OpenOwn(), MONITOR_DEFAULTTONULL), primary);
}

TEST_F(Displays, InfoNamesTheDisplayAndItsWorkArea) {
    MONITORINFOEXA info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetMonitorInfoA(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &info));
    EXPECT_EQ(info.rcMonitor, (RECT{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}));
    RECT shared;
    IntersectRect(&shared, &info.rcMonitor, &info.rcWork);
    EXPECT_EQ(shared, info.rcWork);
    EXPECT_EQ(info.dwFlags, MONITORINFOF_PRIMARY);
    EXPECT_EQ(std::string(info.szDevice).find("\\\\.\\DISPLAY"), 0U);
    info.cbSize = 1;
    EXPECT_FALSE(GetMonitorInfoA(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &info));
}

} // namespace

#include "toolwin/map.h"

#include "regions/region_table.h"
#include "support/quorl_test.h"

namespace {

using Drawing = std::vector<std::string>;

// "call rect", and the pen and brush where they are visible.
std::string Describe(const DeskDrawCall& drawn) {
    static const char* const styles[] = {" solid", " dashed", " dotted"};
    std::string text = drawn.call + " " + testing::PrintToString(drawn.rect);
    if (drawn.call == "DrawFocusRect")
        return text;
    text += styles[drawn.pen.style] + std::to_string(drawn.pen.width) + " " + std::to_string(drawn.pen.color);
    if (drawn.call == "LineTo")
        return text + (drawn.rop == R2_MERGEPENNOT ? " inverting" : "");
    return text + (drawn.brush == BackBrush ? "" : " fill " + std::to_string(drawn.fill));
}

class Map : public RunningQuorl {
  protected:
    HWND owner = OpenWindow("owner", {-1024, 0, 0, 768});
    HWND dialog = OpenWindow("dialog", {100, 50, 612, 434}, "Afx:400000:8");

    void SetUp() override {
        RunningQuorl::SetUp();
        WindowOf(MainWnd).rect = {100, 100, 308, 183}; // a client area of 200 by 75
        WindowOf(dialog).owner = owner;
        VDesk = {1024, 768, 2048, 1536};
        Desk.foreground = dialog;
    }

    static Drawing Paint() {
        Desk.drawCalls.clear();
        Repaint(MainWnd);
        Drawing drawing;
        for (const DeskDrawCall& drawn : Desk.drawCalls)
            drawing.push_back(Describe(drawn));
        return drawing;
    }
};

TEST_F(Map, PaintsBackgroundRegionsWindowsAndViewInOrder) {
    WindowOf(owner).rect = {0, 0, 1024, 768}; // moved since the table was built
    AddRegion("home", 1024, 768);
    RegionTable[0].color = 0x123456;
    const int objects = LiveObjects();
    EXPECT_EQ(Paint(), (Drawing{
                           "BitBlt (0, 0, 200, 75) solid1 0 fill 16777215",
                           "Rectangle (0, 0, 200, 75) solid1 0",
                           "Rectangle (50, 37, 100, 74) solid1 0 fill 1193046",
                           "LineTo (54, 39, 79, 39) solid2 255",
                           "LineTo (79, 39, 79, 57) solid2 255",
                           "LineTo (79, 57, 54, 57) solid2 255",
                           "LineTo (54, 57, 54, 39) solid2 255",
                           "DrawFocusRect (50, 37, 100, 74)",
                           "LineTo (50, 37, 100, 37) dotted1 0 inverting",
                           "LineTo (100, 37, 100, 74) dotted1 0 inverting",
                           "LineTo (100, 74, 50, 74) dotted1 0 inverting",
                           "LineTo (50, 74, 50, 37) dotted1 0 inverting",
                       }));
    EXPECT_EQ(LiveObjects(), objects);
    EXPECT_EQ(LiveContexts() + Desk.deletedInUse, 0);
}

TEST_F(Map, ReachesTheScreenInOneCopyOrDirectlyIfABitmapIsRefused) {
    const Drawing copied = Paint();
    Desk.drawCalls.clear();
    EXPECT_TRUE(SendMessageA(MainWnd, WM_ERASEBKGND, 0, 0) && Desk.drawCalls.empty());
    const int objects = LiveObjects();
    for (const char* call : {"CreateCompatibleDC", "CreateCompatibleBitmap", "BitBlt"}) {
        Desk.fault = {call, 1, true, 0, 0};
        EXPECT_EQ(Paint(), Drawing(copied.begin() + 1, copied.end())) << call;
        EXPECT_EQ(LiveObjects() - objects + LiveContexts() + Desk.deletedInUse, 0) << call;
    }
}

TEST_F(Map, FlashesADialogWhileItsOwnerIsDisabled) {
    const std::size_t timers = Desk.timers.size();
    EnableWindow(owner, FALSE);
    EXPECT_EQ(Paint().at(2), "LineTo (54, 39, 79, 39) solid2 50") << "the second paint";
    Desk.drawCalls.clear();
    Wait(50);
    EXPECT_EQ(Desk.drawCalls.at(2).pen.color, 75U) << "painted by the timer";
    EnableWindow(owner, TRUE);
    EXPECT_EQ(Paint().at(2), "LineTo (54, 39, 79, 39) solid2 255");
    EXPECT_EQ(Desk.timers.size(), timers);
    EXPECT_EQ(NextFlashLevel(275), 45) << "bright, then dark";
}

TEST_F(Map, HasWhiteLinesOnADarkBackground) {
    AddRegion("home", 0, 0);
    for (const auto& [background, pen] :
         {std::pair(0x3f3f3fU, " solid1 16777215"), {0x3f403fU, " solid1 0"}}) {
        Desk.systemColors[COLOR_BACKGROUND] = background;
        Desk.drawCalls.clear();
        SendMessageA(MainWnd, WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_EQ(Describe(Desk.drawCalls.at(1)), std::string("Rectangle (0, 0, 200, 75)") + pen);
        EXPECT_EQ(Describe(Desk.drawCalls.at(2)), std::string("Rectangle (0, 0, 50, 37)") + pen + " fill 0");
    }
}

} // namespace

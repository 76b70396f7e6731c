#include "toolwin/map.h"

#include "regions/region_table.h"
#include "support/quorl_test.h"

namespace {

using Strokes = std::vector<std::string>;

// "what rect", and what it is drawn with where that shows.
std::string InWords(const DeskStroke& stroke) {
    static const char* const styles[] = {" solid", " dashed", " dotted"};
    std::string words = stroke.what + " " + testing::PrintToString(stroke.rect);
    const std::string pen =
        styles[stroke.pen.style] + std::to_string(stroke.pen.width) + " " + std::to_string(stroke.pen.color);
    if (stroke.what == "DrawFocusRect")
        return words;
    if (stroke.what == "LineTo")
        return words + pen + (stroke.rop == R2_MERGEPENNOT ? " inverting" : "");
    return words + pen + (stroke.brush == BackBrush ? "" : " fill " + std::to_string(stroke.fill));
}

class Map : public RunningQuorl {
  protected:
    HWND owner = OpenWindow("owner", {-1024, 0, 0, 768});
    HWND dialog = OpenWindow("dialog", {100, 50, 612, 434}, "#32770");

    void SetUp() override {
        RunningQuorl::SetUp();
        RowOf(MainWnd).place = {100, 100, 308, 183}; // the map itself is 200 by 75
        RowOf(dialog).owner = owner;
        VDesk = {1024, 768, 2048, 1536};
        Desk.foreground = dialog;
    }

    // What one paint of the whole map draws.
    static Strokes Painted() {
        Desk.strokes.clear();
        Repaint(MainWnd);
        Strokes words;
        for (const DeskStroke& stroke : Desk.strokes)
            words.push_back(InWords(stroke));
        return words;
    }
};

TEST_F(Map, PaintsBackgroundRegionsWindowsAndViewInThisOrder) {
    RowOf(owner).place = {0, 0, 1024, 768}; // has moved since the table was built
    RegionTable[0] = {0, "home", 1024, 768, 5, 5, 0x123456};
    num_regions = 1;

    const int objects = LiveObjects();
    EXPECT_EQ(Painted(), (Strokes{
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

TEST_F(Map, ADialogPulsesFromTheFirstPaintOnWhileItsOwnerIsDisabled) {
    const std::size_t timers = Desk.timers.size();
    EnableWindow(owner, FALSE);
    EXPECT_EQ(Painted().at(1), "LineTo (54, 39, 79, 39) solid2 50") << "the second paint";
    Desk.strokes.clear();
    Wait(50);
    EXPECT_EQ(Desk.strokes.at(1).pen.color, 75U) << "the timer repaints";
    EnableWindow(owner, TRUE);
    EXPECT_EQ(Painted().at(1), "LineTo (54, 39, 79, 39) solid2 255");
    EXPECT_EQ(Desk.timers.size(), timers);
}

TEST(MapBox, OnlyAnActiveDialogOfADisabledOwnerPulses) {
    EXPECT_EQ(KindOfBox(1, "#3277", WS_DISABLED), ACTIVE_BOX);
    EXPECT_EQ(KindOfBox(1, "Afx:400000:8", WS_DISABLED), PULSING_BOX);
    EXPECT_EQ(NextFlashLevel(256), 26);
    EXPECT_EQ(NextFlashLevel(275), 45) << "wraps round and keeps its pace";
}

} // namespace

#include "toolwin/map.h"

#include "regions/region_table.h"
#include "scroll/refresh.h"
#include "scroll/window_table.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

using Strokes = std::vector<std::string>;

std::string InWords(const RECT& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

// "what rect", and what it is drawn with where that shows.
std::string InWords(const DeskStroke& stroke) {
    static const char* const styles[] = {"solid", "dashed", "dotted"};
    std::string words = stroke.what + " " + InWords(stroke.rect);
    if (stroke.what == "DrawFocusRect")
        return words;
    words += std::string(" ") + styles[stroke.pen.style] + std::to_string(stroke.pen.width) + " " +
             std::to_string(stroke.pen.color);
    if (stroke.what == "LineTo")
        return words + (stroke.rop == R2_MERGEPENNOT ? " inverting" : "");
    return words + (stroke.brush == BackBrush ? " background" : " fill " + std::to_string(stroke.fill));
}

class Map : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        RowOf(MainWnd).place = {100, 100, 308, 183}; // the map itself is 200 by 75
        Desk.foreground = nullptr;
    }

    // What one paint of the whole map draws.
    static Strokes Painted() {
        RebuildWindowTable();
        Desk.strokes.clear();
        Repaint(MainWnd);
        Strokes words;
        for (const DeskStroke& stroke : Desk.strokes)
            words.push_back(InWords(stroke));
        return words;
    }

    // How the box of the active window is drawn; empty if by no line.
    static std::string ActivePen() {
        for (const std::string& stroke : Painted())
            if (stroke.starts_with("LineTo") && stroke.find("solid2 ") != std::string::npos)
                return stroke.substr(stroke.find("solid2 "));
        return "";
    }

    static int IsPulsing() {
        return std::any_of(Desk.timers.begin(), Desk.timers.end(), [](const DeskTimer& timer) {
            return timer.id == FLASH_TIMER && timer.window == MainWnd && timer.period == 50;
        });
    }
};

TEST_F(Map, PaintsBackgroundRegionsWindowsAndViewInThisOrder) {
    OpenWindow("below", {-1024, 0, 0, 768});
    const HWND editor = OpenWindow("editor", {100, 50, 612, 434});
    ShowWindow(OpenWindow("minimized", {0, 0, 500, 500}), SW_MINIMIZE);
    VDesk = {1024, 0, 2048, 768};
    RegionTable[0] = {0, "home", 1024, 768, 5, 5, 0x123456};
    RegionTable[1] = {1, "far", 2048, 768, 3071, 1535, 0xff};
    num_regions = 2;
    Desk.foreground = editor;

    EXPECT_EQ(Painted(), (Strokes{
                             "Rectangle 0,0 200,75 solid1 0 background",
                             "Rectangle 50,37 100,74 solid1 0 fill 1193046",
                             "Rectangle 100,37 150,74 solid1 0 fill 255",
                             "LineTo 54,2 79,2 solid2 255",
                             "LineTo 79,2 79,20 solid2 255",
                             "LineTo 79,20 54,20 solid2 255",
                             "LineTo 54,20 54,2 solid2 255",
                             "DrawFocusRect 0,0 50,37",
                             "LineTo 50,0 100,0 dotted1 0 inverting",
                             "LineTo 100,0 100,37 dotted1 0 inverting",
                             "LineTo 100,37 50,37 dotted1 0 inverting",
                             "LineTo 50,37 50,0 dotted1 0 inverting",
                         }));
}

TEST_F(Map, AsksForEachWindowsPlaceAsItIsNow) {
    const HWND editor = OpenWindow("editor", {0, 0, 1024, 768});
    RebuildWindowTable();
    RowOf(editor).place = {1024, 768, 2048, 1536};
    Desk.strokes.clear();
    Repaint(MainWnd);
    EXPECT_EQ(InWords(Desk.strokes.at(1)), "DrawFocusRect 50,37 100,74");
}

TEST_F(Map, ADialogPulsesFromTheFirstPaintOnWhileItsOwnerIsDisabled) {
    const HWND owner = OpenWindow("owner", {0, 0, 500, 500});
    const HWND dialog = OpenWindow("dialog", {100, 100, 300, 300}, "#32770");
    RowOf(dialog).owner = owner;
    Desk.foreground = dialog;
    EXPECT_EQ(ActivePen(), "solid2 255");
    EXPECT_FALSE(IsPulsing());

    EnableWindow(owner, FALSE);
    EXPECT_EQ(ActivePen(), "solid2 75") << "the third paint";
    EXPECT_TRUE(IsPulsing());
    Desk.strokes.clear();
    Wait(50);
    const auto line = std::find_if(Desk.strokes.begin(), Desk.strokes.end(),
                                   [](const DeskStroke& stroke) { return stroke.what == "LineTo"; });
    ASSERT_NE(line, Desk.strokes.end()) << "the timer repaints";
    EXPECT_EQ(line->pen.color, 100U);
    EXPECT_LT(line->clip.right - line->clip.left, 20) << "its box alone";

    Desk.foreground = MainWnd; // not drawn: nothing changes
    Painted();
    EXPECT_TRUE(IsPulsing());
    Desk.foreground = owner;
    EnableWindow(owner, TRUE);
    EXPECT_EQ(ActivePen(), "solid2 255");
    EXPECT_FALSE(IsPulsing());
}

TEST(MapBox, OnlyAnActiveDialogOfADisabledOwnerPulses) {
    EXPECT_EQ(KindOfBox(0, "#32770", WS_DISABLED), PLAIN_BOX);
    EXPECT_EQ(KindOfBox(1, "#32770", WS_VISIBLE), ACTIVE_BOX);
    EXPECT_EQ(KindOfBox(1, "#32770extra", WS_DISABLED), PULSING_BOX);
    EXPECT_EQ(KindOfBox(1, "#3277", WS_DISABLED), ACTIVE_BOX);
    EXPECT_EQ(KindOfBox(1, "Afx:400000:8", WS_DISABLED), PULSING_BOX);
    EXPECT_EQ(KindOfBox(1, "afx:400000", WS_DISABLED), ACTIVE_BOX);
}

TEST(MapBox, ThePulseWrapsRoundAndKeepsItsPace) {
    EXPECT_EQ(NextFlashLevel(0), 25);
    EXPECT_EQ(NextFlashLevel(255), 280);
    EXPECT_EQ(NextFlashLevel(275), 45);
}

TEST_F(Map, AFailedCallLeavesNoObjectBehindAndTheNextPaintIsWhole) {
    num_regions = 2;
    const HWND owner = OpenWindow("owner", {0, 0, 500, 500});
    const HWND dialog = OpenWindow("dialog", {100, 100, 300, 300}, "#32770");
    RowOf(dialog).owner = owner;
    EnableWindow(owner, FALSE);
    Desk.foreground = dialog;
    const std::size_t whole = Painted().size();
    const int before = LiveObjects();
    EXPECT_EQ(LiveContexts() + Desk.deletedInUse, 0);
    const int tried = FailEachCall([=] {
        const std::size_t struck = Desk.trace.size() + static_cast<std::size_t>(Desk.fault.callsLeft) - 1;
        Repaint(MainWnd);
        if (!Desk.fault.hits)
            return;
        const int bKept = Desk.trace[struck] == std::string("DeleteObject"); // nothing can be done then
        EXPECT_EQ(LiveObjects() - before, bKept);
        EXPECT_EQ(Painted().size(), whole);
    });
    EXPECT_GT(tried, 50);
}

} // namespace

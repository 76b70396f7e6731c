#include "dialogs/dialog_test.h"
#include "regions/region_table.h"

namespace {

constexpr int ITSELF = 49, RIGHT_BY_5 = 5; // rows
constexpr int NAME = 1025, SWATCH = 1040;  // controls
constexpr COLORREF NO_COLOR = 0xa56e3a;    // the desktop's

class NameRegion : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        RegionTable[0] = {0, "mail", 5, 0, 10, 10, RGB(1, 2, 3)};
        num_regions = 1;
    }

    COLORREF Color() const {
        const auto swatch = reinterpret_cast<LPARAM>(At(SWATCH));
        return reinterpret_cast<DeskObject*>(SendMessageA(dialog, WM_CTLCOLORSTATIC, 0, swatch))->color;
    }
    void ClickSwatch() const {
        const RECT place = PlaceOf(At(SWATCH));
        MoveMouse(place.left + 5, place.top + 5);
        PressMouse(VK_LBUTTON, 1);
        PressMouse(VK_LBUTTON, 0);
        Settle();
    }
};

TEST_F(NameRegion, ItShowsTheRegionThatStartsAtTheViewAndOkCountsWhereTheViewStandsThen) {
    Mark("around", -5, -5);
    Open(ITSELF);
    EXPECT_EQ(Desk.focus, At(NAME));
    EXPECT_EQ(TextOf(NAME), "");
    EXPECT_EQ(Color(), NO_COLOR);
    Press(VK_ESCAPE);
    Open(ITSELF);
    Type(NAME, "a name of more than thirty-one characters");
    Command(RIGHT_BY_5);
    Click(IDOK);
    EXPECT_EQ(num_regions, 2);
    const RegionRow& region = RegionTable[0];
    EXPECT_EQ(Rect(region.left, region.top, region.right, region.bottom), Rect(5, 0, 1029, 768));
    RegionTable[0].color = RGB(1, 2, 3);
    Open(ITSELF);
    EXPECT_EQ(TextOf(NAME), "a name of more than thirty-one ");
    EXPECT_EQ(Color(), COLORREF{RGB(1, 2, 3)});
}

TEST_F(NameRegion, ANewRegionIsAddedWithAColourAndItsHotkey) {
    const int objects = LiveObjects();
    Open(ITSELF);
    Desk.colorAnswers = {RGB(9, 8, 7), std::nullopt};
    ClickSwatch();
    ClickSwatch(); // and thinks better of it
    EXPECT_EQ(Color(), COLORREF{RGB(9, 8, 7)});
    EXPECT_EQ(Desk.colorBoxes.at(1).initial, COLORREF{RGB(9, 8, 7)});
    WillAnswer({IDOK});
    Click(IDOK);
    EXPECT_EQ(LastBox(), "That's an invalid name, see./Fix name");
    EXPECT_EQ(num_regions, 1);
    Type(NAME, "here");
    Click(IDOK);
    EXPECT_EQ(LiveObjects(), objects) << "no brush is left";
    ASSERT_EQ(num_regions, 2);
    EXPECT_STREQ(RegionTable[1].name, "here");
    EXPECT_EQ(RegionTable[1].color, COLORREF{RGB(9, 8, 7)});
    Command(RIGHT_BY_5);
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
    EXPECT_EQ(VDesk.left, 0);
}

} // namespace

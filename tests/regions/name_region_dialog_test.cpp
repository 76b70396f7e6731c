#include "dialogs/dialog_test.h"
#include "regions/region_table.h"

namespace {

constexpr int ITSELF = 49; // its row
constexpr int RIGHT_BY_5 = 5;
constexpr int DELETE_BUTTON = 3;
constexpr int NAME = 1025;
constexpr int SWATCH = 1040;
constexpr COLORREF NO_COLOR = 0xa56e3a; // the desktop's

class NameRegion : public DialogTest {
  protected:
    int objects = 0; // before the dialog opens

    void SetUp() override {
        DialogTest::SetUp();
        RegionTable[0] = {0, "mail", 5, 0, 10, 10, RGB(1, 2, 3)};
        num_regions = 1;
        objects = LiveObjects();
    }

    LRESULT BrushOf(HWND control) const {
        return SendMessageA(dialog, WM_CTLCOLORSTATIC, 0, reinterpret_cast<LPARAM>(control));
    }
    COLORREF Color() const { return reinterpret_cast<DeskObject*>(BrushOf(At(SWATCH)))->color; }

    // In its middle.
    void ClickSwatch() const {
        const RECT place = PlaceOf(At(SWATCH));
        MoveMouse((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        PressMouse(VK_LBUTTON, 1);
        PressMouse(VK_LBUTTON, 0);
        Settle();
    }
};

TEST_F(NameRegion, ItShowsTheRegionThatStartsAtTheViewAndEscapeChangesNothing) {
    Mark("around", -5, -5);
    Open(ITSELF);
    EXPECT_EQ(TextOf(NAME), "");
    EXPECT_EQ(Color(), NO_COLOR);
    Desk.colorAnswers = {RGB(9, 8, 7)};
    ClickSwatch();
    Type(NAME, "here");
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(num_regions, 2);
    EXPECT_EQ(LiveObjects(), objects) << "no brush is left";

    Command(RIGHT_BY_5);
    Open(ITSELF);
    EXPECT_EQ(TextOf(NAME), "mail");
    EXPECT_EQ(Color(), COLORREF{RGB(1, 2, 3)});
    EXPECT_EQ(BrushOf(nullptr), 0) << "only the swatch is coloured";
}

TEST_F(NameRegion, WhatCountsIsWhereTheViewStandsWhenTheUserAccepts) {
    Open(ITSELF);
    Type(NAME, "a name of more than thirty-one characters");
    Command(RIGHT_BY_5);
    Click(IDOK);
    EXPECT_FALSE(IsOpen());
    ASSERT_EQ(num_regions, 1);
    EXPECT_STREQ(RegionTable[0].name, "a name of more than thirty-one ");
    EXPECT_EQ(RegionTable[0].right, 5 + 1024);
    EXPECT_EQ(RegionTable[0].bottom, 768);
    EXPECT_EQ(RegionTable[0].color, NO_COLOR);
}

TEST_F(NameRegion, ANewRegionIsAddedWithAColourAndItsHotkey) {
    Open(ITSELF);
    Desk.colorAnswers = {RGB(9, 8, 7), std::nullopt};
    ClickSwatch();
    ClickSwatch(); // and thinks better of it
    EXPECT_EQ(Color(), COLORREF{RGB(9, 8, 7)});
    ASSERT_EQ(Desk.colorBoxes.size(), 2u);
    EXPECT_EQ(Desk.colorBoxes[1].initial, COLORREF{RGB(9, 8, 7)});
    EXPECT_EQ(Desk.colorBoxes[1].custom, std::vector<COLORREF>(16, RGB(255, 255, 255)));

    WillAnswer({IDOK});
    Click(IDOK);
    EXPECT_EQ(Desk.boxes.back().text, "That's an invalid name, see.");
    EXPECT_EQ(num_regions, 1);
    Type(NAME, "here");
    Click(IDOK);
    EXPECT_EQ(LiveObjects(), objects);
    ASSERT_EQ(num_regions, 2);
    EXPECT_STREQ(RegionTable[1].name, "here");
    EXPECT_EQ(RegionTable[1].color, COLORREF{RGB(9, 8, 7)});
    Command(30);
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
    EXPECT_EQ(VDesk.left, 0);
}

TEST_F(NameRegion, AFullTableIsToldAndNotOverrun) {
    while (num_regions < MAX_REGIONS)
        Mark("full", num_regions, 1);
    Open(ITSELF);
    Type(NAME, "more");
    WillAnswer({IDOK, IDOK});
    Click(IDOK);
    Send(DELETE_BUTTON);
    EXPECT_EQ(Desk.boxes.size(), 2u);
    EXPECT_EQ(num_regions, MAX_REGIONS);
    num_regions = MAX_REGIONS - 1;
    Click(IDOK);
    EXPECT_STREQ(RegionTable[MAX_REGIONS - 1].name, "more") << "once there is room it goes on";
}

TEST_F(NameRegion, DeleteIsNeverOfferedAndByMessageEmptiesTheRow) {
    Command(RIGHT_BY_5);
    Open(ITSELF);
    Click(DELETE_BUTTON);
    EXPECT_TRUE(IsOpen());
    Send(DELETE_BUTTON);
    EXPECT_FALSE(IsOpen());
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].left, -1);
    EXPECT_EQ(RegionTable[0].top, -1);
}

} // namespace

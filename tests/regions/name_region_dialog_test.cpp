#include "regions/name_region_dialog.h"

#include "core/state.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "support/quorl_test.h"

namespace {

constexpr int DELETE_BUTTON = 3;
constexpr int NAME = 1025;
constexpr int SWATCH = 1040;
constexpr COLORREF NO_COLOR = 0xa56e3a; // the desktop's

class NameRegion : public QuorlTest {
  protected:
    void SetUp() override {
        QuorlTest::SetUp();
        ASSERT_EQ(StartQuorl(), 1);
        RegionTable[0] = {0, "mail", 5, 0, 10, 10, RGB(1, 2, 3)};
        num_regions = 1;
    }
};

HWND Open() {
    Command(49);
    return DialogHandles[KEYS_NAME_REGION];
}

int IsOpen(HWND dialog) {
    return RowOf(dialog).handle != nullptr;
}

COLORREF ColorOf(HWND dialog) {
    const LRESULT brush =
        SendMessageA(dialog, WM_CTLCOLORSTATIC, 0, reinterpret_cast<LPARAM>(ControlOf(dialog, SWATCH)));
    return reinterpret_cast<DeskObject*>(brush)->color;
}

// A click into the middle of the swatch.
void ClickSwatch(HWND dialog) {
    const RECT place = PlaceOf(ControlOf(dialog, SWATCH));
    MoveMouse((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    PressMouse(VK_LBUTTON, 1);
    PressMouse(VK_LBUTTON, 0);
    Settle();
}

void Fill() {
    for (num_regions = 0; num_regions < MAX_REGIONS; ++num_regions)
        RegionTable[num_regions] = {num_regions, "full", num_regions + 1, 1, 0, 0, 0};
}

TEST_F(NameRegion, ItShowsTheRegionThatStartsAtTheViewAndNoOther) {
    RegionTable[1] = {1, "around", -5, -5, 2000, 2000, 0};
    num_regions = 2;
    HWND dialog = Open();
    EXPECT_EQ(RowOf(ControlOf(dialog, NAME)).title, "");
    EXPECT_EQ(ColorOf(dialog), NO_COLOR);
    ClickControl(ControlOf(dialog, IDCANCEL));

    Command(5); // 5 pixels to the right
    dialog = Open();
    EXPECT_EQ(RowOf(ControlOf(dialog, NAME)).title, "mail");
    EXPECT_EQ(ColorOf(dialog), COLORREF{RGB(1, 2, 3)});
    EXPECT_EQ(SendMessageA(dialog, WM_CTLCOLORSTATIC, 0, 0), 0) << "only the swatch is coloured";
}

TEST_F(NameRegion, WhatCountsIsWhereTheViewStandsWhenTheUserAccepts) {
    const HWND dialog = Open();
    TypeInto(ControlOf(dialog, NAME), "a name of more than thirty-one characters");
    Command(5);
    ClickControl(ControlOf(dialog, IDOK));
    EXPECT_FALSE(IsOpen(dialog));
    ASSERT_EQ(num_regions, 1);
    EXPECT_STREQ(RegionTable[0].name, "a name of more than thirty-one ");
    EXPECT_EQ(RegionTable[0].right, 5 + 1024);
    EXPECT_EQ(RegionTable[0].bottom, 768);
    EXPECT_EQ(RegionTable[0].color, NO_COLOR);
}

TEST_F(NameRegion, ANewRegionIsAddedWithAColourAndItsHotkey) {
    const int objects = LiveObjects();
    const HWND dialog = Open();
    Desk.colorAnswers = {RGB(9, 8, 7), std::nullopt};
    ClickSwatch(dialog);
    ClickSwatch(dialog); // and thinks better of it
    EXPECT_EQ(ColorOf(dialog), COLORREF{RGB(9, 8, 7)});
    ASSERT_EQ(Desk.colorBoxes.size(), 2u);
    EXPECT_EQ(Desk.colorBoxes[1].initial, COLORREF{RGB(9, 8, 7)});
    EXPECT_EQ(Desk.colorBoxes[1].custom, std::vector<COLORREF>(16, RGB(255, 255, 255)));

    WillAnswer({IDOK});
    ClickControl(ControlOf(dialog, IDOK));
    EXPECT_EQ(Desk.boxes.back().text, "That's an invalid name, see.");
    EXPECT_TRUE(IsOpen(dialog));
    EXPECT_EQ(num_regions, 1);
    TypeInto(ControlOf(dialog, NAME), "here");
    ClickControl(ControlOf(dialog, IDOK));
    EXPECT_FALSE(IsOpen(dialog));
    EXPECT_EQ(LiveObjects(), objects);
    ASSERT_EQ(num_regions, 2);
    EXPECT_STREQ(RegionTable[1].name, "here");
    EXPECT_EQ(RegionTable[1].color, COLORREF{RGB(9, 8, 7)});
    Command(30);
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
    EXPECT_EQ(VDesk.left, 0);
}

TEST_F(NameRegion, CancellingChangesNothingAndLeavesNoBrush) {
    const int objects = LiveObjects();
    const HWND dialog = Open();
    Desk.colorAnswers = {RGB(9, 8, 7)};
    ClickSwatch(dialog);
    TypeInto(ControlOf(dialog, NAME), "here");
    PressKey(VK_ESCAPE);
    Settle();
    EXPECT_FALSE(IsOpen(dialog));
    EXPECT_EQ(num_regions, 1);
    EXPECT_EQ(LiveObjects(), objects);
}

TEST_F(NameRegion, AFullTableIsToldAndNotOverrun) {
    Fill();
    const HWND dialog = Open();
    TypeInto(ControlOf(dialog, NAME), "more");
    WillAnswer({IDOK, IDOK});
    ClickControl(ControlOf(dialog, IDOK));
    SendMessageA(dialog, WM_COMMAND, DELETE_BUTTON, 0);
    EXPECT_EQ(Desk.boxes.size(), 2u);
    EXPECT_TRUE(IsOpen(dialog));
    EXPECT_EQ(num_regions, MAX_REGIONS);
    num_regions = MAX_REGIONS - 1;
    ClickControl(ControlOf(dialog, IDOK));
    EXPECT_FALSE(IsOpen(dialog)) << "once there is room it goes on";
    EXPECT_STREQ(RegionTable[MAX_REGIONS - 1].name, "more");
}

TEST_F(NameRegion, DeleteIsOfferedNeverAndByMessageEmptiesTheRow) {
    Command(5);
    const HWND dialog = Open();
    ClickControl(ControlOf(dialog, DELETE_BUTTON));
    EXPECT_TRUE(IsOpen(dialog));
    SendMessageA(dialog, WM_COMMAND, DELETE_BUTTON, 0);
    EXPECT_FALSE(IsOpen(dialog));
    EXPECT_EQ(num_regions, 1);
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].left, -1);
    EXPECT_EQ(RegionTable[0].top, -1);
    EXPECT_EQ(RegionTable[0].right, 10);
}

} // namespace

#include "dialogs/dialog_test.h"
#include "regions/region_table.h"

constexpr COLORREF COLOR = RGB(1, 2, 3);

class NameRegion : public DialogTest {
  protected:
    COLORREF SwatchColor() const {
        const auto swatch = reinterpret_cast<LPARAM>(Item(IDC_REGION_COLOR));
        return reinterpret_cast<DeskObject*>(SendMessageA(dialog, WM_CTLCOLORSTATIC, 0, swatch))->color;
    }
    void ClickSwatch() const {
        const RECT rect = RectOf(Item(IDC_REGION_COLOR));
        MoveMouse(rect.left + 5, rect.top + 5);
        PressMouse(VK_LBUTTON, true);
        PressMouse(VK_LBUTTON, false);
        HandleMessages();
    }
};

TEST_F(NameRegion, RenamesTheRegionAtTheCurrentView) {
    AddRegion("around", -5, -5);
    AddRegion("mail", 5, 0);
    RegionTable[1].color = COLOR;
    Open(ACTION_MARK_REGION);
    EXPECT_EQ(Text(IDC_REGION_NAME), "");
    EXPECT_EQ(SwatchColor(), Desk.systemColors[COLOR_BACKGROUND]);
    Press(VK_ESCAPE);
    RunAction(ACTION_VIEW_RIGHT_MIN);
    Open(ACTION_MARK_REGION);
    EXPECT_EQ(Text(IDC_REGION_NAME), "mail");
    EXPECT_EQ(SwatchColor(), COLOR);
    Desk.codePage = 932;
    Type(IDC_REGION_NAME, "of a letter of two bytes, half\x83| would fit");
    Click(IDOK);
    ASSERT_EQ(num_regions, 2);
    const RegionRow& region = RegionTable[1];
    EXPECT_STREQ(region.name, "of a letter of two bytes, half");
    EXPECT_EQ(Rect(region.left, region.top, region.right, region.bottom), Rect(5, 0, 1029, 768));
    Open(ACTION_MARK_REGION);
    SendMessageA(dialog, WM_COMMAND, IDC_REGION_DELETE, 0); // the button is disabled
    EXPECT_EQ(Rect(region.left, region.top, region.right, region.bottom), Rect(-1, -1, 1029, 768));
    EXPECT_STREQ(region.name, "");
}

TEST_F(NameRegion, ANewRegionGetsItsColorAndHotkey) {
    RunAction(ACTION_SCREEN_RIGHT);
    const int objects = LiveObjects();
    Open(ACTION_MARK_REGION);
    Desk.colorChoices = {COLOR, std::nullopt};
    ClickSwatch();
    ClickSwatch(); // cancelled
    EXPECT_EQ(Desk.colorDialogs.at(1).initial, COLOR);
    EXPECT_EQ(Desk.colorDialogs[1].flags, CC_RGBINIT | CC_FULLOPEN);
    AnswerBoxes({IDOK});
    Click(IDOK);
    EXPECT_EQ(LastBox(), "That's an invalid name, see./Fix name");
    Type(IDC_REGION_NAME, "here");
    RunAction(ACTION_SCREEN_RIGHT);
    Click(IDOK);
    EXPECT_EQ(LiveObjects(), objects) << "the brush is deleted";
    ASSERT_EQ(num_regions, 1);
    EXPECT_EQ(RegionTable[0].color, COLOR);
    EXPECT_EQ(RegionTable[0].left, 2048) << "the view at OK";
    num_regions = MAX_REGIONS;
    RunAction(ACTION_SCREEN_LEFT);
    Open(ACTION_MARK_REGION);
    Type(IDC_REGION_NAME, "more");
    AnswerBoxes({IDOK});
    Click(IDOK);
    EXPECT_EQ(LastBox(), "All 200 regions are in use. Unmark one first./No room");
    EXPECT_EQ(Text(IDC_REGION_NAME), "more") << "the dialog stays open";
    PressHotkey(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '0');
    HandleMessages();
    EXPECT_EQ(VDesk.left, 2048);
}

// Dialogs beyond the tour.
#include "dialogs.h"

TEST(Dialogs, NameRegionTakesASystemColorAndNoMoreThan200Regions) {
    for (int region = 0; region < 199; ++region)
        Store("Region" + std::to_string(region), "name|" + std::to_string(region) + "|7|1500|775|0");
    Store("num_regions", "199");
    StartQuorl();
    HWND dialog = OpenDialog<ACTION_MARK_REGION>("Name Region");
    PressOnly(Control(dialog, IDC_REGION_COLOR));
    const HWND colors = WaitForBox("Color");
    const char* const red_green_blue[] = {"200", "100", "50"};
    for (int i = 0; i < 3; ++i)
        TypeOver(Control(colors, 706 + i), red_green_blue[i]);
    CloseBy(colors, IDOK);
    TypeOver(Control(dialog, IDC_REGION_NAME), "Mail 1");
    CloseByKey(dialog, VK_RETURN);
    ExpectSaved("Region199", "Mail 1|0|0|1024|768|3302600");

    RunActions<ACTION_VIEW_RIGHT_MIN>();
    dialog = OpenDialog<ACTION_MARK_REGION>("Name Region");
    TypeOver(Control(dialog, IDC_REGION_NAME), "more");
    PressOnly(Control(dialog, IDOK));
    AnswerBox("No room", VK_RETURN);
    EXPECT_EQ(ControlText(dialog, IDC_REGION_NAME), "more") << "the dialog stays open";
    CloseBy(dialog, IDCANCEL);
    RunActions<ACTION_VIEW_LEFT_MIN, ACTION_UNMARK_REGION>();
    ExpectSaved("num_regions", "199");
    RunActions<ACTION_UNMARK_ALL_REGIONS>();
    ExpectSaved("num_regions", "0");
}

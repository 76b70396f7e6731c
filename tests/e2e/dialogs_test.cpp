#include "shared/user.h"

TEST(Dialogs, NameRegionTakesASystemColor) {
    StartQuorl();
    const HWND dialog = OpenDialog(ACTION_MARK_REGION, "Name Region");
    PressOnly(Control(dialog, IDC_REGION_COLOR));
    const HWND colors = WaitForBox("Color");
    int control = 706; // the first of three edit boxes
    for (const char* const part : {"200", "100", "50"})
        TypeOver(Control(colors, control++), part);
    CloseBy(colors, IDOK);
    TypeOver(Control(dialog, IDC_REGION_NAME), "Mail 1");
    CloseByKey(dialog, VK_RETURN);
    ExpectSaved("Region0", "Mail 1|0|0|1024|768|3302600");
    RunActions({ACTION_UNMARK_REGION});
    ExpectSaved("num_regions", "0");
}

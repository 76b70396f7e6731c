// The rows that open dialogs.
#include "dialogs/dialog_rows.h"

#include "dialogs/about_dialog.h"
#include "dialogs/actions_dialog.h"
#include "dialogs/customize_menu_dialog.h"
#include "dialogs/find_dialogs.h"
#include "dialogs/help_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/registry.h"
#include "dialogs/resize_windows_dialog.h"
#include "dialogs/transparency_dialog.h"
#include "regions/name_region_dialog.h"

namespace {

struct DialogOfRow {
    ActionId row;
    int resource_id;
    DLGPROC procedure;
};

} // namespace

static const DialogOfRow DialogsOfRows[] = {
    {49,  DIALOG_NAME_REGION,    NameRegionDlgProc   },
    {52,  DIALOG_FIND,           FindWindowDlgProc   },
    {53,  DIALOG_RESIZE_WINDOWS, ResizeWindowsDlgProc},
    {55,  DIALOG_ACTIONS,        ActionsDlgProc      },
    {56,  DIALOG_HELP,           HelpDlgProc         },
    {57,  DIALOG_ABOUT,          AboutDlgProc        },
    {74,  DIALOG_CUSTOMIZE_MENU, CustomizeMenuDlgProc},
    {111, DIALOG_FIND,           FindRegionDlgProc   },
    {116, DIALOG_TRANSPARENCY,   TransparencyDlgProc },
};

int OpenDialogOfRow(const ActionCall& call) {
    for (const DialogOfRow& opens : DialogsOfRows)
        if (opens.row == call.row)
            return OpenDialog(call.window, opens.resource_id, opens.procedure);
    return 0;
}

int OpenOptions(const ActionCall& call) {
    return OpenOptionsDialog(call.window);
}

// Everything constant about each dialog. To add one: its id, a row here, a template, a procedure.
#include "dialogs/about_dialog.h"
#include "dialogs/actions_dialog.h"
#include "dialogs/customize_menu_dialog.h"
#include "dialogs/find_dialogs.h"
#include "dialogs/help_dialog.h"
#include "dialogs/name_region_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/registry.h"
#include "dialogs/resize_windows_dialog.h"
#include "dialogs/transparency_dialog.h"
#include "resources/control_ids.h"

// clang-format off
const DialogDef DialogDefs[NUM_DIALOGS] = {
    // id                  template            keyboard procedure
    {DIALOG_ABOUT,          IDD_ABOUT,          true,  AboutDlgProc},
    {DIALOG_HELP,           IDD_HELP,           true,  HelpDlgProc},
    {DIALOG_OPTIONS,        IDD_OPTIONS,        true,  OptionsDlgProc},
    {DIALOG_ACTIONS,        IDD_ACTIONS,        true,  ActionsDlgProc},
    {DIALOG_RESIZE_WINDOWS, IDD_RESIZE_WINDOWS, false, ResizeWindowsDlgProc},
    {DIALOG_NAME_REGION,    IDD_NAME_REGION,    true,  NameRegionDlgProc},
    {DIALOG_CUSTOMIZE_MENU, IDD_CUSTOMIZE_MENU, true,  CustomizeMenuDlgProc},
    {DIALOG_FIND_WINDOW,    IDD_FIND,           true,  FindWindowDlgProc}, // only one of these two is open
    {DIALOG_FIND_REGION,    IDD_FIND,           true,  FindRegionDlgProc},
    {DIALOG_TRANSPARENCY,   IDD_TRANSPARENCY,   false, TransparencyDlgProc},
};
// clang-format on

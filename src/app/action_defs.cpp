// Everything constant about each action. To add one: its id, a row here, its handler, a line of help.
#include "actions/action_table.h"
#include "app/quit.h"
#include "commands/active_window.h"
#include "commands/navigation.h"
#include "commands/program_commands.h"
#include "commands/region_commands.h"
#include "commands/view_commands.h"
#include "core/steps.h"
#include "dialogs/registry.h"
#include "menus/action_menu.h"
#include "scroll/desktop_size.h"
#include "settings/settings.h"
#include "toolwin/placement.h"

static constexpr DWORD KEY = ACTION_KEY;
static constexpr DWORD MOUSE = ACTION_MOUSE;
static constexpr DWORD BOTH = ACTION_KEY | ACTION_MOUSE;
static constexpr DWORD OFF = ACTION_OFF;

static constexpr int CTRL_ALT = KEY_CTRL | KEY_ALT;
static constexpr int CTRL_SHIFT = KEY_CTRL | KEY_SHIFT;
static constexpr int CTRL_ALT_SHIFT = KEY_CTRL | KEY_ALT | KEY_SHIFT;
static constexpr KeyBinding UNUSED_KEY = {
    UNBOUND, 0}; // unbound; differs from NO_KEY only in what the settings file stores

// clang-format off
const ActionDef ActionDefs[NUM_ACTIONS] = {
    // id                       offered start handler      argument               text, default key, default mouse binding
    {ACTION_SHOW_MENU,           BOTH,  0, DisplayMenu,         0,                     "Display Quorl menu", {CTRL_ALT_SHIFT, VK_SPACE}, {0, RBUTTON}},
    {ACTION_VIEW_TO_POINT,       MOUSE, 0, GoToPoint,           AT_CORNER,             "Move visible desktop to x,y position"},
    {ACTION_VIEW_CENTER_POINT,   MOUSE, 0, GoToPoint,           AT_CENTER,             "Move visible desktop to x,y center", NO_KEY, {0, MBUTTON}},
    {ACTION_VIEW_TO_REGION,      MOUSE, 0, GoToRegion,          0,                     "Move visible desktop to selected region"},
    {ACTION_VIEW_TO_CELL,        MOUSE, 0, GoToPoint,           AT_CELL,               "Move visible desktop to selected desktop", NO_KEY, {KEY_SHIFT, LBUTTON}},
    {ACTION_VIEW_RIGHT_MIN,      BOTH,  0, StepView,            DIR_RIGHT | BY_MIN,    "Move visible desktop right by <min>", {CTRL_ALT_SHIFT, VK_RIGHT}},
    {ACTION_VIEW_RIGHT_MAX,      BOTH,  0, StepView,            DIR_RIGHT | BY_MAX,    "Move visible desktop right by <max>"},
    {ACTION_VIEW_LEFT_MIN,       BOTH,  0, StepView,            DIR_LEFT | BY_MIN,     "Move visible desktop left by <min>", {CTRL_ALT_SHIFT, VK_LEFT}},
    {ACTION_VIEW_LEFT_MAX,       BOTH,  0, StepView,            DIR_LEFT | BY_MAX,     "Move visible desktop left by <max>"},
    {ACTION_VIEW_UP_MIN,         BOTH,  0, StepView,            DIR_UP | BY_MIN,       "Move visible desktop up by <min>", {CTRL_ALT_SHIFT, VK_UP}},
    {ACTION_VIEW_UP_MAX,         BOTH,  0, StepView,            DIR_UP | BY_MAX,       "Move visible desktop up by <max>"},
    {ACTION_VIEW_DOWN_MIN,       BOTH,  0, StepView,            DIR_DOWN | BY_MIN,     "Move visible desktop down by <min>", {CTRL_ALT_SHIFT, VK_DOWN}},
    {ACTION_VIEW_DOWN_MAX,       BOTH,  0, StepView,            DIR_DOWN | BY_MAX,     "Move visible desktop down by <max>"},
    {ACTION_TOOLWIN_RIGHT_MIN,   KEY,   0, StepToolwin,         DIR_RIGHT | BY_MIN,    "Move toolwin right by <min>"},
    {ACTION_TOOLWIN_RIGHT_MAX,   KEY,   0, StepToolwin,         DIR_RIGHT | BY_MAX,    "Move toolwin right by <max>"},
    {ACTION_TOOLWIN_LEFT_MIN,    KEY,   0, StepToolwin,         DIR_LEFT | BY_MIN,     "Move toolwin left by <min>"},
    {ACTION_TOOLWIN_LEFT_MAX,    KEY,   0, StepToolwin,         DIR_LEFT | BY_MAX,     "Move toolwin left by <max>"},
    {ACTION_TOOLWIN_UP_MIN,      KEY,   0, StepToolwin,         DIR_UP | BY_MIN,       "Move toolwin up by <min>"},
    {ACTION_TOOLWIN_UP_MAX,      KEY,   0, StepToolwin,         DIR_UP | BY_MAX,       "Move toolwin up by <max>"},
    {ACTION_TOOLWIN_DOWN_MIN,    KEY,   0, StepToolwin,         DIR_DOWN | BY_MIN,     "Move toolwin down by <min>"},
    {ACTION_TOOLWIN_DOWN_MAX,    KEY,   0, StepToolwin,         DIR_DOWN | BY_MAX,     "Move toolwin down by <max>"},
    {ACTION_VIEW_TO_ACTIVE,      BOTH,  0, CenterOnActive,      0,                     "Move visible desktop to active window"},
    {ACTION_CENTER_ACTIVE,       BOTH,  0, CenterActiveWindow,  0,                     "Move active window to the visible desktop"},
    {ACTION_FLASH_ACTIVE,        OFF,   0, FlashGivenWindow,    0,                     "Flash the active window"},
    {ACTION_NEXT_IN_VIEW,        BOTH,  0, CycleView,           CYCLE_SECOND,          "Move to next window on visible desktop"},
    {ACTION_CYCLE_IN_VIEW,       BOTH,  0, CycleView,           CYCLE_LAST,            "Cycle through windows on visible desktop"},
    {ACTION_NEXT_SCREEN,         BOTH,  0, GoToScreen,          NEXT_SCREEN,           "Move to next visible desktop"},
    {ACTION_PREVIOUS_SCREEN,     BOTH,  0, GoToScreen,          PREVIOUS_SCREEN,       "Move to previous visible desktop"},
    {ACTION_SCREEN_LEFT,         BOTH,  0, GoToScreen,          SCREEN_LEFT,           "Move one desktop to the left", {CTRL_ALT, VK_LEFT}},
    {ACTION_SCREEN_UP,           BOTH,  0, GoToScreen,          SCREEN_UP,             "Move one desktop up", {CTRL_ALT, VK_UP}},
    {ACTION_SCREEN_RIGHT,        BOTH,  0, GoToScreen,          SCREEN_RIGHT,          "Move one desktop to the right", {CTRL_ALT, VK_RIGHT}},
    {ACTION_SCREEN_DOWN,         BOTH,  0, GoToScreen,          SCREEN_DOWN,           "Move one desktop down", {CTRL_ALT, VK_DOWN}},
    {ACTION_VIEW_TO_TOP,         KEY,   0, GoToScreen,          TOP_EDGE,              "Move to top edge"},
    {ACTION_VIEW_TO_BOTTOM,      KEY,   0, GoToScreen,          BOTTOM_EDGE,           "Move to bottom edge"},
    {ACTION_VIEW_TO_LEFT,        KEY,   0, GoToScreen,          LEFT_EDGE,             "Move to left edge"},
    {ACTION_VIEW_TO_RIGHT,       KEY,   0, GoToScreen,          RIGHT_EDGE,            "Move to right edge"},
    {ACTION_NEXT_REGION,         BOTH,  0, StepToRegion,        1,                     "Move to next defined region"},
    {ACTION_PREVIOUS_REGION,     BOTH,  0, StepToRegion,        -1,                    "Move to previous defined region"},
    {ACTION_DRAG_TOOLWIN,        MOUSE, 0, DoNothing,           0,                     "Drag the tool window to a new position", NO_KEY, {0, LBUTTON}},
    {ACTION_DRAG_WINDOW,         MOUSE, 0, DoNothing,           0,                     "Move window represented in Toolwin", NO_KEY, {CTRL_SHIFT, LBUTTON}},
    // The buttons 1 and 2 are no flags, so these two never match a press; the settings file stores them.
    {ACTION_LOCK_WINDOW,         KEY,   0, LockActiveWindow,    1,                     "Lock window in view", {KEY_WIN, VK_DOWN}, {KEY_ALT, 1}},
    {ACTION_UNLOCK_WINDOW,       KEY,   0, LockActiveWindow,    0,                     "Unlock window from view", {KEY_WIN, VK_UP}, {KEY_ALT, 2}},
    {ACTION_SHRINK_WIDTH,        KEY,   0, ResizeToolwin,       DIR_LEFT | BY_MIN,     "Shrink Toolwin width"},
    {ACTION_EXPAND_WIDTH,        KEY,   0, ResizeToolwin,       DIR_RIGHT | BY_MIN,    "Expand Toolwin width"},
    {ACTION_SHRINK_HEIGHT,       KEY,   0, ResizeToolwin,       DIR_UP | BY_MIN,       "Shrink Toolwin height"},
    {ACTION_EXPAND_HEIGHT,       KEY,   0, ResizeToolwin,       DIR_DOWN | BY_MIN,     "Expand Toolwin height"},
    {ACTION_FLASH_VIEW,          OFF,   0, nullptr,             0,                     "Flash visible area on Toolwin"},
    {ACTION_SAVE_SETTINGS,       KEY,   0, SaveSettingsAction,  0,                     "Save Current Settings..."},
    {ACTION_LOAD_SETTINGS,       KEY,   0, LoadSettingsAction,  0,                     "Load Settings From File..."},
    {ACTION_MARK_REGION,         KEY,   0, OpenDialogAction,    DIALOG_NAME_REGION,    "Mark Current Region..."},
    {ACTION_UNMARK_REGION,       KEY,   0, UnmarkRegion,        0,                     "Unmark Current Region"},
    {ACTION_UNMARK_ALL_REGIONS,  KEY,   0, UnmarkAllRegions,    0,                     "Unmark All Marked Regions"},
    {ACTION_FIND_WINDOW,         BOTH,  0, OpenDialogAction,    DIALOG_FIND_WINDOW,    "Find Window..."},
    {ACTION_RESIZE_WINDOW,       BOTH,  0, OpenDialogAction,    DIALOG_RESIZE_WINDOWS, "Resize Window..."},
    {ACTION_OPTIONS,             KEY,   0, OpenDialogAction,    DIALOG_OPTIONS,        "Options..."},
    {ACTION_DEFINE_ACTIONS,      KEY,   0, OpenDialogAction,    DIALOG_ACTIONS,        "Define Actions..."},
    {ACTION_HELP,                KEY,   0, OpenDialogAction,    DIALOG_HELP,           "Help..."},
    {ACTION_ABOUT,               KEY,   0, OpenDialogAction,    DIALOG_ABOUT,          "About..."},
    {ACTION_ALWAYS_ON_TOP,       BOTH,  1, ToggleValue,         0,                     "Toggle Toolwin Always On Top"},
    {ACTION_EXIT,                KEY,   0, QuitAction,                0,                     "Exit"},
    {ACTION_ADD_RIGHT,           BOTH,  0, ChangeDesktopSize,   ADD_RIGHT,             "Add Desktop to right"},
    {ACTION_ADD_LEFT,            BOTH,  0, ChangeDesktopSize,   ADD_LEFT,              "Add Desktop to left"},
    {ACTION_ADD_BOTTOM,          BOTH,  0, ChangeDesktopSize,   ADD_BOTTOM,            "Add Desktop to bottom"},
    {ACTION_ADD_TOP,             BOTH,  0, ChangeDesktopSize,   ADD_TOP,               "Add Desktop to top"},
    {ACTION_REMOVE_RIGHT,        BOTH,  0, ChangeDesktopSize,   REMOVE_RIGHT,          "Remove Desktop from right"},
    {ACTION_REMOVE_LEFT,         BOTH,  0, ChangeDesktopSize,   REMOVE_LEFT,           "Remove Desktop from left"},
    {ACTION_REMOVE_TOP,          BOTH,  0, ChangeDesktopSize,   REMOVE_TOP,            "Remove Desktop from top"},
    {ACTION_REMOVE_BOTTOM,       BOTH,  0, ChangeDesktopSize,   REMOVE_BOTTOM,         "Remove Desktop from bottom"},
    {ACTION_BORDER_UP,           BOTH,  0, ChangeBorder,        1,                     "Options.border + 1"},
    {ACTION_BORDER_DOWN,         BOTH,  0, ChangeBorder,        -1,                    "Options.border - 1"},
    {ACTION_TOOLTIP,             BOTH,  1, ToggleValue,         0,                     "Toggle Tooltip"},
    {ACTION_LOAD_AT_START,       BOTH,  1, ToggleValue,         0,                     "Toggle Load Previous Settings"},
    {ACTION_SAVE_AT_EXIT,        BOTH,  1, ToggleValue,         0,                     "Toggle Save Previous Settings"},
    {ACTION_SNAP,                BOTH,  1, ToggleValue,         0,                     "Toggle Snap to Edge"},
    {ACTION_CUSTOMIZE_MENU,      BOTH,  0, OpenDialogAction,    DIALOG_CUSTOMIZE_MENU, "Customize Menu..."},
    {ACTION_COLOR_BORDERS,       OFF,   0, DoNothing,           0,                     "Change color of visible window borders"},
    {ACTION_COLOR_ACTIVE,        OFF,   0, DoNothing,           0,                     "Change color of active window"},
    {ACTION_SHOW_TOOLWIN,        BOTH,  1, ToggleToolwin, 0,                     "Show Quorl Toolwin"},
    {ACTION_FIND_WINDOW_OLD,     OFF,   0, nullptr,             0,                     "Oops. See Find Window"},
    {ACTION_FOLLOW_ACTIVE,       BOTH,  0, ToggleValue,         0,                     "Keep active window in view"},
    {ACTION_TILE_VERTICALLY,     BOTH,  0, TileView,            MDITILE_VERTICAL,      "Vertically tile windows in view (even partially)"},
    {ACTION_TILE_HORIZONTALLY,   BOTH,  0, TileView,            MDITILE_HORIZONTAL,    "Horizontally tile windows in view (even partially)"},
    {ACTION_RESTORE_MAXIMIZED,   BOTH,  0, ToggleValue,         0,                     "Restore a maximized window before moving"},
    {ACTION_MOVE_MINIMIZED,      OFF,   0, ToggleValue,         0,                     "Move a minimized window when moving regions"},
    {ACTION_LOCK_STATION,        BOTH,  0, LockStation,         0,                     "Lock Work Station."},
    {ACTION_FOLLOW_MOUSE,        BOTH,  0, ToggleValue,         0,                     "Toggle Follow Mouse Cursor.", UNUSED_KEY},
    {ACTION_MOUSE_OFF_1,         OFF,   0, ToggleValue,         0,                     "Disabled. Forget it.", UNUSED_KEY},
    {ACTION_MOUSE_OFF_2,         OFF,   0, nullptr,             0,                     "Disabled. Use Mouse scroll type in Options", UNUSED_KEY},
    {ACTION_MOUSE_OFF_3,         OFF,   0, nullptr,             0,                     "Disabled. Use mouse scroll type in Options", UNUSED_KEY},
    {ACTION_QUICK_REDRAW,        BOTH,  1, ToggleValue,         0,                     "Toggle Quick toolwin redraw"},
    {ACTION_SUPPRESS_SCROLL,     BOTH,  0, ToggleValue,         0,                     "Toggle Suppress mouse scroll when dragging"},
    {ACTION_SUPPRESS_FOLLOW,     BOTH,  0, ToggleValue,         0,                     "Toggle Suppress Follow Active when dragging"},
    {ACTION_ACTIVE_LEFT_MIN,     BOTH,  0, MoveActiveWindow,    DIR_LEFT | BY_MIN,     "Move Active Window Left <min>"},
    {ACTION_ACTIVE_RIGHT_MIN,    BOTH,  0, MoveActiveWindow,    DIR_RIGHT | BY_MIN,    "Move Active Window Right <min>"},
    {ACTION_ACTIVE_UP_MIN,       BOTH,  0, MoveActiveWindow,    DIR_UP | BY_MIN,       "Move Active Window Up <min>"},
    {ACTION_ACTIVE_DOWN_MIN,     BOTH,  0, MoveActiveWindow,    DIR_DOWN | BY_MIN,     "Move Active Window Down <min>"},
    {ACTION_ACTIVE_LEFT_MAX,     BOTH,  0, MoveActiveWindow,    DIR_LEFT | BY_MAX,     "Move Active Window Left <max>"},
    {ACTION_ACTIVE_RIGHT_MAX,    BOTH,  0, MoveActiveWindow,    DIR_RIGHT | BY_MAX,    "Move Active Window Right <max>"},
    {ACTION_ACTIVE_UP_MAX,       BOTH,  0, MoveActiveWindow,    DIR_UP | BY_MAX,       "Move Active Window Up <max>"},
    {ACTION_ACTIVE_DOWN_MAX,     BOTH,  0, MoveActiveWindow,    DIR_DOWN | BY_MAX,     "Move Active Window Down <max>"},
    {ACTION_ACTIVE_LEFT_SCREEN,  BOTH,  0, MoveActiveWindow,    DIR_LEFT | BY_SCREEN,  "Move Active Window Left <desktop>"},
    {ACTION_ACTIVE_RIGHT_SCREEN, BOTH,  0, MoveActiveWindow,    DIR_RIGHT | BY_SCREEN, "Move Active Window Right <desktop>"},
    {ACTION_ACTIVE_UP_SCREEN,    BOTH,  0, MoveActiveWindow,    DIR_UP | BY_SCREEN,    "Move Active Window Up <desktop>"},
    {ACTION_ACTIVE_DOWN_SCREEN,  BOTH,  0, MoveActiveWindow,    DIR_DOWN | BY_SCREEN,  "Move Active Window Down <desktop>"},
    {ACTION_ACTIVE_TO_LEFT,      BOTH,  0, MoveActiveToEdge,    DIR_LEFT,              "Move Active Window To Left Edge"},
    {ACTION_ACTIVE_TO_RIGHT,     BOTH,  0, MoveActiveToEdge,    DIR_RIGHT,             "Move Active Window To Right Edge"},
    {ACTION_ACTIVE_TO_TOP,       BOTH,  0, MoveActiveToEdge,    DIR_UP,                "Move Active Window To Top Edge"},
    {ACTION_ACTIVE_TO_BOTTOM,    BOTH,  0, MoveActiveToEdge,    DIR_DOWN,              "Move Active Window To Bottom Edge"},
    {ACTION_SCREEN_SAVER,        BOTH,  0, StartScreenSaver,    0,                     "Activate Screen Saver"},
    {ACTION_SAVE_LOCATIONS,      OFF,   0, nullptr,             0,                     "Save Current Window Locations"},
    {ACTION_LOAD_LOCATIONS,      OFF,   0, nullptr,             0,                     "Load Previous Window Locations"},
    {ACTION_FIND_REGION,         BOTH,  0, OpenDialogAction,    DIALOG_FIND_REGION,    "Find Region..."},
    {ACTION_HIDE_ACTIVE,         OFF,   0, nullptr,             0,                     "Hide Active Window"},
    {ACTION_SHOW_HIDDEN,         OFF,   0, nullptr,             0,                     "Show Hidden Window...", UNUSED_KEY},
    {ACTION_SHIFT_SUPPRESS,      BOTH,  1, ToggleValue,         0,                     "Shift Suppress Cursor Scroll"},
    {ACTION_XWIN_MOUSE,          OFF,   0, ToggleValue,         0,                     "Toggle XWin mouse"},
    {ACTION_TRANSPARENCY,        BOTH,  0, OpenDialogAction,    DIALOG_TRANSPARENCY,   "Set Toolwin Transparency"},
    {ACTION_FOCUS_RIGHT,         BOTH,  0, FocusNeighbour,      DIR_RIGHT,             "Move to the window to the right of the active window"},
    {ACTION_FOCUS_LEFT,          BOTH,  0, FocusNeighbour,      DIR_LEFT,              "Move to the window to the left of the active window"},
    {ACTION_FOCUS_UP,            BOTH,  0, FocusNeighbour,      DIR_UP,                "Move to the window above the active window"},
    {ACTION_FOCUS_DOWN,          BOTH,  0, FocusNeighbour,      DIR_DOWN,              "Move to the window below the active window"},
    {ACTION_TOGGLE_TOPMOST,      KEY,   0, ToggleActiveTopmost, 0,                     "Toggle window topmost"},
    {ACTION_IGNORE_TOOLWINS,     KEY,   1, ToggleValue,         0,                     "Toggle Ignore Toolwins"},
};
// clang-format on

// The one dispatcher, and what each row of the table does.
#include "actions/dispatch.h"

#include "actions/active_window.h"
#include "actions/navigation.h"
#include "actions/program_rows.h"
#include "actions/toolwin_rows.h"
#include "actions/view_rows.h"
#include "core/state.h"
#include "dialogs/dialog_rows.h"
#include "menus/action_menu.h"
#include "regions/region_rows.h"
#include "scroll/desktop_size.h"
#include "settings/settings.h"

#include <array>

namespace {

struct ActionHandlerRow {
    ActionId row;
    ActionHandler does;
    int with;
};

} // namespace

// Rows that differ in a direction or an amount only share a handler. A row that is not here has none.
// clang-format off
static constexpr ActionHandlerRow ActionHandlers[] = {
    // row, does, with
    {0,   DisplayMenu,        0},
    {1,   GoToPoint,          AT_CORNER},
    {2,   GoToPoint,          AT_CENTER},
    {3,   GoToRegion,         0},
    {4,   GoToPoint,          AT_CELL},
    {5,   StepView,           STEP_RIGHT | BY_MIN},
    {6,   StepView,           STEP_RIGHT | BY_MAX},
    {7,   StepView,           STEP_LEFT | BY_MIN},
    {8,   StepView,           STEP_LEFT | BY_MAX},
    {9,   StepView,           STEP_UP | BY_MIN},
    {10,  StepView,           STEP_UP | BY_MAX},
    {11,  StepView,           STEP_DOWN | BY_MIN},
    {12,  StepView,           STEP_DOWN | BY_MAX},
    {13,  StepToolwin,        STEP_RIGHT | BY_MIN},
    {14,  StepToolwin,        STEP_RIGHT | BY_MAX},
    {15,  StepToolwin,        STEP_LEFT | BY_MIN},
    {16,  StepToolwin,        STEP_LEFT | BY_MAX},
    {17,  StepToolwin,        STEP_UP | BY_MIN},
    {18,  StepToolwin,        STEP_UP | BY_MAX},
    {19,  StepToolwin,        STEP_DOWN | BY_MIN},
    {20,  StepToolwin,        STEP_DOWN | BY_MAX},
    {21,  CenterOnActive,     0},
    {22,  CenterActive,       0},
    {23,  FlashGivenWindow,   0},
    {24,  CycleInView,        0},
    {25,  CycleInView,        0},
    {26,  GoToScreen,         NEXT_SCREEN},
    {27,  GoToScreen,         PREVIOUS_SCREEN},
    {28,  GoToScreen,         SCREEN_LEFT},
    {29,  GoToScreen,         SCREEN_UP},
    {30,  GoToScreen,         SCREEN_RIGHT},
    {31,  GoToScreen,         SCREEN_DOWN},
    {32,  GoToScreen,         TOP_EDGE},
    {33,  GoToScreen,         BOTTOM_EDGE},
    {34,  GoToScreen,         LEFT_EDGE},
    {35,  GoToScreen,         RIGHT_EDGE},
    {36,  StepToRegion,       1},
    {37,  StepToRegion,       -1},
    {38,  DoNothing,          1}, // dragging on the map does the work
    {39,  DoNothing,          1},
    {40,  LockActive,         1},
    {41,  LockActive,         0},
    {42,  SizeToolwin,        0},
    {43,  SizeToolwin,        0},
    {44,  SizeToolwin,        0},
    {45,  SizeToolwin,        0},
    {47,  OnSaveSettings,     0},
    {48,  OnLoadSettings,     0},
    {49,  OpenDialogOfRow,    0},
    {50,  UnmarkRegion,       0},
    {51,  UnmarkAllRegions,   0},
    {52,  OpenDialogOfRow,    0},
    {53,  OpenDialogOfRow,    0},
    {54,  OpenOptions,        0},
    {55,  OpenDialogOfRow,    0},
    {56,  OpenDialogOfRow,    0},
    {57,  OpenDialogOfRow,    0},
    {58,  ToggleValue,        0},
    {59,  Quit,               0},
    {60,  ChangeDesktopSize,  ADD_RIGHT},
    {61,  ChangeDesktopSize,  ADD_LEFT},
    {62,  ChangeDesktopSize,  ADD_BOTTOM},
    {63,  ChangeDesktopSize,  ADD_TOP},
    {64,  ChangeDesktopSize,  REMOVE_RIGHT},
    {65,  ChangeDesktopSize,  REMOVE_LEFT},
    {66,  ChangeDesktopSize,  REMOVE_TOP},
    {67,  ChangeDesktopSize,  REMOVE_BOTTOM},
    {68,  ChangeBorder,       1},
    {69,  ChangeBorder,       -1},
    {70,  ToggleValue,        0},
    {71,  ToggleValue,        0},
    {72,  ToggleValue,        0},
    {73,  ToggleValue,        0},
    {74,  OpenDialogOfRow,    0},
    {75,  DoNothing,          0},
    {76,  DoNothing,          0},
    {77,  ShowOrHideToolwin,  0},
    {79,  ToggleValue,        0},
    {80,  TileInView,         0},
    {81,  TileInView,         0},
    {82,  ToggleValue,        0},
    {83,  ToggleValue,        0},
    {84,  LockStation,        0},
    {85,  ToggleValue,        0},
    {86,  ToggleValue,        0},
    {89,  ToggleValue,        0},
    {90,  ToggleValue,        0},
    {91,  ToggleValue,        0},
    {92,  MoveActive,         TO_LEFT | AMOUNT_MIN},
    {93,  MoveActive,         TO_RIGHT | AMOUNT_MIN},
    {94,  MoveActive,         TO_TOP | AMOUNT_MIN},
    {95,  MoveActive,         TO_BOTTOM | AMOUNT_MIN},
    {96,  MoveActive,         TO_LEFT | AMOUNT_MAX},
    {97,  MoveActive,         TO_RIGHT | AMOUNT_MAX},
    {98,  MoveActive,         TO_TOP | AMOUNT_MAX},
    {99,  MoveActive,         TO_BOTTOM | AMOUNT_MAX},
    {100, MoveActive,         TO_LEFT | AMOUNT_SCREEN},
    {101, MoveActive,         TO_RIGHT | AMOUNT_SCREEN},
    {102, MoveActive,         TO_TOP | AMOUNT_SCREEN},
    {103, MoveActive,         TO_BOTTOM | AMOUNT_SCREEN},
    {104, MoveActive,         TO_LEFT},
    {105, MoveActive,         TO_RIGHT},
    {106, MoveActive,         TO_TOP},
    {107, MoveActive,         TO_BOTTOM},
    {108, StartScreenSaver,   0},
    {111, OpenDialogOfRow,    0},
    {114, ToggleValue,        0},
    {115, ToggleValue,        0},
    {116, OpenDialogOfRow,    0},
    {117, GoToNeighbour,      SWEEP_RIGHT},
    {118, GoToNeighbour,      SWEEP_LEFT},
    {119, GoToNeighbour,      SWEEP_UP},
    {120, GoToNeighbour,      SWEEP_DOWN},
    {121, ToggleTopmost,      0},
    {122, ToggleValue,        0},
};
// clang-format on

static consteval std::array<ActionHandlerRow, NUM_ACTIONS> ByRow() {
    std::array<ActionHandlerRow, NUM_ACTIONS> index{};
    for (const ActionHandlerRow& handler : ActionHandlers)
        index[static_cast<std::size_t>(handler.row)] = handler;
    return index;
}

static constexpr std::array<ActionHandlerRow, NUM_ACTIONS> HandlerIndex = ByRow();

static int SayUnhandled() {
    MessageBoxA(nullptr, "Actually, I don't handle that one yet.", "Sorry.", MB_OK);
    return 0;
}

// A region is named by its number in place of a point.
static int JumpToRegion(HWND window, int region) {
    ActionPoint point{region, -1};
    return DoAction(window, ROW_REGION, &point);
}

int DoAction(HWND window, int id, ActionPoint* point) {
    if (bQuitting)
        return 0; // the windows are folded back by now
    if (id > NUM_ACTIONS)
        return JumpToRegion(window, id - FIRST_REGION_ID);
    if (id < 0 || id == NUM_ACTIONS)
        return SayUnhandled();
    const ActionHandlerRow& handler = HandlerIndex[static_cast<std::size_t>(id)];
    if (!handler.does)
        return SayUnhandled();
    ActionPoint origin{0, 0};
    return handler.does({window, id, point ? point : &origin, handler.with});
}

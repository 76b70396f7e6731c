// Every row of the table of actions, and the case in which a user sees it work. The cases of rows that no
// other file has a story for stand here.
#include "dialogs.h"
#include "mouse.h"
#include "settings_file.h"

#include <map>
#include <set>

namespace {

struct ShownRows {
    int first, last;
    const char* by;
};
const ShownRows Shown[] = {
    {0,   0,   "Hotkeys.TheMenuOpensAndCloses"                                              },
    {1,   1,   "Rows.TheMapsPointsAreGoneTo"                                                },
    {2,   2,   "MapMouse.ShiftAndLeftGoToTheScreenUnderTheCursorAndTheMiddleButtonCentersIt"},
    {3,   3,   "Rows.TheMapsPointsAreGoneTo"                                                },
    {4,   4,   "MapMouse.ShiftAndLeftGoToTheScreenUnderTheCursorAndTheMiddleButtonCentersIt"},
    {5,   5,   "Hotkeys.EachOfTheViewKeysMovesTheWindows"                                   },
    {6,   6,   "Rows.TheViewMovesByStepsAndScreens"                                         },
    {7,   7,   "Hotkeys.EachOfTheViewKeysMovesTheWindows"                                   },
    {8,   8,   "Rows.TheViewMovesByStepsAndScreens"                                         },
    {9,   9,   "Hotkeys.EachOfTheViewKeysMovesTheWindows"                                   },
    {10,  10,  "Rows.TheViewMovesByStepsAndScreens"                                         },
    {11,  11,  "Hotkeys.EachOfTheViewKeysMovesTheWindows"                                   },
    {12,  12,  "Rows.TheViewMovesByStepsAndScreens"                                         },
    {13,  20,  "Rows.TheMapMovesSnapsAndGrows"                                              },
    {21,  21,  "Follow.OnDemandTheViewGoesToTheActiveWindow"                                },
    {22,  22,  "Rows.TheActiveWindowMovesWithinTheDesktop"                                  },
    {23,  23,  "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    }, // no caption, so no flash
    {24,  25,  "Rows.TheWindowsInViewTakeTurns"                                             },
    {26,  27,  "Rows.TheViewMovesByStepsAndScreens"                                         },
    {28,  31,  "Hotkeys.EachOfTheViewKeysMovesTheWindows"                                   },
    {32,  35,  "DesktopSize.TheFarEdgesFollowTheSize"                                       },
    {36,  37,  "Rows.RegionsAreSteppedThroughAndUnmarked"                                   },
    {38,  38,  "MapMouse.TheLeftButtonDragsTheMapWithTheCursor"                             },
    {39,  39,  "MapMouse.AWindowFollowsItsBoxAndTheMapStays"                                },
    {40,  41,  "Hotkeys.TheActiveWindowIsLockedAndUnlocked"                                 },
    {42,  45,  "Rows.TheMapMovesSnapsAndGrows"                                              },
    {46,  46,  "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {47,  48,  "Settings.TheNextRunFindsWhatTheLastOneLeft"                                 },
    {49,  49,  "NameRegion.TheViewIsMarkedByNameAndColourAndItsDigitComesBackToIt"          },
    {50,  51,  "Rows.RegionsAreSteppedThroughAndUnmarked"                                   },
    {52,  52,  "FindWindows.TheViewComesToTheChosenWindowAndTheDialogStays"                 },
    {53,  53,  "ResizeWindows.TheNumbersAreTheSizeOnceTheyAreApplied"                       },
    {54,  54,  "OptionsDialog.ItsSpinnersStepTheDesktopByScreensAndNothingChangesUntilOk"   },
    {55,  55,  "ActionsDialog.EachTabListsItsActionsAndShowsTheBindingOfTheSelectedOne"     },
    {56,  56,  "Help.ItsTextAndItsButtonFollowTheWindowsSize"                               },
    {57,  57,  "About.ItNamesTheProgramAndShowsItsPicture"                                  },
    {58,  58,  "Rows.SwitchesTurnAndAreSaved"                                               }, // only a check mark
    {59,  59,  "Settings.TheNextRunFindsWhatTheLastOneLeft"                                 },
    {60,  60,  "DesktopSize.TheFarEdgesFollowTheSize"                                       },
    {61,  61,  "DesktopSize.RoomOnTheLeftAndTopSlidesTheWindows"                            },
    {62,  62,  "DesktopSize.TheFarEdgesFollowTheSize"                                       },
    {63,  63,  "DesktopSize.RoomOnTheLeftAndTopSlidesTheWindows"                            },
    {64,  64,  "DesktopSize.TheFarEdgesFollowTheSize"                                       },
    {65,  66,  "DesktopSize.RoomOnTheLeftAndTopSlidesTheWindows"                            },
    {67,  67,  "DesktopSize.TheFarEdgesFollowTheSize"                                       },
    {68,  69,  "Rows.TheBorderGrowsAndShrinks"                                              },
    {70,  70,  "Settings.TheNextRunFindsWhatTheLastOneLeft"                                 },
    {71,  72,  "Rows.SwitchesTurnAndAreSaved"                                               },
    {73,  73,  "Rows.TheMapMovesSnapsAndGrows"                                              },
    {74,  74,  "CustomizeMenuDialog.EntriesComeAndGoAndMoveAndTheFileHasThemInTheirOrder"   },
    {75,  76,  "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {77,  77,  "Menu.ANewUserSeesItsEntriesAtThePointerAndAChoiceRunsItsRow"                },
    {78,  78,  "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {79,  79,  "Follow.WhenToldSoTheViewFollowsEveryActivation"                             },
    {82,  82,  "Scroll.AMaximizedWindowIsRestoredWhenTheUserAskedForIt"                     },
    {83,  83,  "Rows.SwitchesTurnAndAreSaved"                                               }, // only a check mark
    {85,  85,  "EdgeScroll.TheViewFollowsTheMouseOverTheEdgeAndBack"                        },
    {86,  86,  "Rows.SwitchesTurnAndAreSaved"                                               }, // steers nothing
    {87,  88,  "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {89,  91,  "Rows.SwitchesTurnAndAreSaved"                                               },
    {92,  107, "Rows.TheActiveWindowMovesWithinTheDesktop"                                  },
    {108, 108, "Rows.TheScreenSaverIsAskedForAmongAllWindows"                               },
    {109, 110, "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {111, 111, "FindWindows.TheViewComesToTheChosenWindowAndTheDialogStays"                 },
    {112, 113, "Rows.SomeRowsDoNothingToSeeAndSomeSaySo"                                    },
    {114, 114, "EdgeScroll.TheViewFollowsTheMouseOverTheEdgeAndBack"                        },
    {115, 115, "Rows.TheFocusFollowsTheMouse"                                               },
    {116, 116, "Transparency.TheMapFollowsTheSliderAndKeepsWhatItShowed"                    },
    {117, 120, "Rows.TheNeighbourOnEachSideIsActivated"                                     },
    {121, 121, "Rows.TheActiveWindowGoesTopmostAndBack"                                     },
    {122, 122, "Rows.SwitchesTurnAndAreSaved"                                               },
};

// Seen on the in-memory desktop only, by a case of quorl_tests: Wine's TileWindows and LockWorkStation do
// nothing, and Windows would lock the tester out.
const ShownRows ShownNatively[] = {
    {80, 81, "Navigation.TilingHandsOverWhatSharesAPixelWithTheScreen"},
    {84, 84, "ProgramRows.TheWorkStationIsLockedWhereTheSystemCan"    },
};

std::set<std::string> KnownCases() {
    std::set<std::string> names;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j)
            names.insert(std::string(suite.name()) + "." + suite.GetTestInfo(j)->name());
    }
    return names;
}

const Place EDITOR = {200, 150, 600, 450};
constexpr int SAVE = 47;

// The last number of an action's line in the file.
std::string StoredValue(int row) {
    const std::string line = Stored(("Action" + std::to_string(row)).c_str());
    return line.substr(line.rfind('|') + 1);
}

// A row, and where the view then stands on the desktop.
struct ViewStep {
    int row, x, y;
};
void SeeView(HWND editor, std::initializer_list<ViewStep> steps) {
    for (const ViewStep& step : steps) {
        DoRow(step.row);
        EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -step.x, -step.y)) << "row " << step.row;
    }
}

// Waits until Quorl and the window's program have done all that an activation means to them; one that comes
// in between is undone under Wine.
void Settle(HWND window) {
    DWORD_PTR answer = 0;
    for (const HWND each : {QuorlWindow(), window})
        EXPECT_TRUE(SendMessageTimeoutA(each, WM_NULL, 0, 0, SMTO_NORMAL, PATIENCE, &answer));
    Sleep(200);
}

struct PlaceStep {
    int row;
    Place place;
};

} // namespace

TEST(Rows, EachIsShownByACaseThatThereIs) {
    const std::set<std::string> known = KnownCases();
    std::map<int, int> times;
    for (const ShownRows& rows : Shown) {
        EXPECT_TRUE(known.contains(rows.by)) << rows.by;
        for (int row = rows.first; row <= rows.last; ++row)
            ++times[row];
    }
    for (const ShownRows& rows : ShownNatively)
        for (int row = rows.first; row <= rows.last; ++row)
            ++times[row];
    EXPECT_EQ(times.size(), 123U);
    for (int row = 0; row < 123; ++row)
        EXPECT_EQ(times[row], 1) << "row " << row;
}

TEST(Rows, TheViewMovesByStepsAndScreens) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(StartQuorl());
    SeeView(editor, {
                        {6,  100,  0  },
                        {12, 100,  100},
                        {8,  0,    100},
                        {10, 0,    0  },
                        {26, 1024, 0  },
                        {27, 0,    0  },
                        {27, 3072, 768},
                        {26, 0,    0  }
    });
}

// Rows of the map's points have no keys: they are put on its bare buttons.
TEST(Rows, TheMapsPointsAreGoneTo) {
    Store("Action0", "-1|-1|-1|-1|0");
    Store("Action1", "0|32|-1|-1|0");
    Store("Action2", "-1|-1|-1|-1|0");
    Store("Action3", "0|16|-1|-1|0");
    Store("num_regions", "1");
    Store("Region0", "web|2000|300|3024|1068|255");
    const HWND editor = OpenWindow("editor", {700, 350, 900, 450});
    ASSERT_TRUE(StartQuorl());
    MoveMouse(OnMap(700, 500));
    const POINT corner = OnDesktop(OnMap(700, 500));
    EXPECT_SOON(TipStrip() != nullptr, true) << "the map has seen the mouse";
    Click(MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP);
    EXPECT_SOON(PlaceOf(editor), Moved({700, 350, 900, 450}, -corner.x, -corner.y));

    MoveMouse(OnMap(2500, 700));
    Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    EXPECT_SOON(PlaceOf(editor), Moved({700, 350, 900, 450}, -2000, -300));
}

TEST(Rows, RegionsAreSteppedThroughAndUnmarked) {
    Store("num_regions", "3");
    Store("Region0", "home|0|0|1024|768|255");
    Store("Region1", "web|2000|300|3024|1068|255");
    Store("Region2", "mail|1100|768|2124|1536|255");
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(StartQuorl());
    SeeView(editor, {
                        {36, 2000, 300},
                        {36, 1100, 768},
                        {36, 0,    0  },
                        {37, 1100, 768},
                        {37, 2000, 300}
    });
    for (const auto& [row, left] : {
             std::pair{50, "2"},
             std::pair{51, "0"}
    }) {
        DoRow(row);
        DoRow(SAVE);
        EXPECT_SOON(Stored("num_regions"), std::string(left)) << "row " << row;
    }
}

TEST(Rows, TheMapMovesSnapsAndGrows) {
    const PlaceStep steps[] = {
        {13, {105, 100, 305, 200}},
        {14, {205, 100, 405, 200}},
        {15, {200, 100, 400, 200}},
        {16, {100, 100, 300, 200}},
        {19, {100, 105, 300, 205}},
        {20, {100, 205, 300, 305}},
        {17, {100, 200, 300, 300}},
        {18, {100, 100, 300, 200}},
        {43, {100, 100, 305, 200}},
        {45, {100, 100, 305, 205}},
        {42, {100, 100, 300, 205}},
        {44, {100, 100, 300, 200}},
        {18, {100, 0, 300, 100}  },
        {17, {100, 0, 300, 100}  }, // the screen's edge holds it
        {73, {100, 0, 300, 100}  },
        {17, {100, -5, 300, 95}  }, // and no more
    };
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    for (const PlaceStep& step : steps) {
        DoRow(step.row);
        EXPECT_SOON(PlaceOf(quorl), step.place) << "row " << step.row;
    }
}

TEST(Rows, TheActiveWindowMovesWithinTheDesktop) {
    const PlaceStep steps[] = {
        {92,            Moved(EDITOR,    -5, 0)},
        {93,           Moved(EDITOR,                          5, 0)},
        {94,Moved(EDITOR,0, -5)},
        {95,             Moved(EDITOR,                           0, 5)},
        {96,            Moved(EDITOR,                                             -100, 0)},
        {97,            Moved(EDITOR,   100, 0)},
        {98,           Moved(EDITOR,                          0, -100)},
        {99,Moved(EDITOR,0, 100)},
        {100,             Moved(EDITOR,                           -SCREEN_W, 0)},
        {101,          Moved(EDITOR,                     SCREEN_W, 0)},
        {102,            Moved(EDITOR,     0, -150)}, // where the desktop begins
        {103,        Moved(EDITOR,                       0, SCREEN_H)},
        {104,            {0, 150, 400, 450}                                                                     },
        {105,             {624, 150, 1024, 450}                         },
        {106,    {200, 0, 600, 300}},
        {107,           {200, 468, 600, 768}    },
        {22,           {312, 234, 712, 534}                         },
    };
    const HWND editor = OpenWindow("editor", Moved(EDITOR, SCREEN_W, 0));
    ASSERT_TRUE(StartQuorl());
    DoRow(30); // room on its left
    EXPECT_SOON(PlaceOf(editor), EDITOR);
    Activate(editor);
    for (const PlaceStep& step : steps) {
        SetWindowPos(editor, nullptr, EDITOR.left, EDITOR.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        DoRow(step.row);
        EXPECT_SOON(PlaceOf(editor), step.place) << "row " << step.row;
    }
}

TEST(Rows, TheActiveWindowGoesTopmostAndBack) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(StartQuorl());
    for (const bool topmost : {true, false}) {
        Activate(editor);
        DoRow(121);
        EXPECT_SOON((GetWindowLongPtrA(editor, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, topmost);
        EXPECT_SOON(IsWindowVisible(editor) != 0, true);
    }
}

TEST(Rows, TheWindowsInViewTakeTurns) {
    const HWND bottom = OpenWindow("bottom", {100, 250, 300, 450});
    const HWND middle = OpenWindow("middle", {400, 250, 600, 450});
    OpenWindow("partly", {900, 250, 1100, 450});
    Activate(OpenWindow("top", {650, 250, 850, 450}));
    ASSERT_TRUE(StartQuorl());
    DoRow(24);
    EXPECT_SOON(GetForegroundWindow(), middle);
    Settle(middle);
    DoRow(25);
    EXPECT_SOON(GetForegroundWindow(), bottom);
}

TEST(Rows, TheNeighbourOnEachSideIsActivated) {
    const HWND middle = OpenWindow("middle", {400, 300, 600, 450});
    const struct {
        int row;
        HWND neighbour;
    } steps[] = {
        {117, OpenWindow("right", {1500, 300, 1700, 450})}, // off the screen
        {118, OpenWindow("left",  {50, 300, 250, 450})   },
        {119, OpenWindow("above", {400, 50, 600, 200})   },
        {120, OpenWindow("below", {400, 550, 600, 700})  },
    };
    ASSERT_TRUE(StartQuorl());
    for (const auto& [row, neighbour] : steps) {
        Activate(middle);
        Settle(middle);
        DoRow(row);
        EXPECT_SOON(GetForegroundWindow(), neighbour) << "row " << row;
        Settle(neighbour);
    }
}

TEST(Rows, TheFocusFollowsTheMouse) {
    const HWND editor = OpenWindow("editor", {400, 300, 600, 450});
    const HWND other = OpenWindow("other", {700, 300, 900, 450});
    ASSERT_TRUE(StartQuorl());
    DoRow(115);
    for (const HWND window : {editor, other, editor}) {
        const Place place = PlaceOf(window);
        EXPECT_SOON((AfterMoving(window, {place.left + 100, place.top + 100}), GetForegroundWindow()),
                    window);
    }
}

TEST(Rows, TheBorderGrowsAndShrinks) {
    ASSERT_TRUE(StartQuorl());
    for (const auto& [row, border] : {
             std::pair{68, "6"},
             std::pair{69, "5"},
             std::pair{69, "4"}
    }) {
        DoRow(row);
        DoRow(SAVE);
        EXPECT_SOON(Stored("border"), std::string(border)) << "row " << row;
    }
}

TEST(Rows, SwitchesTurnAndAreSaved) {
    const struct {
        int row;
        const char* after;
    } switches[] = {
        {58,  "0"},
        {71,  "0"},
        {72,  "0"},
        {83,  "1"},
        {86,  "1"},
        {89,  "0"},
        {90,  "1"},
        {91,  "1"},
        {122, "0"},
    };
    ASSERT_TRUE(StartQuorl());
    for (const auto& [row, after] : switches)
        DoRow(row);
    DoRow(SAVE);
    for (const auto& [row, after] : switches)
        EXPECT_SOON(StoredValue(row), std::string(after)) << "row " << row;

    Store("border", "9");
    DoRow(59);
    AnswerBox("QUIT?", 'Y');
    EXPECT_SOON(QuorlWindow(), HWND{});
    EXPECT_EQ(Stored("border"), "9") << "saving at the end is off";
}

TEST(Rows, SomeRowsDoNothingToSeeAndSomeSaySo) {
    ASSERT_TRUE(StartQuorl());
    for (const int row : {23, 75, 76, SAVE})
        DoRow(row);
    EXPECT_SOON(StoredValue(122), std::string("1"));
    EXPECT_FALSE(FindWindowA("#32770", nullptr)) << "no box by now";
    for (const int row : {46, 78, 87, 88, 109, 110, 112, 113}) {
        DoRow(row);
        const HWND box = WaitForBox("Sorry.");
        EXPECT_EQ(BoxText(box), "Actually, I don't handle that one yet.") << "row " << row;
        AnswerBox("Sorry.", VK_RETURN);
    }
}

// A window of this program hears the broadcast and keeps it to itself.
namespace {

bool bScreenSaverAsked;
LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_SYSCOMMAND || wParam != SC_SCREENSAVE)
        return DefWindowProcA(window, message, wParam, lParam);
    bScreenSaverAsked = true;
    return 0;
}

bool IsScreenSaverAsked() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
    return bScreenSaverAsked;
}

} // namespace

TEST(Rows, TheScreenSaverIsAskedForAmongAllWindows) {
    const HWND listener =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(listener, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Listen));
    ASSERT_TRUE(StartQuorl());
    EXPECT_FALSE(IsScreenSaverAsked());
    DoRow(108);
    EXPECT_SOON(IsScreenSaverAsked(), true);
    DestroyWindow(listener);
}

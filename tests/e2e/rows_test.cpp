// Every row of the table of actions, and where a user sees it work. Rows that no other file has a story for
// stand here.
#include "user.h"

#include <set>

namespace {

constexpr int NUM_ROWS = 123;

// Rows that run one after the other, and where the window stands then beside where it was at first.
struct Steps {
    std::vector<int> rows;
    int dx, dy;
};

// What a window shows of the view.
const std::vector<Steps> ViewSteps = {
    {{6, 12},          -100,          -100         },
    {{8},              0,             -100         },
    {{10, 26},         -SCREEN_W,     0            },
    {{27, 27},         -3 * SCREEN_W, -SCREEN_H    },
    {{26, 60, 35},     -4 * SCREEN_W, 0            }, // one more on the right
    {{62, 33},         -4 * SCREEN_W, -2 * SCREEN_H}, // one more at the bottom
    {{34, 32},         0,             0            },
    {{64, 67, 35, 33}, -3 * SCREEN_W, -SCREEN_H    }, // as many as before
    {{34, 32, 61},     SCREEN_W,      0            }, // room on the near sides
    {{65, 63},         0,             SCREEN_H     },
    {{66},             0,             0            },
};

const std::vector<Steps> MapSteps = {
    {{13, 14, 19, 20}, 105, 105 },
    {{15, 16},         0,   105 },
    {{17, 18},         0,   0   },
    {{18, 17},         0,   -100}, // the screen's edge holds it
    {{73, 17},         0,   -105}, // and no more
};

// The active window, from EDITOR on.
const std::vector<Steps> WindowSteps = {
    {{92, 94},   -5,                      -5                      },
    {{93, 95},   5,                       5                       },
    {{96, 98},   -100,                    -100                    },
    {{97, 99},   100,                     100                     },
    {{100},      -SCREEN_W,               0                       },
    {{101, 103}, SCREEN_W,                SCREEN_H                },
    {{102},      0,                       -EDITOR.top             }, // where the desktop begins
    {{104, 106}, -EDITOR.left,            -EDITOR.top             },
    {{105, 107}, SCREEN_W - EDITOR.right, SCREEN_H - EDITOR.bottom},
    {{22},       112,                     84                      },
};

const std::set<int> SwitchedOff = {58, 70, 71, 72, 89, 122};
const std::set<int> SwitchedOn = {83, 86, 90, 91};
const std::set<int> Silent = {23, 75, 76};
const std::set<int> Sorry = {46, 78, 87, 88, 109, 110, 112, 113};

// Seen on the in-memory desktop only. Wine's TileWindows and LockWorkStation do nothing, Windows would lock
// the tester out or hide the screen; and points of the map and the border are numbers that no window shows.
const std::set<int> ShownNatively = {1, 3, 68, 69, 80, 81, 84, 108};

struct Story {
    std::string name;
    std::set<int> rows;
};
const Story Stories[] = {
    {"Tour.ANewUserGetsAboutByKeysMapAndMenu",                {0, 2, 4, 38, 59, 77}                     },
    {"Tour.ANewUserGetsAboutByKeysMapAndMenu",                {5, 7, 9, 11, 28, 29, 30, 31}             },
    {"Tour.RegionsAndKeysOfOnesOwnAreThereAgainInTheNextRun", {36, 37, 39, 85, 114}                     },
    {"Tour.EachDialogOpensAndDoesItsWork",                    {49, 52, 53, 54, 55, 56, 57, 74, 111, 116}},
    {"Rows.WindowsAndTheMapGoWhereTheyAreSent",               {42, 43, 44, 45, 121}                     },
    {"Rows.TheActiveWindowIsLockedAndUnlocked",               {40, 41}                                  },
    {"Rows.OtherWindowsAreActivatedByRowsAndByTheMouse",      {21, 24, 25, 79, 115, 117, 118, 119, 120} },
    {"Tables.AreFullAtTheirLimits",                           {50, 51}                                  },
    {"Scroll.AMaximizedWindowIsRestoredWhenAskedFor",         {82}                                      },
    {"Life.TheNextRunFindsWhatTheLastOneLeft",                {SAVE, 48}                                },
};

bool IsCase(const Story& story) {
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i)
        for (int j = 0; j < all.GetTestSuite(i)->total_test_count(); ++j)
            if (story.name ==
                all.GetTestSuite(i)->name() + std::string(".") + all.GetTestSuite(i)->GetTestInfo(j)->name())
                return true;
    return false;
}

void ExpectToGo(HWND window, const Steps& steps, const Place& from) {
    for (const int row : steps.rows)
        DoRow(row);
    EXPECT_SOON(PlaceOf(window), Moved(from, steps.dx, steps.dy)) << "row " << steps.rows.back();
}

} // namespace

TEST(Rows, EachIsShownByACaseThatThereIs) {
    std::set<int> shown;
    for (const auto* const rows : {&SwitchedOff, &SwitchedOn, &Silent, &Sorry, &ShownNatively})
        shown.insert(rows->begin(), rows->end());
    for (const auto* const all : {&ViewSteps, &MapSteps, &WindowSteps})
        for (const Steps& steps : *all)
            shown.insert(steps.rows.begin(), steps.rows.end());
    for (const Story& story : Stories) {
        EXPECT_TRUE(IsCase(story)) << story.name;
        shown.insert(story.rows.begin(), story.rows.end());
    }
    EXPECT_EQ(shown.size(), std::size_t{NUM_ROWS});
    EXPECT_EQ(*shown.rbegin(), NUM_ROWS - 1);
}

TEST(Rows, WindowsAndTheMapGoWhereTheyAreSent) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND quorl = StartQuorl();
    for (const Steps& steps : ViewSteps)
        ExpectToGo(editor, steps, EDITOR);

    for (const int row : {43, 45, 45, 44})
        DoRow(row);
    EXPECT_SOON(PlaceOf(quorl), (Place{100, 100, 305, 205}));
    for (const int row : {42, 44})
        DoRow(row);
    for (const Steps& steps : MapSteps)
        ExpectToGo(quorl, steps, {100, 100, 300, 200});

    Activate(editor);
    ExpectToGo(editor, {{30}, -SCREEN_W, 0}, EDITOR); // room on its left
    for (const Steps& steps : WindowSteps) {
        SetWindowPos(editor, nullptr, EDITOR.left, EDITOR.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ExpectToGo(editor, steps, EDITOR);
    }
    for (const bool topmost : {true, false}) {
        Activate(editor);
        DoRow(121);
        EXPECT_SOON((GetWindowLongPtrA(editor, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, topmost);
        EXPECT_SOON(IsWindowVisible(editor) != 0, true);
    }
}

TEST(Rows, TheActiveWindowIsLockedAndUnlocked) {
    const Place otherPlace = {300, 250, 700, 550};
    const HWND witness = OpenWindow("witness", otherPlace); // undermost: moved last
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    Activate(editor);
    PressKeys({VK_LWIN, VK_DOWN});
    EXPECT_SOON(TipStrip() != nullptr, true) << "it says what it locked";
    EXPECT_EQ(GetForegroundWindow(), editor) << "and leaves it the keyboard";
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(witness), Moved(otherPlace, -SCREEN_W, 0));
    EXPECT_EQ(PlaceOf(editor), EDITOR);
    PressKeys({VK_LWIN, VK_UP});
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));
}

TEST(Rows, OtherWindowsAreActivatedByRowsAndByTheMouse) {
    const Place place = {400, 300, 600, 450};
    const HWND middle = OpenWindow("middle", place);
    const HWND around[] = {
        OpenWindow("right", {1500, 300, 1700, 450}), // off the screen
        OpenWindow("left", {50, 300, 250, 450}),
        OpenWindow("above", {400, 50, 600, 200}),
        OpenWindow("below", {400, 550, 600, 700}),
    };
    StartQuorl();
    const auto expect = [](HWND from, int row, HWND wanted) {
        Activate(from);
        DoRow(row);
        EXPECT_SOON(GetForegroundWindow(), wanted) << "row " << row;
        Settle(wanted);
    };
    expect(around[3], 24, around[2]);
    expect(around[2], 25, middle); // the undermost in view
    for (int side = 0; side < 4; ++side)
        expect(middle, 117 + side, around[side]);

    expect(around[0], 21, around[0]); // the view comes to it
    EXPECT_SOON(PlaceOf(around[0]), (Place{412, 300, 612, 450}));
    DoRow(79); // and to any from now on
    Activate(around[1]);
    EXPECT_SOON(PlaceOf(middle), place);
    DoRow(115);
    for (const HWND window : {middle, around[1], middle}) {
        const Place under = PlaceOf(window);
        EXPECT_SOON((AfterMoving(window, {under.left + 100, under.top + 100}), GetForegroundWindow()),
                    window);
    }
}

TEST(Rows, SwitchesTurnAndAreSaved) {
    StartQuorl();
    for (const auto* const rows : {&SwitchedOff, &SwitchedOn})
        for (const int row : *rows)
            DoRow(row);
    DoRow(SAVE);
    for (const auto* const rows : {&SwitchedOff, &SwitchedOn})
        for (const int row : *rows)
            EXPECT_SOON(Stored("Action" + std::to_string(row)).ends_with(rows == &SwitchedOn ? "|1" : "|0"),
                        true)
                << row;
    Store("border", "9");
    Quit();
    EXPECT_EQ(Stored("border"), "9") << "saving at the end is off";
}

TEST(Rows, SomeDoNothingToSeeAndSomeSaySo) {
    StartQuorl();
    for (const int row : Silent)
        DoRow(row);
    ExpectSaved("num_regions", "0");
    EXPECT_FALSE(FindWindowA("#32770", nullptr)) << "no box by now";
    for (const int row : Sorry) {
        DoRow(row);
        EXPECT_EQ(AnswerBox("Sorry.", VK_RETURN), "Actually, I don't handle that one yet.") << "row " << row;
    }
}

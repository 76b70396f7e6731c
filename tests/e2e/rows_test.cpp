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

// Seen on the in-memory desktop only. Wine's TileWindows and LockWorkStation do nothing, Windows would lock
// the tester out or hide the screen; what happens to the view and the map asks nothing more of Windows than
// the rows that the tour shows, and what happens to other windows no more than Find Windows; switches are
// numbers; and some rows do nothing, or say that they do nothing yet.
const std::set<int> ShownNatively = {
    1,  3,  6,  8,  10, 12, 13, 14, 15, 16, 17, 18, 19,  20,  21,  23,  24,  25,  26,  27,  32,  33,  34,
    40, 41, 42, 43, 44, 45, 46, 58, 61, 62, 63, 64, 65,  66,  67,  68,  69,  70,  71,  72,  73,  75,  76,
    78, 79, 80, 81, 83, 84, 86, 87, 88, 89, 90, 91, 108, 109, 110, 112, 113, 115, 117, 118, 119, 120, 122,
};

struct Story {
    std::string name;
    std::set<int> rows;
};
const Story Stories[] = {
    {"Tour.ANewUserGetsAboutByKeysMapAndMenu",                {0, 2, 4, 38, 59, 77}                     },
    {"Tour.ANewUserGetsAboutByKeysMapAndMenu",                {5, 7, 9, 11, 28, 29, 30, 31}             },
    {"Tour.RegionsAndKeysOfOnesOwnAreThereAgainInTheNextRun", {35, 36, 37, 39, 60, 85, 114}             },
    {"Tour.EachDialogOpensAndDoesItsWork",                    {49, 52, 53, 54, 55, 56, 57, 74, 111, 116}},
    {"Rows.TheActiveWindowGoesWhereItIsSent",                 {121}                                     },
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

} // namespace

TEST(Rows, EachIsShownByACaseThatThereIs) {
    std::set<int> shown = ShownNatively;
    for (const Steps& steps : WindowSteps)
        shown.insert(steps.rows.begin(), steps.rows.end());
    for (const Story& story : Stories) {
        EXPECT_TRUE(IsCase(story)) << story.name;
        shown.insert(story.rows.begin(), story.rows.end());
    }
    EXPECT_EQ(shown.size(), std::size_t{NUM_ROWS});
    EXPECT_EQ(*shown.rbegin(), NUM_ROWS - 1);
}

TEST(Rows, TheActiveWindowGoesWhereItIsSent) {
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    Activate(editor);
    DoRow(30); // room on its left
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    for (const auto& [rows, dx, dy] : WindowSteps) {
        SetWindowPos(editor, nullptr, EDITOR.left, EDITOR.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        for (const int row : rows)
            DoRow(row);
        EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, dx, dy)) << "row " << rows.back();
    }
    for (const bool topmost : {true, false}) {
        Activate(editor);
        DoRow(121);
        EXPECT_SOON((GetWindowLongPtrA(editor, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, topmost);
        EXPECT_SOON(IsWindowVisible(editor) != 0, true);
    }
}

// What becomes of the numbers typed into the Options dialog.
#include "dialogs/options_rules.h"

#include <climits>
#include <gtest/gtest.h>

TEST(OptionsRules, ASizeIsHeldWithinTheLargestDesktop) {
    const int cases[][2] = {
        {0,       0    },
        {2000,    2000 },
        {32000,   32000},
        {32001,   32000},
        {INT_MAX, 32000},
        {INT_MIN, 0    },
        {-1,      0    }
    };
    for (const auto& [shown, limited] : cases)
        EXPECT_EQ(LimitedSize(shown), limited) << shown;
}

TEST(OptionsRules, AStepGoesToWholeScreensFromOneToTheLargestDesktop) {
    const struct {
        int shown, screen, step, expected;
    } cases[] = {
  // a size between two screens loses its rest first
        {2000,  768,   1,  2304 },
        {2000,  768,   -1, 768  },
        {1536,  768,   1,  2304 },
        {768,   768,   -1, 768  },
        {0,     768,   -1, 768  },
        {0,     768,   1,  768  },
        {31488, 768,   1,  32000},
        {32000, 1024,  1,  32000},
        {32000, 1024,  -1, 30720},
        {-5000, 1024,  1,  1024 },
        {5000,  40000, -1, 32000},
        {5000,  0,     1,  0    },
    };
    for (const auto& c : cases)
        EXPECT_EQ(SizeByScreens(c.shown, c.screen, c.step), c.expected)
            << c.shown << " in screens of " << c.screen << ", " << c.step;
}

static OptionNumbers Accepted(const OptionNumbers& shown, int minscroll) {
    return AcceptedNumbers(shown, 1024, 768, minscroll);
}

TEST(OptionsRules, ADesktopTakenOverIsAtLeastOneScreenAndHasNoUpperLimit) {
    const struct {
        int height, width, expected_height, expected_width;
    } cases[] = {
        {0,       0,     768,   1024 },
        {767,     1023,  768,   1024 },
        {2000,    3000,  2000,  3000 },
        {40000,   50000, 40000, 50000},
        {INT_MIN, -1,    768,   1024 }
    };
    for (const auto& c : cases) {
        const OptionNumbers taken = Accepted({c.height, c.width, 4, 100, 5, 800}, 5);
        EXPECT_EQ(taken.height, c.expected_height) << c.height;
        EXPECT_EQ(taken.width, c.expected_width) << c.width;
    }
}

TEST(OptionsRules, ABorderIsStoredAsOneMoreThanShown) {
    const int cases[][2] = {
        {0,       2 },
        {1,       2 },
        {4,       5 },
        {10,      11},
        {11,      11},
        {INT_MAX, 11},
        {-7,      2 }
    };
    for (const auto& [shown, border] : cases)
        EXPECT_EQ(Accepted({768, 1024, shown, 100, 5, 800}, 5).border, border) << shown;
}

TEST(OptionsRules, TheLargeStepMeetsTheOldSmallOneAndTheSmallOneTheNewLargeOne) {
    const struct {
        int old_min, max, min, mouse;
        int expected_max, expected_min, expected_mouse;
    } cases[] = {
        {10,    5,     3,     800,   10,    3,     800  },
        {5,     50,    200,   0,     50,    50,    1    },
        {5,     0,     0,     -1,    5,     1,     1    },
        {5,     40000, 40000, 40000, 32000, 32000, 32000},
        {1,     7,     7,     7,     7,     7,     7    },
        {40000, 9,     9,     9,     40000, 9,     9    }, // as a settings file may have it
    };
    for (const auto& c : cases) {
        const OptionNumbers taken = Accepted({768, 1024, 4, c.max, c.min, c.mouse}, c.old_min);
        EXPECT_EQ(taken.maxscroll, c.expected_max) << c.max;
        EXPECT_EQ(taken.minscroll, c.expected_min) << c.min;
        EXPECT_EQ(taken.mousescroll, c.expected_mouse) << c.mouse;
    }
}

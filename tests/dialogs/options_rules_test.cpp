// What becomes of the numbers typed into the Options dialog.
#include "dialogs/options_rules.h"

#include <array>
#include <bit>
#include <climits>
#include <gtest/gtest.h>

TEST(OptionsRules, AStepGoesToWholeScreensFromOneToTheLargestDesktop) {
    EXPECT_EQ(SizeByScreens(2000, 768, -1), 768) << "a size between two screens loses its rest first";
    EXPECT_EQ(SizeByScreens(768, 768, -1), 768);
    EXPECT_EQ(SizeByScreens(31488, 768, 1), 32000);
    EXPECT_EQ(SizeByScreens(5000, 0, 1), 0);
}

TEST(OptionsRules, NumbersTakenOverAreHeldInTheirLimits) {
    using InTurn = std::array<int, 6>;
    const struct {
        OptionNumbers shown;
        int minscroll; // so far: the least of the new maxscroll
        InTurn taken;
    } cases[] = {
        {{0, 0, 0, 5, 3, 800},                    10,    {768, 1024, 2, 10, 3, 800}             },
        {{767, 1023, 1, 50, 200, 0},              5,     {768, 1024, 2, 50, 50, 1}              },
        {{40000, 50000, 10, 40000, 40000, 40000}, 5,     {40000, 50000, 11, 32000, 32000, 32000}},
        {{INT_MIN, -1, INT_MAX, 0, 0, -1},        1,     {768, 1024, 11, 1, 1, 1}               },
        {{2000, 3000, 4, 9, 9, 9},                40000, {2000, 3000, 5, 40000, 9, 9}           },
    };
    for (const auto& [shown, minscroll, taken] : cases)
        EXPECT_EQ(std::bit_cast<InTurn>(AcceptedNumbers(shown, 1024, 768, minscroll)), taken);
}

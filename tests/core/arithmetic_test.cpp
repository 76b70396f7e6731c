#include "core/arithmetic.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(Arithmetic, DividesTowardZeroAndIsDefinedForEveryInput) {
    struct {
        int dividend, divisor, quotient, remainder;
    } const cases[] = {
        {7,       2,  3,       1 },
        {-7,      2,  -3,      -1},
        {7,       0,  0,       0 },
        {INT_MIN, -1, INT_MIN, 0 },
        {5,       -1, -5,      0 },
    };
    for (const auto& [dividend, divisor, quotient, remainder] : cases) {
        EXPECT_EQ(Quotient(dividend, divisor), quotient) << dividend << " by " << divisor;
        EXPECT_EQ(Remainder(dividend, divisor), remainder) << dividend << " by " << divisor;
    }
}

TEST(Arithmetic, ScalesByMultiplyingFirstAndWrapsAt32Bits) {
    EXPECT_EQ(Scaled(-3, 100, 7), -42);
    EXPECT_EQ(Scaled(65536, 65536, 3), 0);
}

} // namespace

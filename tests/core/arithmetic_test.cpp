#include "core/arithmetic.h"

#include <gtest/gtest.h>

TEST(Arithmetic, IsDefinedForEveryInputAndMultipliesFirst) {
    EXPECT_EQ(Quotient(7, 0), 0);
    EXPECT_EQ(Remainder(7, 0), 0);
    EXPECT_EQ(Scaled(-3, 100, 7), -42) << "truncated toward zero";
    EXPECT_EQ(Scaled(65536, 65536, 3), 0) << "wrapped at 32 bits";
}

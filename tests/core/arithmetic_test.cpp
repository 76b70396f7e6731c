#include "core/arithmetic.h"

#include <gtest/gtest.h>

TEST(Arithmetic, IsDefinedForEveryInput) {
    EXPECT_EQ(Quotient(7, 0) | Remainder(7, 0), 0);
    EXPECT_EQ(Scale(-3, 100, 7), -42) << "multiplied first, truncated toward zero";
    EXPECT_EQ(Scale(65536, 65536, 3), 0) << "wrapped at 32 bits";
}

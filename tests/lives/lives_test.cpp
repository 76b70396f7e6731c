// Many days with Quorl, each in a process of its own.
#include "lives/life.h"

#include "support/faults.h"
#include "support/quorl_test.h"

#include <random>

using Lives = QuorlTest;

TEST_F(Lives, NothingThatHappensLosesAWindowOrEndsQuorl) {
    for (unsigned seed = 0; seed < 300; ++seed)
        EXPECT_TRUE(HoldsInItsOwnProcess([seed] {
            std::mt19937 chance(seed);
            std::string bytes(chance() % 600, 0);
            for (char& byte : bytes)
                byte = static_cast<char>(chance());
            Live(bytes);
            EXPECT_EQ(Desk.surprises, 0);
        })) << seed;
}

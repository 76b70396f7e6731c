// Many days with Quorl, each in a process of its own.
#include "lives/life.h"

#include "support/faults.h"
#include "support/quorl_test.h"

#include <random>

namespace {

class Lives : public QuorlTest {};

constexpr unsigned DAYS = 300;
constexpr std::size_t LONGEST = 600; // bytes

TEST_F(Lives, NothingThatHappensLosesAWindowOrEndsQuorl) {
    std::vector<unsigned> broken;
    for (unsigned seed = 0; seed < DAYS; ++seed) {
        const bool bHeld = HoldsInItsOwnProcess([seed] {
            std::mt19937 chance(seed);
            std::vector<std::uint8_t> bytes(chance() % LONGEST);
            for (std::uint8_t& byte : bytes)
                byte = static_cast<std::uint8_t>(chance());
            Live(bytes.data(), bytes.size());
            EXPECT_EQ(Desk.surprises, 0);
        });
        if (!bHeld)
            broken.push_back(seed);
    }
    EXPECT_EQ(broken, std::vector<unsigned>{});
}

} // namespace

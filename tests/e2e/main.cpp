// One program, three uses: the end-to-end tests; the windows in them (--play); the tour (--tour).
#include "player.h"
#include "tour.h"
#include "user.h"

#include <cstring>

namespace {

class FreshDesktop : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { CleanDesktop(); }
    void OnTestEnd(const testing::TestInfo&) override { CleanDesktop(); }
};

} // namespace

int main(int count, char** arguments) {
    if (count > 1 && strcmp(arguments[1], "--play") == 0)
        return Play(count - 2, arguments + 2);
    if (count > 1 && strcmp(arguments[1], "--tour") == 0)
        return Tour();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new FreshDesktop);
    return RUN_ALL_TESTS();
}

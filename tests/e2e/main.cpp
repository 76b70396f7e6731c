// The end-to-end tests, and the windows they open (--play).
#include "shared/user.h"

namespace {

class CleanBetweenCases : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { CleanDesktop(); }
    void OnTestEnd(const testing::TestInfo&) override { CleanDesktop(); }
};

} // namespace

int main(int count, char** arguments) {
    if (PlayWindow(count, arguments))
        return 0;
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new CleanBetweenCases);
    return RUN_ALL_TESTS();
}

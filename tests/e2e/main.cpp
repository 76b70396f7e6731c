// One program, three uses: the end-to-end tests, the windows they open (--play), and the tour (--tour).
#include "tour.h"

namespace {

class CleanBetweenCases : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { CleanDesktop(); }
    void OnTestEnd(const testing::TestInfo&) override { CleanDesktop(); }
};

} // namespace

int main(int count, char** arguments) {
    if (PlayWindow(count, arguments))
        return 0;
    if (count == 2 && std::string(arguments[1]) == "--tour")
        return Tour();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new CleanBetweenCases);
    return RUN_ALL_TESTS();
}

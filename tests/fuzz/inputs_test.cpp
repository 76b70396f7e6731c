// The kept inputs of the fuzzers, every one that found a fault among them, and random ones.
#include "fuzz/inputs.h"
#include "support/reset.h"
#include "support/quorl_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <tuple>

using FuzzInputs = QuorlTest;

static void TestEach(const char* folder, void (*test)(std::string_view input)) {
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(file.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_NE(input, "");
        SCOPED_TRACE(file.path());
        ResetProgram();
        test(input);
    }
}

TEST_F(FuzzInputs, KeptSettingsLoadAndSave) {
    TestEach(CORPUS "/settings", TestSettings);
}

TEST_F(FuzzInputs, KeptRunsLoseNoWindow) {
    TestEach(CORPUS "/runs", TestRun);
}

static std::string RandomInput(unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(random() % 600, 0);
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

// What a run in this process did and left behind.
static auto OutcomeOf(const std::string& input) {
    ResetProgram();
    TestSession(input);
    std::vector<RECT> rects;
    for (const auto& window : Desk.windows)
        rects.push_back(window->rect);
    return std::tuple(Desk.trace, rects, Desk.files);
}

TEST_F(FuzzInputs, ResetRestoresTheFirstState) {
    const std::string input = RandomInput(1);
    const auto first = OutcomeOf(input);
    EXPECT_GT(std::get<0>(first).size(), 5000U);
    EXPECT_TRUE(OutcomeOf(input) == first);
    for (unsigned other = 100; other < 400; ++other)
        OutcomeOf(RandomInput(other));
    EXPECT_TRUE(OutcomeOf(input) == first);
}

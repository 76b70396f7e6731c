// The kept inputs of the fuzzers, every one that found a fault among them, and random ones.
#include "fuzz/inputs.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

using FuzzInputs = QuorlTest;

static void TestEach(const char* folder, void (*test)(std::string_view input)) {
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(file.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_NE(input, "");
        EXPECT_TRUE(PassesInOwnProcess([&] { test(input); })) << file.path();
    }
}

TEST_F(FuzzInputs, KeptSettingsLoadAndSave) {
    TestEach(CORPUS "/settings", TestSettings);
}

TEST_F(FuzzInputs, KeptRunsLoseNoWindow) {
    TestEach(CORPUS "/runs", TestRun);
}

TEST_F(FuzzInputs, RandomRunsLoseNoWindow) {
    for (unsigned seed = 0; seed < 300; ++seed)
        EXPECT_TRUE(PassesInOwnProcess([seed] {
            std::mt19937 random(seed);
            std::string bytes(random() % 600, 0);
            for (char& byte : bytes)
                byte = static_cast<char>(random());
            TestRun(bytes);
            EXPECT_EQ(Desk.unexpected, 0);
        })) << seed;
}

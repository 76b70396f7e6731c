// The kept inputs of the fuzzers, among them every one that found a fault.
#include "fuzz/settings_input.h"
#include "lives/life.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>

using Corpus = QuorlTest;

static void TryEach(const char* folder, void (*run)(std::string_view input)) {
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(file.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_NE(input, "");
        EXPECT_TRUE(HoldsInItsOwnProcess([&] { run(input); })) << file.path();
    }
}

TEST_F(Corpus, EveryKeptFileLoadsAndSavesWithoutHarm) {
    TryEach(CORPUS "/settings", TrySettings);
}

TEST_F(Corpus, EveryKeptDayIsLivedWithoutHarm) {
    TryEach(CORPUS "/lives", Live);
}

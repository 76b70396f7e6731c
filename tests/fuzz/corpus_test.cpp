// The kept inputs of the fuzzers, among them every one that found a fault.
#include "fuzz/settings_input.h"
#include "lives/life.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

class Corpus : public QuorlTest {};

// Names those that did not hold.
std::vector<std::string> Broken(const char* fuzzer, void (*run)(const std::string& input)) {
    std::vector<std::string> broken;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(CORPUS "/") + fuzzer)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_NE(input, "");
        if (!HoldsInItsOwnProcess([run, &input] { run(input); }))
            broken.push_back(entry.path().filename());
    }
    return broken;
}

TEST_F(Corpus, EveryKeptFileLoadsAndSavesWithoutHarm) {
    const auto run = [](const std::string& input) { EXPECT_STREQ(TrySettings(input), nullptr); };
    EXPECT_EQ(Broken("settings", run), std::vector<std::string>{});
}

TEST_F(Corpus, EveryKeptDayIsLivedWithoutHarm) {
    const auto run = [](const std::string& input) {
        Live(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    };
    EXPECT_EQ(Broken("lives", run), std::vector<std::string>{});
}

} // namespace

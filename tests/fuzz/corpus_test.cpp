// The kept inputs of the fuzzer, among them every one that found a fault.
#include "fuzz/settings_input.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

TEST(SettingsCorpus, EveryKeptFileLoadsAndSavesWithoutHarm) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(SETTINGS_CORPUS)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        const char* broken = TrySettings(input);
        EXPECT_EQ(broken, nullptr) << entry.path() << ": " << broken;
        ++files;
    }
    EXPECT_GT(files, 0);
}

} // namespace

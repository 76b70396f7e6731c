// What Quorl's lines in its settings file rely on: quotes, blanks, odd characters, limits, numbers.
#include <gtest/gtest.h>

#include <windows.h>

#include <climits>
#include <string>

namespace {

constexpr char PROFILE[] = "quorl_contract.ini"; // a bare name, as the settings file's

std::string ReadBack(const std::string& value, DWORD room = 256) {
    char text[256] = "";
    WritePrivateProfileStringA("Values", "key", value.c_str(), PROFILE);
    const DWORD length = GetPrivateProfileStringA("Values", "key", "", text, room, PROFILE);
    EXPECT_EQ(length, std::string(text).size());
    return text;
}

int NumberOf(const char* value) {
    WritePrivateProfileStringA("Values", "key", value, PROFILE);
    return static_cast<int>(GetPrivateProfileIntA("Values", "key", -1, PROFILE));
}

TEST(ProfileValues, BlanksAtTheEndsAreLostExceptInQuotesWhichAreTakenOff) {
    EXPECT_EQ(ReadBack("  a b  "), "a b");
    EXPECT_EQ(ReadBack("\"  a b|5\""), "  a b|5");
    EXPECT_EQ(ReadBack("\"a\" b|5"), "\"a\" b|5") << "quotes inside stay";
    EXPECT_EQ(ReadBack("\" \"a\"|5\""), " \"a\"|5") << "one pair is taken off";
    EXPECT_EQ(ReadBack("'a|5"), "'a|5");
}

TEST(ProfileValues, OddCharactersComeBack) {
    EXPECT_EQ(ReadBack("\x01mail\x01web|5"), "\x01mail\x01web|5");
    EXPECT_EQ(ReadBack("|[a]=;b|5"), "|[a]=;b|5");
    EXPECT_EQ(ReadBack(""), "");
}

TEST(ProfileValues, ALongValueIsCutAtTheBuffer) {
    EXPECT_EQ(ReadBack(std::string(64, 'x'), 64), std::string(63, 'x'));
    // Whether a quote counts is not the same everywhere; with one character to spare it does not matter.
    EXPECT_EQ(ReadBack("\"" + std::string(62, 'x') + "\"", 64), std::string(62, 'x'));
}

TEST(ProfileValues, NumbersWrapAndEndAtWhatIsNoDigit) {
    EXPECT_EQ(NumberOf("12|3"), 12);
    EXPECT_EQ(NumberOf("+7"), 7);
    EXPECT_EQ(NumberOf("-7"), -7);
    EXPECT_EQ(NumberOf("x"), 0);
    EXPECT_EQ(NumberOf(""), -1) << "as if it were not there";
    EXPECT_EQ(NumberOf("6442450943"), INT_MAX) << "2^32 + 2^31 - 1";
    EXPECT_EQ(NumberOf("4294967295"), -1);
}

} // namespace

// The rules of private profile files.
#include "contract/contract_test.h"

#include <climits>

namespace {

constexpr char FILE_NAME[] = "contract.ini"; // a bare name: the system says where it lies

class Profile : public Contract {
  protected:
    void SetUp() override {
        Contract::SetUp();
        RemoveProfile(FILE_NAME);
    }
    void TearDown() override {
        RemoveProfile(FILE_NAME);
        Contract::TearDown();
    }
};

std::string Read(const char* key, DWORD size = 64) {
    char text[4096];
    const DWORD length = GetPrivateProfileStringA("Quorl", key, "absent", text, size, FILE_NAME);
    EXPECT_EQ(length, std::string(text).size()) << "the result is the length";
    return text;
}

int Number(const char* key, int absent = -1) {
    return static_cast<int>(GetPrivateProfileIntA("Quorl", key, absent, FILE_NAME));
}

BOOL Write(const char* key, const char* text, const char* section = "Quorl") {
    return WritePrivateProfileStringA(section, key, text, FILE_NAME);
}

using Lines = std::vector<std::string>;

TEST_F(Profile, FileAndSectionAppearWhenNeeded) {
    EXPECT_EQ(Read("border"), "absent");
    EXPECT_EQ(Number("border", -1), -1);
    EXPECT_TRUE(Write("border", "5"));
    EXPECT_TRUE(Write("x", "1", "Other"));
    EXPECT_EQ(ProfileLines(FILE_NAME), (Lines{"[Quorl]", "border=5", "[Other]", "x=1"}));
}

TEST_F(Profile, AKeyIsReplacedWhereItStandsAndANewOneGoesToTheSectionsEnd) {
    WriteProfile(FILE_NAME,
                 "[First]\r\na=1\r\n\r\n[quorl]\r\nBorder=5\r\n; kept\r\nb=2\r\n\r\n[Last]\r\nb=9\r\n");
    EXPECT_TRUE(Write("BORDER", "7"));
    EXPECT_TRUE(Write("new", "3"));
    const Lines lines = ProfileLines(FILE_NAME);
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[3].substr(lines[3].find('=')), "=7");
    EXPECT_EQ(Lines(lines.begin() + 4, lines.end()), (Lines{"; kept", "b=2", "new=3", "[Last]", "b=9"}));
    EXPECT_EQ(Read("border"), "7") << "case makes no difference";
}

TEST_F(Profile, BlanksAndQuotesRoundAValueAreNotPartOfIt) {
    WriteProfile(FILE_NAME, "[Quorl]\r\n"
                            "plain=a b\r\n"
                            "  blanks  =   a b  \t\r\n"
                            "double=\"a b \"\r\n"
                            "single='a b '\r\n"
                            "empty=\r\n"
                            "equals=a=b\r\n"
                            "plain=second\r\n"
                            "last=1"); // no line end
    const struct {
        const char* key;
        const char* value;
    } rows[] = {
        {"plain",  "a b" },
        {"blanks", "a b" },
        {"double", "a b "},
        {"single", "a b "},
        {"empty",  ""    },
        {"equals", "a=b" },
        {"last",   "1"   }
    };
    for (const auto& row : rows)
        EXPECT_EQ(Read(row.key), row.value) << row.key;
}

TEST_F(Profile, WhatIsWrittenIsReadBackButForBlanksAndOnePairOfQuotesRoundIt) {
    const struct {
        const char* written;
        const char* read;
    } rows[] = {
        {"",                         ""                        },
        {"-1|-1|6|37|0",             "-1|-1|6|37|0"            },
        {"  a b  ",                  "a b"                     },
        {"\"  a b|5\"",              "  a b|5"                 },
        {"\"a\" b|5",                "\"a\" b|5"               },
        {"\" \"a\"|5\"",             " \"a\"|5"                },
        {"'a|5",                     "'a|5"                    },
        {"\x01mail\x01web|\xE4\xFF", "\x01mail\x01web|\xE4\xFF"},
        {"|[a]=;b|5",                "|[a]=;b|5"               },
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(Write("line", row.written));
        EXPECT_EQ(Read("line"), row.read);
    }
}

TEST_F(Profile, ALongValueIsCutAtTheBuffer) {
    const std::string longest(2000, '7');
    Write("long", longest.c_str());
    for (const DWORD size : {1U, 10U, 64U})
        EXPECT_EQ(Read("long", size), longest.substr(0, size - 1));
    EXPECT_EQ(Read("long", 4048), longest);
    EXPECT_EQ(Read("none", 4), "abs") << "so is what is given for an absent key";
    // Whether a quote counts is not the same everywhere; with one character to spare it does not matter.
    Write("quoted", ("\"" + longest.substr(0, 62) + "\"").c_str());
    EXPECT_EQ(Read("quoted", 64), longest.substr(0, 62));
}

TEST_F(Profile, ANumberIsReadWithItsSignUpToTheFirstOtherCharacter) {
    const struct {
        const char* text;
        int number;
    } rows[] = {
        {"-12",         -12       },
        {"+12",         12        },
        {"12abc",       12        },
        {"12|3",        12        },
        {"abc",         0         },
        {"-",           0         },
        {"\"34\"",      34        },
        {"",            -7        },
        {"007",         7         },
        {"- 5",         0         },
        {"1.9",         1         },
        {"2147483647",  INT_MAX   },
        {"-2147483648", INT_MIN   },
        {"6442450943",  INT_MAX   },
        {"4294967295",  -1        },
        {"99999999999", 1215752191},
    };
    for (const auto& row : rows) {
        WriteProfile(FILE_NAME, std::string("[Quorl]\r\nn=") + row.text + "\r\n");
        EXPECT_EQ(Number("n", -7), row.number) << '"' << row.text << '"';
    }
}

std::string PathInWindowsFolder(const char* file) {
    char folder[MAX_PATH] = "";
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    EXPECT_EQ(length, std::string(folder).size());
    return std::string(folder) + '\\' + file;
}

TEST_F(Profile, ACopyCanTakeTheFilesPlace) {
    constexpr char COPY_NAME[] = "contract.new";
    const std::string file = PathInWindowsFolder(FILE_NAME);
    const std::string copy = PathInWindowsFolder(COPY_NAME);
    RemoveProfile(COPY_NAME);
    EXPECT_FALSE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(DeleteFileA(copy.c_str()));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    for (const char* value : {"1", "2", "3"}) {
        Write("a", value);
        EXPECT_TRUE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
        EXPECT_TRUE(WritePrivateProfileStringA("Quorl", "b", value, COPY_NAME));
        EXPECT_EQ(Number("b"), *value == '1' ? -1 : *value - '1') << "the file is untouched";
        EXPECT_TRUE(
            MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
        EXPECT_EQ(ProfileLines(FILE_NAME),
                  (Lines{"[Quorl]", std::string("a=") + value, std::string("b=") + value}));
        EXPECT_EQ(Read("b"), value);
    }
    EXPECT_FALSE(MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING)) << "it is gone";
}

} // namespace

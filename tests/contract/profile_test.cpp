// The rules of private profile files.
#include "contract/contract_test.h"

#include <climits>

namespace {

constexpr char FILE_NAME[] = "contract.ini"; // a bare name: the system says where it lies
constexpr char COPY_NAME[] = "contract.new";

class Profile : public Contract {
  protected:
    void SetUp() override {
        Contract::SetUp();
        RemoveBoth();
    }
    void TearDown() override {
        RemoveBoth();
        Contract::TearDown();
    }

  private:
    static void RemoveBoth() {
        RemoveProfile(FILE_NAME);
        RemoveProfile(COPY_NAME);
    }
};

std::string Read(const char* key, DWORD size = 4096) {
    char text[4096];
    const DWORD length = GetPrivateProfileStringA("Quorl", key, "absent", text, size, FILE_NAME);
    EXPECT_EQ(length, std::string(text).size()) << "the result is the length";
    return text;
}

int Number(const char* key) {
    return static_cast<int>(GetPrivateProfileIntA("Quorl", key, -7, FILE_NAME));
}

BOOL Write(const char* key, const std::string& text, const char* file = FILE_NAME) {
    return WritePrivateProfileStringA("Quorl", key, text.c_str(), file);
}

using Lines = std::vector<std::string>;

TEST_F(Profile, AKeyIsReplacedWhereItStandsAndANewOneGoesToTheSectionsEnd) {
    EXPECT_EQ(Read("border"), "absent");
    EXPECT_EQ(Number("border"), -7);
    EXPECT_TRUE(Write("border", "5"));
    EXPECT_EQ(ProfileLines(FILE_NAME), (Lines{"[Quorl]", "border=5"}));

    WriteProfile(FILE_NAME, "[First]\r\na=1\r\n\r\n[quorl]\r\nb=5\r\n; kept\r\nc=2\r\n\r\n[Last]\r\nb=9\r\n");
    EXPECT_TRUE(Write("b", "7"));
    EXPECT_TRUE(Write("new", "3"));
    EXPECT_EQ(ProfileLines(FILE_NAME),
              (Lines{"[First]", "a=1", "[quorl]", "b=7", "; kept", "c=2", "new=3", "[Last]", "b=9"}));
    EXPECT_EQ(Read("B"), "7") << "case makes no difference";
}

TEST_F(Profile, AValueIsReadWithoutBlanksAndOnePairOfQuotesRoundItWhoeverWroteIt) {
    const struct {
        const char* written;
        const char* read;
    } rows[] = {
        {"",                         ""                        },
        {"-1|-1|6|37|0",             "-1|-1|6|37|0"            },
        {"  a=b  ",                  "a=b"                     },
        {"\"  a b|5\"",              "  a b|5"                 },
        {"'a b '",                   "a b "                    },
        {"\"a\" b|5",                "\"a\" b|5"               },
        {"\" \"a\"|5\"",             " \"a\"|5"                },
        {"'a|5",                     "'a|5"                    },
        {"\x01mail\x01web|\xE4\xFF", "\x01mail\x01web|\xE4\xFF"},
        {"|[a]=;b|5",                "|[a]=;b|5"               },
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(Write("line", row.written));
        EXPECT_EQ(Read("line"), row.read);
        WriteProfile(FILE_NAME, std::string("[Quorl]\r\n  line = ") + row.written + " \t\r\nline=second");
        EXPECT_EQ(Read("line"), row.read) << "by hand";
    }
    EXPECT_TRUE(Write("last", "1"));
    EXPECT_EQ(ProfileLines(FILE_NAME).back(), "last=1") << "behind a line without its end";
}

TEST_F(Profile, ALongValueIsCutAtTheBuffer) {
    const std::string longest(2000, '7');
    Write("long", longest);
    for (const DWORD size : {1U, 10U, 64U, 4048U})
        EXPECT_EQ(Read("long", size), longest.substr(0, size - 1));
    EXPECT_EQ(Read("none", 4), "abs") << "so is what is given for an absent key";
    // Whether a quote counts is not the same everywhere; with one character to spare it does not matter.
    Write("quoted", "\"" + longest.substr(0, 62) + "\"");
    EXPECT_EQ(Read("quoted", 64), longest.substr(0, 62));
}

TEST_F(Profile, ANumberIsReadWithItsSignUpToTheFirstOtherCharacter) {
    const struct {
        const char* text;
        int number;
    } rows[] = {
        {"-12",         -12       },
        {"+12",         12        },
        {"12|3",        12        },
        {"-",           0         },
        {"- 5",         0         },
        {"\"34\"",      34        },
        {"",            -7        },
        {"007",         7         },
        {"-2147483648", INT_MIN   },
        {"4294967295",  -1        },
        {"99999999999", 1215752191},
    };
    for (const auto& row : rows) {
        WriteProfile(FILE_NAME, std::string("[Quorl]\r\nn=") + row.text + "\r\n");
        EXPECT_EQ(Number("n"), row.number) << '"' << row.text << '"';
    }
}

std::string PathInWindowsFolder(const char* file) {
    char folder[MAX_PATH] = "";
    EXPECT_GT(GetWindowsDirectoryA(folder, MAX_PATH), 0U);
    return std::string(folder) + '\\' + file;
}

TEST_F(Profile, ACopyCanTakeTheFilesPlace) {
    const std::string file = PathInWindowsFolder(FILE_NAME);
    const std::string copy = PathInWindowsFolder(COPY_NAME);
    EXPECT_FALSE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(DeleteFileA(copy.c_str()));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    for (const std::string value : {"1", "2", "3"}) {
        const std::string before = Read("b");
        Write("a", value);
        EXPECT_TRUE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
        EXPECT_TRUE(Write("b", value, COPY_NAME));
        EXPECT_EQ(Read("b"), before) << "the file is untouched";
        EXPECT_TRUE(
            MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
        EXPECT_EQ(ProfileLines(FILE_NAME), (Lines{"[Quorl]", "a=" + value, "b=" + value}));
        EXPECT_EQ(Read("b"), value);
    }
    EXPECT_FALSE(MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING)) << "it is gone";
}

TEST_F(Profile, AProtectedFileCannotBeDeletedNorItsCopy) {
    const std::string file = PathInWindowsFolder(FILE_NAME);
    const std::string copy = PathInWindowsFolder("contract.new");
    EXPECT_FALSE(SetFileAttributesA(copy.c_str(), FILE_ATTRIBUTE_NORMAL));
    Write("a", "1");
    EXPECT_TRUE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_TRUE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
    for (const std::string& path : {copy, file}) {
        EXPECT_FALSE(DeleteFileA(path.c_str())) << path;
        EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED) << path;
        EXPECT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL)) << path;
        EXPECT_TRUE(DeleteFileA(path.c_str())) << path;
    }
}

} // namespace

// The rules of private profile files, and replacing one atomically by a copy.
#include "contract/contract_test.h"

namespace {

constexpr char FILE_NAME[] = "contract.ini"; // a bare name: in the Windows folder
constexpr char COPY_NAME[] = "contract.new";

std::string PathOf(const char* file) {
    char folder[MAX_PATH] = "";
    EXPECT_GT(GetWindowsDirectoryA(folder, MAX_PATH), 0U);
    return std::string(folder) + '\\' + file;
}

class Profile : public Contract {
  protected:
    void SetUp() override {
        for (const char* name : {FILE_NAME, COPY_NAME}) {
            WriteProfile(name, "");
            EXPECT_TRUE(DeleteFileA(PathOf(name).c_str()));
        }
    }
};

std::string Read(const char* key, DWORD size = 4096) {
    char text[4096];
    const DWORD length = GetPrivateProfileStringA("Quorl", key, "absent", text, size, FILE_NAME);
    EXPECT_EQ(length, std::string(text).size());
    return text;
}

BOOL Write(const char* key, const std::string& text, const char* name = FILE_NAME) {
    return WritePrivateProfileStringA("Quorl", key, text.c_str(), name);
}

TEST_F(Profile, KeyIsReplacedInPlaceAndANewOneEndsTheSection) {
    EXPECT_EQ(Read("b"), "absent");
    EXPECT_TRUE(Write("b", "5"));
    EXPECT_EQ(ReadProfile(FILE_NAME), "[Quorl]\r\nb=5\r\n");
    WriteProfile(FILE_NAME, "[First]\r\nb=1\r\n\r\n[quorl]\r\nb=5\r\n; kept\r\nc=2\r\n\r\n[Last]\r\nb=9");
    EXPECT_TRUE(Write("b", "7") && Write("new", "3"));
    EXPECT_EQ(Read("B"), "7") << "case-insensitive";
    const std::string text = ReadProfile(FILE_NAME);
    EXPECT_NE(text.find("[quorl]\r\nb=7\r\n; kept\r\nc=2\r\nnew=3\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[Last]\r\nb=9"), std::string::npos) << text;
}

TEST_F(Profile, ValueIsReadWithoutBlanksAndOnePairOfQuotes) {
    const char* const rows[][2] = {{"", ""},
                                   {"  a=b  ", "a=b"},
                                   {"\"  a b|5\"", "  a b|5"},
                                   {"\" \"a\"|5\"", " \"a\"|5"},
                                   {"'a|5", "'a|5"},
                                   {"\x01mail|\xE4\xFF", "\x01mail|\xE4\xFF"}};
    for (const auto& [written, read] : rows) {
        EXPECT_TRUE(Write("line", written));
        EXPECT_EQ(Read("line"), read);
        WriteProfile(FILE_NAME, std::string("[Quorl]\r\n  line = ") + written + " \t\r\nline=second");
        EXPECT_EQ(Read("line"), read) << "written by hand";
    }
}

TEST_F(Profile, LongValueIsCutAtTheBufferAndNumberAtItsFirstOtherCharacter) {
    const std::string longest(2000, '7');
    Write("long", longest);
    EXPECT_EQ(Read("long", 64), longest.substr(0, 63));
    std::vector<int> numbers;
    for (const char* text : {"+102", "-12|3", "", "99999999999"}) {
        Write("n", text);
        numbers.push_back(static_cast<int>(GetPrivateProfileIntA("Quorl", "n", -7, FILE_NAME)));
    }
    EXPECT_EQ(numbers, (std::vector{102, -12, -7, 1215752191}));
}

TEST_F(Profile, CopyReplacesTheFileAndAReadOnlyOneCannotBeDeleted) {
    const std::string file = PathOf(FILE_NAME);
    const std::string copy = PathOf(COPY_NAME);
    const auto replace = [&] {
        return MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    };
    EXPECT_FALSE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    for (const std::string value : {"1", "2"}) {
        const std::string before = Read("b");
        Write("a", value);
        EXPECT_TRUE(CopyFileA(file.c_str(), copy.c_str(), FALSE) && Write("b", value, COPY_NAME));
        EXPECT_EQ(Read("b"), before) << "the file itself is unchanged";
        const HANDLE open =
            CreateFileA((value == "1" ? copy : file).c_str(), GENERIC_WRITE,
                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_FALSE(replace()) << "open";
        EXPECT_EQ(GetLastError(), value == "1" ? ERROR_SHARING_VIOLATION : ERROR_ACCESS_DENIED);
        EXPECT_TRUE(FlushFileBuffers(open) && CloseHandle(open));
        EXPECT_TRUE(replace());
        EXPECT_EQ(GetFileAttributesA(copy.c_str()), INVALID_FILE_ATTRIBUTES);
        EXPECT_EQ(Read("a") + Read("b"), value + value);
    }
    EXPECT_TRUE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(DeleteFileA(file.c_str()));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_TRUE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(Profile, RightsMoveWithTheFileIfTheCopyHasThem) {
    const std::string file = PathOf(FILE_NAME);
    const std::string copy = PathOf(COPY_NAME);
    alignas(void*) char rights[4096] = "", moved[4096] = "";
    DWORD size = 0;
    Write("a", "1");
    GiveOwnRights(FILE_NAME);
    EXPECT_TRUE(CopyFileA(file.c_str(), copy.c_str(), FALSE));
    EXPECT_TRUE(GetFileSecurityA(file.c_str(), DACL_SECURITY_INFORMATION, rights, sizeof rights, &size));
    EXPECT_TRUE(GetFileSecurityA(copy.c_str(), DACL_SECURITY_INFORMATION, moved, sizeof moved, &size));
    EXPECT_NE(std::string(rights, sizeof rights), std::string(moved, sizeof moved));
    EXPECT_TRUE(SetSecurityDescriptorControl(rights, SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ));
    EXPECT_TRUE(SetFileSecurityA(copy.c_str(), DACL_SECURITY_INFORMATION, rights));
    EXPECT_TRUE(MoveFileExA(copy.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_TRUE(SetSecurityDescriptorControl(rights, SE_DACL_AUTO_INHERIT_REQ, 0));
    EXPECT_TRUE(GetFileSecurityA(file.c_str(), DACL_SECURITY_INFORMATION, moved, sizeof moved, &size));
    EXPECT_EQ(std::string(rights, sizeof rights), std::string(moved, sizeof moved));
}

} // namespace

#include "text/saved_file.h"

#include <gtest/gtest.h>

#include "text/paths.h"

namespace quillomat {
namespace {

TEST(SavedFile, ATypedNameGetsItsExtensionUnlessItHasExactlyThat) {
    EXPECT_EQ(file_name_of(L"Doom.txt"), L"Doom.txt");
    EXPECT_EQ(file_name_of(L"Doom.TXT"), L"Doom.TXT.txt");
    EXPECT_EQ(file_name_of(L"dots..."), L"dots....txt") << "what no name may end with is no longer the end";
}

TEST(SavedFile, NamesThatFilesCanHave) {
    for (const wchar_t* const name : {L"a b & c, (d) [e] {f} 'g' ~#%+=@!^`$;.txt", L".txt", L"dots....txt",
                                      L"Console.txt", L"COM0.txt", L"COM10.txt", L"my con.txt"}) {
        EXPECT_EQ(file_name_fault(name), std::nullopt) << testing::PrintToString(name);
    }
    EXPECT_EQ(file_name_fault(std::wstring(255, L'x')), std::nullopt);
}

TEST(SavedFile, NamesThatNoFileCanHaveSayWhy) {
    for (const wchar_t character : std::wstring_view(L"\\/:?*\"|<>")) {
        const auto fault = file_name_fault(std::wstring(L"a") + character + L"b.txt");
        EXPECT_NE(fault.value_or(L"").find(std::wstring(L"the character ") + character), std::wstring::npos);
    }
    const std::pair<std::wstring, const wchar_t*> cases[] = {
        {std::wstring(L"a\0b.txt", 7), L"control character"},
        {L"name.", L"full stop"},
        {L"name ", L"blank"},
        {L"con.txt", L"device"},
        {L"Aux .txt", L"device"},
        {L"LPT9.txt", L"device"},
        {L"com\u00B9.txt", L"device"},
        {L"CONOUT$.txt", L"device"},
        {std::wstring(252, L'x') + L".txt", L"256 characters"},
    };
    for (const auto& [name, mentioned] : cases) {
        const auto fault = file_name_fault(name);
        ASSERT_TRUE(fault) << testing::PrintToString(name);
        EXPECT_NE(fault->find(mentioned), std::wstring::npos) << testing::PrintToString(*fault);
    }
}

TEST(Paths, StepsLeadFromTheRootDown) {
    const struct {
        const wchar_t* path;
        std::vector<FolderStep> steps;
    } cases[] = {
        {L"C:", {{L"C:\\", L"C:\\"}}},
        {L"C:\\a b\\c\\", {{L"C:\\", L"C:\\"}, {L"C:\\a b", L"a b"}, {L"C:\\a b\\c", L"c"}}},
        {L"\\\\host\\share\\x", {{L"\\\\host\\share\\", L"\\\\host\\share\\"}, {L"\\\\host\\share\\x", L"x"}}},
        {L"\\\\host", {{L"\\\\host\\", L"\\\\host\\"}}},
    };
    for (const auto& [path, steps] : cases) EXPECT_EQ(folder_steps(path), steps) << testing::PrintToString(path);
}

}  // namespace
}  // namespace quillomat

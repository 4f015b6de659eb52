#include "text/saved_file.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(SavedFile, ProposesTheGamesNameWithoutColons) {
    EXPECT_EQ(proposed_file_name(L"Doom"), L"Doom.txt");
    EXPECT_EQ(proposed_file_name(L"Quake: The Return"), L"Quake - The Return.txt");
    EXPECT_EQ(proposed_file_name(L"a:b::"), L"a -b - -.txt");
    EXPECT_EQ(proposed_file_name(L"read.txt"), L"read.txt.txt");
    EXPECT_EQ(proposed_file_name(L""), L".txt");
}

TEST(SavedFile, ATypedNameGetsItsExtensionUnlessItHasExactlyThat) {
    EXPECT_EQ(file_name_of(L"Doom"), L"Doom.txt");
    EXPECT_EQ(file_name_of(L"Doom.txt"), L"Doom.txt");
    EXPECT_EQ(file_name_of(L"Doom.TXT"), L"Doom.TXT.txt");
    EXPECT_EQ(file_name_of(L"C:Doom"), L"C -Doom.txt");
    EXPECT_EQ(file_name_of(L".txt"), L".txt");
    EXPECT_EQ(file_name_of(L"txt"), L"txt.txt");
    EXPECT_EQ(file_name_of(L"dots..."), L"dots....txt") << "what no name may end with is no longer the end";
    EXPECT_EQ(file_name_of(L"Doom.txt "), L"Doom.txt .txt");
}

TEST(SavedFile, NamesThatFilesCanHave) {
    for (const std::wstring& name :
         {std::wstring(L"Doom.txt"), std::wstring(L"a b & c, (d) [e] {f} 'g' ~#%+=@!^`$;.txt"),
          std::wstring(L"\u00E9\u4E2D.txt"), std::wstring(L".txt"), std::wstring(L"dots....txt"),
          std::wstring(L"Console.txt"), std::wstring(L"COM.txt"), std::wstring(L"COM0.txt"), std::wstring(L"COM10.txt"),
          std::wstring(L"my con.txt"), std::wstring(255, L'x')}) {
        EXPECT_EQ(file_name_fault(name), std::nullopt) << testing::PrintToString(name);
    }
}

TEST(SavedFile, NamesThatNoFileCanHaveSayWhy) {
    const struct {
        std::wstring name;
        const wchar_t* mentioned;
    } cases[] = {
        {L"a\\b.txt", L"the character \\\r\n"},
        {L"a/b.txt", L"the character /\r\n"},
        {L"a:b.txt", L"the character :\r\n"},
        {L"what?.txt", L"the character ?\r\n"},
        {L"*.txt", L"the character *\r\n"},
        {L"\"a\".txt", L"the character \"\r\n"},
        {L"a|b<c>.txt", L"the character |\r\n"},
        {L"a>.txt", L"the character >\r\n"},
        {L"a<.txt", L"the character <\r\n"},
        {L"a\tb.txt", L"control character"},
        {std::wstring(L"a\0b.txt", 7), L"control character"},
        {L"name.", L"full stop"},
        {L"name ", L"blank"},
        {L"con.txt", L"device"},
        {L"NUL", L"device"},
        {L"Aux .txt", L"device"},
        {L"prn.a.txt", L"device"},
        {L"com1.txt", L"device"},
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

}  // namespace
}  // namespace quillomat

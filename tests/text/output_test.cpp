// What leaves the program: printed pages, files and their names, and mails.

#include <gtest/gtest.h>

#include "text/paths.h"
#include "text/print_page.h"
#include "text/printout.h"
#include "text/saved_file.h"

namespace quillomat {
namespace {

using Lines = std::vector<std::wstring>;

// One character in the two halves that Windows has it in, also where wide characters are wider.
#define PAIR L"\xD83C\xDFAE"

std::size_t ten_characters(std::wstring_view text) {
    return std::min<std::size_t>(text.size(), 10);
}

TEST(PrintedLines, NothingOfATextIsLost) {
    const std::tuple<const char*, std::wstring, Lines> cases[] = {
        {"nothing is one empty line", L"", {L""}},
        {"every kind of line end", L"a\r\nb\rc\nd", {L"a", L"b", L"c", L"d"}},
        {"empty lines stay, the last one too", L"\r\n\r\na\r\n", {L"", L"", L"a", L""}},
        {"a line breaks between words", L"one two three four", {L"one two", L"three four"}},
        {"a blank may stand beyond the edge", L"1234567890 b", {L"1234567890", L"b"}},
        {"a word wider than the page is cut", L"12345678901234567890123", {L"1234567890", L"1234567890", L"123"}},
        {"an indented one as well", L"  123456789012", {L"  12345678", L"9012"}},
        {"a tab goes to the next eighth character", L"a\tb", {L"a       b"}},
        {"blanks alone are an empty line", L"             ", {L""}},
        {"the halves of a character stay together", L"123456789" PAIR L"0", {L"123456789", PAIR L"0"}},
    };
    for (const auto& [what, text, lines] : cases) EXPECT_EQ(printed_lines(text, ten_characters), lines) << what;

    const auto nothing_fits = [](std::wstring_view text) { return text.empty() ? 0 : std::size_t{0}; };
    EXPECT_EQ(printed_lines(L"ab" PAIR, nothing_fits), (Lines{L"a", L"b", PAIR}));
}

TEST(LineFlow, LinesGoOnOnFurtherPagesAndNoneIsCut) {
    using Place = LineFlow::Place;
    using enum LineFlow::Page;
    LineFlow flow(50, 15);
    flow.set_top(5);
    for (const Place& place : {Place{Same, 5}, {Same, 20}, {Same, 35}, {Next, 5}, {Same, 20}}) {
        EXPECT_EQ(flow.next(), place);
    }
}

TEST(SavedFile, NamesThatNoFileCanHaveSayWhy) {
    std::vector<std::pair<std::wstring, std::wstring>> cases{
        {L"a b & c, (d) [e] {f} 'g' ~#%+=@!^`$;....txt", L""},
        {L"Console.txt", L""},
        {L"COM0.txt", L""},
        {L"my con.txt", L""},
        {std::wstring(255, L'x'), L""},
        {std::wstring(L"a\0b.txt", 7), L"control character"},
        {L"name.", L"full stop"},
        {L"name ", L"blank"},
        {L"con.txt", L"device"},
        {L"Aux .txt", L"device"},
        {L"com\u00B9.txt", L"device"},
        {L"CONOUT$.txt", L"device"},
        {std::wstring(252, L'x') + L".txt", L"256 characters"},
    };
    for (const wchar_t letter : std::wstring_view(L"\\/:?*\"|<>")) {
        cases.emplace_back(std::wstring(L"a") + letter, std::wstring(L"the character ") + letter);
    }
    for (const auto& [name, mentioned] : cases) {
        const std::wstring fault = file_name_fault(name).value_or(L"");
        EXPECT_TRUE(fault.find(mentioned) != fault.npos && fault.empty() == mentioned.empty())
            << testing::PrintToString(name);
    }
}

TEST(Paths, StepsLeadFromTheRootDown) {
    const std::pair<const wchar_t*, std::vector<FolderStep>> cases[] = {
        {L"C:", {{L"C:\\", L"C:\\"}}},
        {L"C:\\a b\\c\\", {{L"C:\\", L"C:\\"}, {L"C:\\a b", L"a b"}, {L"C:\\a b\\c", L"c"}}},
        {L"\\\\host\\share\\x", {{L"\\\\host\\share\\", L"\\\\host\\share\\"}, {L"\\\\host\\share\\x", L"x"}}},
        {L"\\\\host", {{L"\\\\host\\", L"\\\\host\\"}}},
    };
    for (const auto& [path, steps] : cases) EXPECT_EQ(folder_steps(path), steps) << testing::PrintToString(path);
}

}  // namespace
}  // namespace quillomat

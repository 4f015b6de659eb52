#include "text/print_page.h"

#include <gtest/gtest.h>

#include "text/printout.h"

namespace quillomat {
namespace {

using Lines = std::vector<std::wstring>;

// One character in the two halves that Windows has it in, also where wide characters are wider.
#define PAIR L"\xD83C\xDFAE"

std::size_t ten_characters(std::wstring_view text) {
    return std::min<std::size_t>(text.size(), 10);
}

TEST(PrintedLines, NothingOfATextIsLost) {
    const struct {
        const char* what;
        std::wstring text;
        Lines lines;
    } cases[] = {
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
}

TEST(PrintedLines, APageTooNarrowForAnyCharacterGetsOneInEachLine) {
    const auto nothing_fits = [](std::wstring_view text) { return text.empty() ? 0 : std::size_t{0}; };
    EXPECT_EQ(printed_lines(L"ab" PAIR, nothing_fits), (Lines{L"a", L"b", PAIR}));
}

TEST(PrintedLines, ALineAsLongAsABookIsMeasuredInPieces) {
    std::size_t longest_measured = 0;
    const Lines lines = printed_lines(std::wstring(100'000, L'x'), [&](std::wstring_view text) {
        longest_measured = std::max(longest_measured, text.size());
        return std::min<std::size_t>(text.size(), 100);
    });
    EXPECT_EQ(lines, Lines(1000, std::wstring(100, L'x')));
    EXPECT_LE(longest_measured, 1000u);
}

TEST(LineFlow, LinesGoOnOnFurtherPagesAndNoneIsCut) {
    using Place = LineFlow::Place;
    constexpr auto same = LineFlow::Page::Same;
    constexpr auto next = LineFlow::Page::Next;
    LineFlow flow(50, 15);
    flow.set_top(5);
    for (const Place& expected : {Place{same, 5}, {same, 20}, {same, 35}, {next, 5}, {same, 20}, {same, 35}, {next, 5}})
        EXPECT_EQ(flow.next(), expected);

    LineFlow too_small(10, 15);
    EXPECT_EQ(too_small.next(), (Place{same, 0})) << "a page that holds no line gets one all the same";
    EXPECT_EQ(too_small.next(), (Place{next, 0}));
}

}  // namespace
}  // namespace quillomat

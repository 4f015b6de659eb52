// The fonts that are collected: their file and their order.

#include "text/font_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "text/quick_sort.h"

namespace quillomat {
namespace {

TEST(FontList, ReadsWhatCanNameAFontAndWritesOneToALine) {
    const std::wstring longest(longest_font_name, L'x');
    const std::pair<std::wstring, std::vector<std::wstring>> cases[] = {
        {L"\r\n", {}},
        {L"\n\na\n\rTimes New Roman\r\r\n\nc", {L"a", L"Times New Roman", L"c"}},
        {longest + L"\r\n" + longest + L"y\r\nz\r\n", {longest, L"z"}},
        {std::wstring(L"a\0b\r\nc\td\r\n\x7f\r\n\x1a", 14) + L"\r\ne", {L"e"}}};
    for (const auto& [text, names] : cases) EXPECT_EQ(font_names(text), names) << testing::PrintToString(text);

    std::wstring endless;
    for (std::size_t i = 0; i < 3 * most_listed_fonts; ++i) endless += L"x\n";
    EXPECT_EQ(font_names(endless).size(), most_listed_fonts);

    EXPECT_EQ(font_list_text({}), L"\r\n");
    EXPECT_EQ(font_list_text({L"", L"Arial", L"Tahoma"}), L"Arial\r\nTahoma\r\n");
}

void sort(std::vector<int>& entries) {
    std::mt19937 generator(7);
    const auto at = [&](int index) -> int& { return entries.at(static_cast<std::size_t>(index)); };
    quick_sort(
        0, static_cast<int>(entries.size()) - 1, [&](int a, int b) { return at(a) < at(b); },
        [&](int a, int b) { std::swap(at(a), at(b)); },
        [&] { return static_cast<double>(generator()) / 4294967296.0; });
}

TEST(QuickSort, SortsEveryOrderOfAFewEntries) {
    const std::vector<int> sorted = {0, 1, 1, 2, 3, 3};
    std::vector<int> order = sorted;
    do {
        std::vector<int> entries = order;
        sort(entries);
        ASSERT_EQ(entries, sorted) << testing::PrintToString(order);
    } while (std::next_permutation(order.begin(), order.end()));
}

}  // namespace
}  // namespace quillomat

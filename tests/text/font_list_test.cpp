// The fonts that are collected: their order, their file and the figures of the progress window.

#include "text/font_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "text/font_collection.h"
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

TEST(FontCollection, FillsItsBarBelowTheViewerWhereThereIsRoom) {
    EXPECT_EQ(collection_progress(0, 0), (CollectionProgress{0, 0}));
    EXPECT_EQ(collection_progress(1999, 2000), (CollectionProgress{8770.6125, 99}));
    EXPECT_EQ(collection_progress(100'000'000, 100'000'000), (CollectionProgress{8775, 100}));
    EXPECT_EQ(progress_window_top(10520, 900, 11520), 10620);
    EXPECT_EQ(progress_window_top(10521, 900, 11520), 10520);
}

/// Sorts the entries of a range and returns how many comparisons that took.
int sort(std::vector<int>& entries, int lower, int upper) {
    std::mt19937 generator(7);
    int comparisons = 0;
    const auto at = [&](int index) -> int& { return entries.at(static_cast<std::size_t>(index)); };
    quick_sort(
        lower, upper, [&](int a, int b) { return ++comparisons && at(a) < at(b); },
        [&](int a, int b) { std::swap(at(a), at(b)); },
        [&] { return static_cast<double>(generator()) / 4294967296.0; });
    return comparisons;
}

TEST(QuickSort, SortsEveryOrderOfAFewEntriesAndIsQuickOnMany) {
    // The entries outside the range stay where they are.
    std::vector<int> order = {9, 0, 1, 1, 2, 3, 3, -1};
    const std::vector<int> sorted = order;
    do {
        std::vector<int> entries = order;
        sort(entries, 1, 6);
        ASSERT_EQ(entries, sorted) << testing::PrintToString(order);
    } while (std::next_permutation(order.begin() + 1, order.end() - 1));

    std::vector<int> many(100'000, 5);
    EXPECT_LT(sort(many, 0, 99'999), 6'000'000);
    std::iota(many.begin(), many.end(), 0);
    EXPECT_LT(sort(many, 0, 99'999), 6'000'000);
}

}  // namespace
}  // namespace quillomat

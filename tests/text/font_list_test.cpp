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
std::size_t sort(std::vector<int>& entries, int lower, int upper, unsigned seed) {
    std::mt19937 generator(seed);
    std::size_t comparisons = 0;
    const auto at = [&](int index) -> int& { return entries.at(static_cast<std::size_t>(index)); };
    quick_sort(
        lower, upper, [&](int a, int b) { return ++comparisons && at(a) < at(b); },
        [&](int a, int b) { std::swap(at(a), at(b)); },
        [&] { return static_cast<double>(generator()) / 4294967296.0; });
    return comparisons;
}

TEST(QuickSort, SortsEveryOrderOfAFewEntriesAndLeavesTheOthers) {
    std::vector<int> order = {0, 1, 1, 2, 3, 3};
    unsigned seed = 0;
    do {
        std::vector<int> entries{9};
        entries.insert(entries.end(), order.begin(), order.end());
        entries.push_back(-1);
        sort(entries, 1, 6, ++seed);
        ASSERT_EQ(entries, (std::vector{9, 0, 1, 1, 2, 3, 3, -1})) << testing::PrintToString(order);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(QuickSort, StaysQuickOnManyEntries) {
    constexpr int count = 100'000;
    std::vector<int> ascending(count);
    std::iota(ascending.begin(), ascending.end(), 0);
    for (std::vector<int> entries : {std::vector<int>(count, 5), ascending}) {
        EXPECT_LT(sort(entries, 0, count - 1, 7), std::size_t{count} * 60);
    }
}

}  // namespace
}  // namespace quillomat

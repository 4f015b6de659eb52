// The fonts that are collected: their order, their file and the figures of the progress window.

#include "text/font_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

#include "text/font_collection.h"
#include "text/quick_sort.h"

namespace quillomat {
namespace {

using Names = std::vector<std::wstring>;

TEST(FontList, ReadsWhatCanNameAFontAndWritesOneToALine) {
    const std::wstring longest(longest_font_name, L'x');
    const std::tuple<const char*, std::wstring, Names> cases[] = {
        {"as written", L"Arial\r\nTimes New Roman\r\n", {L"Arial", L"Times New Roman"}},
        {"an empty collection", L"\r\n", {}},
        {"other line ends, empty lines", L"\n\na\n\rb\r\r\n\nc", {L"a", L"b", L"c"}},
        {"too long", longest + L"\r\n" + longest + L"y\r\nz\r\n", {longest, L"z"}},
        {"control characters", std::wstring(L"a\0b\r\nc\td\r\n\x7f\r\n\x1a", 14) + L"\r\ne", {L"e"}},
    };
    for (const auto& [what, text, names] : cases) EXPECT_EQ(font_names(text), names) << what;

    std::wstring endless;
    for (std::size_t i = 0; i < 3 * most_listed_fonts; ++i) endless += L"x\n";
    EXPECT_EQ(font_names(endless).size(), most_listed_fonts);

    EXPECT_EQ(font_list_text({}), L"\r\n");
    EXPECT_EQ(font_list_text({L"", L"Arial", L"Tahoma"}), L"Arial\r\nTahoma\r\n");
}

TEST(FontCollection, FillsItsBarBelowTheViewerWhereThereIsRoom) {
    const std::tuple<int, int, CollectionProgress> cases[] = {
        {0, 0, {0, 0}},
        {2, 3, {5850, 66}},
        {3, 3, {8775, 100}},
        {1999, 2000, {8770.6125, 99}},
        {100'000'000, 100'000'000, {8775, 100}},
    };
    for (const auto& [collected, count, progress] : cases) {
        EXPECT_EQ(collection_progress(collected, count), progress) << collected << " of " << count;
    }

    EXPECT_EQ(progress_window_top(10520, 900, 11520), 10620);
    EXPECT_EQ(progress_window_top(10521, 900, 11520), 10520);
}

/// Sorts the entries of a range and returns how many comparisons that took.
std::size_t sort(std::vector<int>& entries, int lower, int upper, const std::function<double()>& random) {
    std::size_t comparisons = 0;
    const auto at = [&](int index) -> int& { return entries.at(static_cast<std::size_t>(index)); };
    const auto is_less = [&](int a, int b) { return ++comparisons && at(a) < at(b); };
    quick_sort(
        lower, upper, is_less, [&](int a, int b) { std::swap(at(a), at(b)); }, random);
    return comparisons;
}

TEST(QuickSort, SortsOnlyTheEntriesItIsGiven) {
    std::vector<int> entries{9, 3, 2, 1, 0};
    for (const auto& [lower, upper] : {std::pair{0, -1}, {1, 1}, {1, 0}, {1, 3}}) {
        sort(entries, lower, upper, [] { return 0.5; });
    }
    EXPECT_EQ(entries, (std::vector{9, 1, 2, 3, 0}));
}

TEST(QuickSort, SortsEveryOrderOfAFewEntries) {
    std::vector<int> order = {0, 1, 1, 2, 3, 3};
    const std::vector<int> sorted = order;
    do {
        for (const double random : {0.0, 0.5, 0.9999999999999999}) {
            std::vector<int> entries = order;
            sort(entries, 0, 5, [random] { return random; });
            ASSERT_EQ(entries, sorted) << testing::PrintToString(order);
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(QuickSort, StaysQuickOnManyEntries) {
    constexpr int count = 100'000;
    std::vector<int> ascending(count);
    std::iota(ascending.begin(), ascending.end(), 0);
    for (std::vector<int> entries : {std::vector<int>(count, 5), ascending}) {
        std::mt19937 generator(7);
        const auto random = [&] { return static_cast<double>(generator()) / 4294967296.0; };
        EXPECT_LT(sort(entries, 0, count - 1, random), std::size_t{count} * 60);
        EXPECT_TRUE(std::is_sorted(entries.begin(), entries.end()));
    }
}

}  // namespace
}  // namespace quillomat

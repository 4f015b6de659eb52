#include "text/quick_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace quillomat {
namespace {

/// Entries that are sorted by what a sort may do to them, and what it cost.
template <typename Entry>
struct Entries {
    std::vector<Entry> entries;
    std::size_t comparisons = 0;

    void sort(int lower, int upper, double (*next_random)(std::mt19937&)) {
        std::mt19937 generator(7);
        quick_sort(
            lower, upper,
            [this](int a, int b) {
                ++comparisons;
                return at(a) < at(b);
            },
            [this](int a, int b) { std::swap(at(a), at(b)); }, [&] { return next_random(generator); });
    }

    Entry& at(int index) { return entries.at(static_cast<std::size_t>(index)); }
};

double uniform(std::mt19937& generator) {
    return static_cast<double>(generator()) / 4294967296.0;
}

TEST(QuickSort, SortsOnlyTheEntriesItIsGiven) {
    using Names = std::vector<std::wstring>;
    struct Case {
        Names before;
        int lower;
        int upper;
        Names after;
    };
    const Case cases[] = {
        {{}, 0, -1, {}},
        {{L"b", L"a"}, 1, 1, {L"b", L"a"}},
        {{L"b", L"a"}, 1, 0, {L"b", L"a"}},
        {{L"b", L"a"}, 0, 1, {L"a", L"b"}},
        {{L"a", L"b"}, 0, 1, {L"a", L"b"}},
        {{L"z", L"c", L"b", L"a", L"0"}, 1, 3, {L"z", L"a", L"b", L"c", L"0"}},
        {{L"b", L"B", L"a", L"A", L"\u00c4"}, 0, 4, {L"A", L"B", L"a", L"b", L"\u00c4"}},
    };
    for (const Case& expected : cases) {
        Entries<std::wstring> entries{expected.before};
        entries.sort(expected.lower, expected.upper, uniform);
        EXPECT_EQ(entries.entries, expected.after);
    }
}

TEST(QuickSort, SortsEveryOrderOfAFewEntries) {
    std::vector<int> order = {0, 1, 1, 2, 3, 3};
    const std::vector<int> sorted = order;
    do {
        for (double (*random)(std::mt19937&) :
             {uniform, +[](std::mt19937&) { return 0.0; }, +[](std::mt19937&) { return 0.9999999999999999; }}) {
            Entries<int> entries{order};
            entries.sort(0, 5, random);
            ASSERT_EQ(entries.entries, sorted) << testing::PrintToString(order);
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(QuickSort, StaysQuickOnManyEntries) {
    constexpr int count = 100'000;
    std::vector<int> equal(count, 5);
    std::vector<int> ascending(count);
    for (int i = 0; i < count; ++i) ascending[static_cast<std::size_t>(i)] = i;
    const std::vector<int> descending(ascending.rbegin(), ascending.rend());
    for (const std::vector<int>& before : {equal, ascending, descending}) {
        Entries<int> entries{before};
        entries.sort(0, count - 1, uniform);
        EXPECT_TRUE(std::is_sorted(entries.entries.begin(), entries.entries.end()));
        EXPECT_LT(entries.comparisons, std::size_t{count} * 60);
    }
}

/// The worst pivot every time: the time grows with the square, but the stack must not grow with the number.
TEST(QuickSort, UsesLittleStackEvenWithTheWorstPivots) {
    constexpr int count = 4'000;
    Entries<int> entries;
    for (int i = 0; i < count; ++i) entries.entries.push_back(i);
    const char* highest = nullptr;
    const char* lowest = nullptr;
    quick_sort(
        0, count - 1,
        [&](int a, int b) {
            const char here = 0;
            const char* place = &here;
            if (highest == nullptr || place > highest) highest = place;
            if (lowest == nullptr || place < lowest) lowest = place;
            return entries.at(a) < entries.at(b);
        },
        [&](int a, int b) { std::swap(entries.at(a), entries.at(b)); }, [] { return 0.9999999999999999; });
    EXPECT_TRUE(std::is_sorted(entries.entries.begin(), entries.entries.end()));
    EXPECT_LT(highest - lowest, 64 * 1024);
}

}  // namespace
}  // namespace quillomat

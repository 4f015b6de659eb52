#include "text/quick_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace quillomat {
namespace {

/// Entries that are sorted by what a sort may do to them, and what it cost.
struct Entries {
    std::vector<int> entries;
    std::size_t comparisons = 0;

    template <typename Random>
    void sort(int lower, int upper, const Random& random) {
        quick_sort(
            lower, upper,
            [this](int a, int b) {
                ++comparisons;
                return at(a) < at(b);
            },
            [this](int a, int b) { std::swap(at(a), at(b)); }, random);
    }

    int& at(int index) { return entries.at(static_cast<std::size_t>(index)); }
};

TEST(QuickSort, SortsOnlyTheEntriesItIsGiven) {
    Entries entries{{9, 3, 2, 1, 0}};
    for (const auto& [lower, upper] : {std::pair{0, -1}, {1, 1}, {1, 0}, {1, 3}}) {
        entries.sort(lower, upper, [] { return 0.5; });
    }
    EXPECT_EQ(entries.entries, (std::vector{9, 1, 2, 3, 0}));
}

TEST(QuickSort, SortsEveryOrderOfAFewEntries) {
    std::vector<int> order = {0, 1, 1, 2, 3, 3};
    const std::vector<int> sorted = order;
    do {
        for (const double random : {0.0, 0.5, 0.9999999999999999}) {
            Entries entries{order};
            entries.sort(0, 5, [random] { return random; });
            ASSERT_EQ(entries.entries, sorted) << testing::PrintToString(order);
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(QuickSort, StaysQuickOnManyEntries) {
    constexpr int count = 100'000;
    std::vector<int> ascending(count);
    std::iota(ascending.begin(), ascending.end(), 0);
    for (const std::vector<int>& before : {std::vector<int>(count, 5), ascending}) {
        std::mt19937 generator(7);
        Entries entries{before};
        entries.sort(0, count - 1, [&] { return static_cast<double>(generator()) / 4294967296.0; });
        EXPECT_TRUE(std::is_sorted(entries.entries.begin(), entries.entries.end()));
        EXPECT_LT(entries.comparisons, std::size_t{count} * 60);
    }
}

}  // namespace
}  // namespace quillomat

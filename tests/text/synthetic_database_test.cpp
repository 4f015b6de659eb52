#include "support/synthetic_database.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "support/decoded_text.h"
#include "support/reference_loader.h"

namespace quillomat {
namespace {

TEST(SyntheticDatabase, HasTheGamesAndBytesAskedFor) {
    const std::pair<int, std::size_t> cases[] = {{1, 1000}, {7, 1000}, {2501, 300'000}, {26, 500'000}};
    for (const auto& [records, bytes] : cases) {
        const std::string text = synthetic_database(records, bytes);
        EXPECT_EQ(text.size(), bytes);
        const ReferenceCatalogue loaded = load_by_lines(widened(text).view());
        EXPECT_EQ(loaded.names.size(), static_cast<std::size_t>(records));
        EXPECT_EQ(loaded.error, std::nullopt);
        EXPECT_TRUE(std::is_sorted(loaded.names.begin(), loaded.names.end()));
        EXPECT_EQ(std::adjacent_find(loaded.names.begin(), loaded.names.end()), loaded.names.end());
        EXPECT_EQ(std::count(loaded.cheats.begin(), loaded.cheats.end(), L""), records == 2501 ? 0 : 1);
    }
}

TEST(SyntheticDatabase, DependsOnItsSeedAlone) {
    EXPECT_EQ(synthetic_database(20, 5000, 3), synthetic_database(20, 5000, 3));
    EXPECT_NE(synthetic_database(20, 5000, 3), synthetic_database(20, 5000, 4));
    EXPECT_THROW(synthetic_database(100, 3000), std::invalid_argument);
}

}  // namespace
}  // namespace quillomat

#include <gtest/gtest.h>

#include "text/splash_animation.h"

namespace quillomat {
namespace {

TEST(Motto, EveryOneOfEightCanBeChosenAndNoOther) {
    const std::pair<double, int> cases[] = {{0, 1}, {0.1249, 1}, {0.125, 2}, {0.9999999999999999, 8}};
    for (const auto& [random, number] : cases) EXPECT_EQ(motto_number(random), number) << random;
}

}  // namespace
}  // namespace quillomat

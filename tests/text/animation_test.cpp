#include <gtest/gtest.h>

#include "text/author_animation.h"
#include "text/splash_animation.h"
#include "text/viewer_animation.h"

namespace quillomat {
namespace {

TEST(Motto, EveryOneOfEightCanBeChosenAndNoOther) {
    const std::pair<double, int> cases[] = {{0, 1}, {0.1249, 1}, {0.125, 2}, {0.9999999999999999, 8}};
    for (const auto& [random, number] : cases) EXPECT_EQ(motto_number(random), number) << random;
}

TEST(Movements, EndAtTheirGoalOrLessThanAStepBeyond) {
    const struct {
        const char* what;
        double start;
        std::optional<double> (*next)(double);
        int steps;
        double end;
    } cases[] = {
        {"panel of games", game_panel_start_left, next_game_panel_left, 27, 165},
        {"search panel", search_panel_start_left, next_search_panel_left, 26, 55},
        {"growing dialog", author_dialog_height, next_expanded_height, 14, 6800},
        {"shrinking dialog", 6765, next_contracted_height, 14, 5365},
    };
    for (const auto& [what, start, next, steps, end] : cases) {
        double place = start;
        int made = 0;
        for (auto further = next(place); further && made < 1000; further = next(place), ++made) place = *further;
        EXPECT_EQ(made, steps) << what;
        EXPECT_EQ(place, end) << what;
    }
}

TEST(Turn, StaysWithinATurnForEver) {
    std::optional<double> turn;
    for (int tick = 1; tick < 10'000; ++tick) {
        turn = next_turn(turn);
        ASSERT_TRUE(*turn > 0 && *turn <= 1) << tick;
    }
    EXPECT_NEAR(turned_width(0.5), -1, 1e-5) << "seen from behind";
}

}  // namespace
}  // namespace quillomat

#include "text/animation.h"

#include <gtest/gtest.h>

#include "text/squeeze.h"

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
        {"version", version_start_left(7020), next_version_left, 70, 3920},
        {"panel of games", game_panel_start_left, next_game_panel_left, 27, 165},
        {"search panel", search_panel_start_left, next_search_panel_left, 26, 55},
        {"shrinking title", 20, next_shrinking_title, 18, 2},
        {"growing title", 2, next_growing_title, 18, 20},
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

constexpr std::uint32_t white = 0xFFFFFF;

TEST(Squeeze, AveragesWhatFallsOnAPixelRowByRow) {
    const std::pair<double, std::vector<std::uint32_t>> cases[] = {
        {1, {0x000000, 0x400000, 0x008000, 0x0000C0}},
        {0.5, {white, 0x200000, 0x004060, white}},
        // A quarter of each middle pixel is black and a quarter another colour, the rest background.
        {0.25, {white, 0x908080, 0x80A0B0, white}},
        {0, {white, white, white, white}},
    };
    for (const auto& [factor, row] : cases) {
        EXPECT_EQ(squeezed({4, 1, {0x000000, 0x400000, 0x008000, 0x0000C0}}, factor, white).pixels, row) << factor;
    }
    EXPECT_EQ(squeezed({3, 2, {1, 2, 3, 4, 5, 6}}, -1, white).pixels, (std::vector<std::uint32_t>{3, 2, 1, 6, 5, 4}));
    EXPECT_TRUE(squeezed({}, 0.3, white).pixels.empty());
}

}  // namespace
}  // namespace quillomat

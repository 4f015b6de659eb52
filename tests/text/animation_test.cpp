#include "text/animation.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quillomat {
namespace {

/// The band as it looks: a letter per colour, from dark over mid to light.
std::string drawn(const LetterBand& band) {
    const std::map<ColourValue, char> letters = {{0x404040, 'd'}, {0x808080, 'm'}, {0xC0C0C0, 'L'}};
    std::string text;
    for (const ColourValue colour : band.colours) text += letters.at(colour);
    return text;
}

TEST(LetterBand, RunsAcrossTheNameAndStartsAgain) {
    const char* const frames[] = {"Lmddddddd", "mLmdddddd", "dmLmddddd", "ddmLmdddd", "dddmLmddd", "ddddmLmdd",
                                  "dddddmLmd", "ddddddmLm", "dddddddmL", "ddddddddm", "mdddddddd", "Lmddddddd"};
    int step = 0;
    for (std::size_t tick = 0; tick < std::size(frames); ++tick) {
        const LetterBand band = next_letter_band(step, 9);
        EXPECT_EQ(drawn(band), frames[tick]) << "tick " << tick;
        EXPECT_EQ(band.step, static_cast<int>((tick + 1) % 11));
        step = band.step;
    }
}

TEST(LetterBand, AnImpossibleStepStartsAgainWithoutABand) {
    for (const int step : {-7, 11, 32767}) {
        const LetterBand band = next_letter_band(step, 9);
        EXPECT_EQ(band.step, 0);
        EXPECT_EQ(drawn(band), "ddddddddd");
    }
    EXPECT_EQ(drawn(next_letter_band(0, 1)), "L");
}

TEST(Motto, EveryOneOfEightCanBeChosenAndNoOther) {
    std::map<int, int> chosen;
    for (int i = 0; i < 8000; ++i) ++chosen[motto_number(i / 8000.0)];
    EXPECT_EQ(chosen.size(), 8U);
    EXPECT_EQ(chosen.begin()->first, 1);
    EXPECT_EQ(chosen.rbegin()->first, 8);
    for (const auto& [number, count] : chosen) EXPECT_EQ(count, 1000) << number;
    EXPECT_EQ(motto_number(0.9999999999999999), 8);
}

TEST(VersionLabel, SlidesInAndMayComeToRestBeyondItsGoal) {
    double left = version_start_left(7020);
    EXPECT_EQ(left, 7420);
    int steps = 0;
    while (const std::optional<double> next = next_version_left(left)) {
        left = *next;
        ++steps;
    }
    EXPECT_EQ(left, 3920);
    EXPECT_EQ(steps, 70);
    EXPECT_EQ(next_version_left(3960), std::nullopt);
    EXPECT_EQ(next_version_left(3960.5), 3910.5);
}

TEST(ColourCycle, PaintsElevenColoursInTurn) {
    const std::optional<ColourValue> painted[] = {std::nullopt, 0xFFC0C0, 0xFF8080,     0xFF0000, 0xC00000,
                                                  0x800000,     0x400000, 0x800080,     0xC000C0, 0xFF00FF,
                                                  0xFF80FF,     0xFFC0FF, std::nullopt, 0xFFC0C0};
    ColourCycle cycle;
    for (const std::optional<ColourValue>& colour : painted) {
        cycle = next_colour_cycle(cycle.step);
        EXPECT_EQ(cycle.colour, colour) << cycle.step;
    }
    EXPECT_EQ(next_colour_cycle(12), (ColourCycle{1, std::nullopt}));
}

TEST(ExitConfirmation, ShrinksAndGrowsEachPartToItsOwnLimit) {
    struct Case {
        ExitConfirmation (*step)(const ExitConfirmation&);
        ExitConfirmation before;
        ExitConfirmation after;
    };
    const Case cases[] = {
        {next_asking, {5415, 4590, 4605}, {5015, 4490, 4505}},
        {next_asking, {2501, 3615, 3614}, {2101, 3515, 3614}},
        {next_asking, {2500, 3614.896, 3614.897}, {2500, 3614.896, 3514.897}},
        {next_withdrawing, {2215, 3525, 3600}, {2615, 3625, 3700}},
        {next_withdrawing, {5414, 4588, 4589}, {5814, 4688, 4589}},
        {next_withdrawing, {5415, 4588.138, 4588.137}, {5415, 4588.138, 4688.137}},
    };
    for (const Case& expected : cases) EXPECT_EQ(expected.step(expected.before), expected.after);
}

TEST(ExitConfirmation, EndsOnlyAtExactlyItsWidth) {
    EXPECT_TRUE(asking_is_complete(2500));
    EXPECT_FALSE(asking_is_complete(2490));
    EXPECT_TRUE(withdrawing_is_complete(5415));
    EXPECT_FALSE(withdrawing_is_complete(5430));
}

TEST(SlidingPanels, ArriveAfter26Steps) {
    const auto slide = [](double left, std::optional<double> (*next_left)(double)) {
        int steps = 0;
        while (const std::optional<double> next = next_left(left)) {
            left = *next;
            ++steps;
        }
        return std::pair(steps, left);
    };
    EXPECT_EQ(slide(search_panel_start_left, next_search_panel_left), std::pair(26, 55.0));
    EXPECT_EQ(slide(game_panel_start_left, next_game_panel_left), std::pair(27, 165.0));
    EXPECT_EQ(next_search_panel_left(panel_resting_left), std::nullopt);
    EXPECT_EQ(next_game_panel_left(panel_resting_left), std::nullopt);
}

}  // namespace
}  // namespace quillomat

#include "text/animation.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

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

TEST(TitlePulse, TurnsRoundAtTwoAndAtTwentyPoints) {
    double points = 20;
    std::vector<double> sizes;
    while (const auto next = next_shrinking_title(points)) sizes.push_back(points = *next);
    while (const auto next = next_growing_title(points)) sizes.push_back(points = *next);
    std::vector<double> expected;
    for (int size = 19; size >= 2; --size) expected.push_back(size);
    for (int size = 3; size <= 20; ++size) expected.push_back(size);
    EXPECT_EQ(sizes, expected);
}

TEST(RunningCapital, RunsAlongTheCaptionAndStartsAgain) {
    const std::wstring caption = L"me - tob";
    const wchar_t* const frames[] = {L"Me - tob", L"mE - tob", L"me - tob", L"me - tob", L"me - tob",
                                     L"me - Tob", L"me - tOb", L"me - toB", L"Me - tob"};
    int position = 0;
    for (std::size_t tick = 0; tick < std::size(frames); ++tick) {
        position = next_capital(position, caption.size());
        EXPECT_EQ(with_capital(caption, position, 30), frames[tick]) << "tick " << tick;
    }
}

TEST(RunningCapital, TheAddressesDecideHowMuchFollows) {
    const struct {
        std::wstring_view caption;
        int position;
        std::size_t address_length;
        std::wstring_view shown;
    } cases[] = {
        {L"author", 2, 6, L"aUthor"},     {L"author", 2, 5, L"aUtho"},
        {L"author", 2, 2, L"aU"},         {L"author", 4, 2, L"autH"},
        {L"author", 6, 0, L"authoR"},     {L"author", 7, 9, L"author"},
        {L"author", 0, 9, L"author"},     {L"", 1, 9, L""},
        {L"\u00e9A-", 1, 9, L"\u00e9A-"},
    };
    for (const auto& [caption, position, address_length, shown] : cases) {
        EXPECT_EQ(with_capital(caption, position, address_length), shown) << position << ", " << address_length;
    }
    EXPECT_EQ(next_capital(0, 0), 1);
}

TEST(Turn, TakesAHundredTicksFromATenthOn) {
    std::optional<double> turn;
    const struct {
        int tick;
        double turn;
        double width;
    } cases[] = {
        {1, 0.1, 0.80920}, {2, 0.11, 0.77074},   {16, 0.25, 0.00080},
        {41, 0.5, -1.0},   {66, 0.75, -0.00239}, {101, 0.1, 0.80920},
    };
    int tick = 0;
    for (const auto& expected : cases) {
        for (; tick < expected.tick; ++tick) turn = next_turn(turn);
        EXPECT_NEAR(*turn, expected.turn, 1e-9) << tick;
        EXPECT_NEAR(turned_width(*turn), expected.width, 1e-5) << tick;
    }
    for (; tick < 10'000; ++tick) {
        turn = next_turn(turn);
        ASSERT_TRUE(*turn > 0 && *turn <= 1) << tick;
    }
    EXPECT_NEAR(next_turn(1.0), 0.01, 1e-9);
}

TEST(Icon, ThreePicturesTakeTurns) {
    std::vector<int> shown;
    for (int icon = 0; shown.size() < 4;) shown.push_back(icon = next_icon(icon));
    EXPECT_EQ(shown, (std::vector{1, 2, 0, 1}));
}

TEST(AuthorDialog, GrowsAndShrinksPastItsGoalByLessThanAStep) {
    const auto run = [](double height, std::optional<double> (*next_height)(double)) {
        while (const auto next = next_height(height)) height = *next;
        return height;
    };
    EXPECT_EQ(run(author_dialog_height, next_expanded_height), 6800);
    EXPECT_EQ(run(6800, next_contracted_height), author_dialog_height);
    EXPECT_EQ(run(6765, next_contracted_height), 5365);
    EXPECT_EQ(next_expanded_height(6705), std::nullopt);
    EXPECT_EQ(next_expanded_height(6704), 6804);
    EXPECT_EQ(next_contracted_height(5401), 5301);
}

}  // namespace
}  // namespace quillomat

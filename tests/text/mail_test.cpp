#include "text/mail.h"

#include <gtest/gtest.h>

#include "text/mail_result.h"
#include "text/picked_games.h"

namespace quillomat {
namespace {

TEST(Mail, CheatsStandBelowTheirGamesName) {
    EXPECT_EQ(mailed_cheats({}), L"");
    EXPECT_EQ(mailed_cheats({{L"One", L"a\r\nb"}, {L"", L""}, {L"Two", L"c\r\n"}}),
              L"********************\r\nOne\r\n********************\r\n\r\na\r\nb\r\n\r\n"
              L"********************\r\n\r\n********************\r\n\r\n\r\n\r\n"
              L"********************\r\nTwo\r\n********************\r\n\r\nc\r\n");
}

TEST(Mail, TheBodyKeepsTheMessageAndSaysWhereItComesFrom) {
    EXPECT_EQ(cheats_mail_body(L"Hi [YOUR NAME]\r\n"),
              L"Hi [YOUR NAME]\r\n\r\n\r\n-----------------------------------\r\n\r\n"
              L"Cheat codes taken from Quillomat.\r\nwww.tobferrand.example");
    EXPECT_EQ(
        cheats_mail_body(L"Hi", L"CHEATS"),
        L"Hi\r\n\r\n-----------------------------------\r\n\r\nCHEATS\r\n\r\n"
        L"-----------------------------------\r\n\r\nCheat codes taken from Quillomat.\r\nwww.tobferrand.example");
}

TEST(Mail, ADoubleClickOnAPlaceholderMeansAllOfIt) {
    const struct {
        const wchar_t* selected;
        std::optional<int> length;
    } cases[] = {
        {L"[FRIEND'S ", 15}, {L"[FRIEND'S", 15}, {L"[YOUR ", 11}, {L"[YOUR", 11},
        {L"NAME]", {}},      {L"[your ", {}},    {L"", {}},       {L"YOUR ", {}},
    };
    for (const auto& [selected, length] : cases) EXPECT_EQ(placeholder_length(selected), length);
}

TEST(Mail, EveryNumberOfAMailProgramBecomesASentenceForAUser) {
    for (unsigned number = 1; number < 40; ++number) {
        const std::wstring text = mail_failure_description(MailResult{number});
        EXPECT_TRUE(text.starts_with(L"The message was not sent: ")) << number;
        EXPECT_TRUE(text.ends_with(L".")) << number;
        EXPECT_EQ(text.find(L".."), std::wstring::npos) << number;
    }
    EXPECT_EQ(mail_failure_description(MailResult::UserAbort), L"The message was not sent: you cancelled it.");
    EXPECT_NE(mail_failure_description(MailResult{0x80004005}).find(L"2147500037"), std::wstring::npos)
        << "a number nobody knows is told, so that somebody can look it up";
}

TEST(PickedGames, TheTooltipCountsAndNamesThem) {
    EXPECT_EQ(picked_games_tooltip({}), L"You have selected 0 games. These are: ");
    EXPECT_EQ(picked_games_tooltip({L"Alpha", L"Beta & Co"}),
              L"You have selected 2 games. These are: Alpha, Beta & Co");
}

TEST(PickedGames, TheCursorGoesRoundFromOneToTheNext) {
    using Picked = std::vector<int>;
    const struct {
        int current;
        Picked picked;
        std::optional<int> previous;
        std::optional<int> next;
    } cases[] = {
        {5, {}, {}, {}},          // nothing to go to
        {5, {5}, 5, 5},           // only where it is
        {5, {2}, 2, 2},           // round
        {5, {2, 4, 7, 9}, 4, 7},  // between
        {4, {2, 4, 7, 9}, 2, 7},  // from a picked one
        {0, {2, 4, 7, 9}, 9, 2},  // round upwards
        {2, {2, 4, 7, 9}, 9, 4},  // round from the first
        {9, {2, 4, 7, 9}, 7, 2},  // round from the last
        {2500, {0, 2500}, 0, 0},  // the ends of the longest list
    };
    for (const auto& [current, picked, previous, next] : cases) {
        EXPECT_EQ(previous_picked(current, picked), previous) << current;
        EXPECT_EQ(next_picked(current, picked), next) << current;
    }
}

}  // namespace
}  // namespace quillomat

#include <gtest/gtest.h>

#include "text/mail_result.h"
#include "text/picked_games.h"

namespace quillomat {
namespace {

TEST(Mail, EveryNumberOfAMailProgramBecomesASentenceForAUser) {
    for (unsigned number = 1; number < 40; ++number) {
        const std::wstring text = mail_failure_description(MailResult{number});
        EXPECT_TRUE(text.starts_with(L"The message was not sent: ")) << number;
        EXPECT_TRUE(text.ends_with(L".")) << number;
        EXPECT_EQ(text.find(L".."), std::wstring::npos) << number;
    }
    EXPECT_NE(mail_failure_description(MailResult{0x80004005}).find(L"2147500037"), std::wstring::npos)
        << "a number nobody knows is told, so that somebody can look it up";
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
        {4, {2, 4, 7, 9}, 2, 7},  // from a picked one
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

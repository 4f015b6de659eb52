#include <gtest/gtest.h>

#include "text/mail_result.h"

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

}  // namespace
}  // namespace quillomat

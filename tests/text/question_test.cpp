#include "text/question.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(Question, IsAllWordsWithoutQuotationMarks) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"", L""},
        {L" \t\r\n", L""},
        {L"\"\" \"", L""},
        {L"doom", L"doom"},
        {L"  doom \t ii ", L"doom ii"},
        {L"\"tomb raider\" ii", L"tomb raider ii"},
        {L"\" doom\"\"ii \"", L"doomii"},
    };
    for (const auto& [arguments, question] : cases) EXPECT_EQ(question_of(arguments), question);
}

}  // namespace
}  // namespace quillomat

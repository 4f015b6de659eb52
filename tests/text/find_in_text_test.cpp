#include "text/find_in_text.h"

#include <gtest/gtest.h>

#include <string>

#include "support/upper_case.h"

namespace quillomat {
namespace {

constexpr std::size_t none = std::wstring::npos;

enum class Way { Forwards, Backwards };

/// A step in `text` from `caret`, when the step before left it at `last`; `none` makes it a first step.
std::size_t found(const std::wstring& text, const std::wstring& wanted, Way way, std::size_t caret, std::size_t last,
                  std::int16_t match_case) {
    const FindState state{.gFindString = wanted,
                          .gFindCase = match_case,
                          .gFindDirection = way == Way::Forwards,
                          .gCurPos = last == none ? caret : last,
                          .gFirstTime = last == none};
    return find_in_text(state, text, caret, upper_case).value_or(none);
}

TEST(FindInText, StartsFromTheCaretAndMatchesTheCaseOnlyWhenAsked) {
    EXPECT_EQ(found(L"abab", L"ab", Way::Forwards, 0, 2, 1), 0U) << "the caret has moved";
    EXPECT_EQ(found(L"ab", L"b", Way::Backwards, 9, none, 1), 1U) << "the text has become shorter";
    EXPECT_EQ(found(L"ab", L"b", Way::Forwards, 9, none, 1), none);
    EXPECT_EQ(found(L"x\u00c9", L"\u00e9", Way::Forwards, 0, none, 0), 1U);
    EXPECT_EQ(found(L"AB..", L"ab", Way::Backwards, 4, none, 0), 0U);
    EXPECT_EQ(found(L"ABAB", L"ab", Way::Forwards, 0, none, 1), none);
}

/// The rule in its plainest form, place by place, against the routine for every text of few letters.
TEST(FindInText, AgreesWithTheRuleEverywhere) {
    const auto rule = [](const std::wstring& text, const std::wstring& wanted, Way way, long start) {
        const long step = way == Way::Forwards ? 1 : -1;
        for (long place = way == Way::Forwards ? start : start - 2; place >= 0 && place < 7; place += step) {
            const auto index = static_cast<std::size_t>(place);
            if (index < text.size() && text.compare(index, wanted.size(), wanted) == 0) return index;
        }
        return none;
    };
    for (unsigned bits = 0; bits < 64; ++bits) {
        std::wstring text;
        for (int i = 0; i < 6; ++i) text += bits >> i & 1 ? L'A' : L'B';
        for (const wchar_t* wanted : {L"A", L"AB", L"AAB", L"BABA"}) {
            for (std::size_t caret = 0; caret <= text.size(); ++caret) {
                for (const std::size_t last : {none, caret}) {
                    for (const Way way : {Way::Forwards, Way::Backwards}) {
                        const long start = static_cast<long>(caret) + (last == caret ? 1 : 0);
                        EXPECT_EQ(found(text, wanted, way, caret, last, 1), rule(text, wanted, way, start))
                            << testing::PrintToString(text) << " " << caret;
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace quillomat

#include "text/find_in_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quillomat {
namespace {

void upper_case(wchar_t* characters, std::size_t length) {
    for (wchar_t* c = characters; c != characters + length; ++c) {
        if ((*c >= L'a' && *c <= L'z') || *c == L'\u00e9') *c = static_cast<wchar_t>(*c - 0x20);
    }
}

constexpr std::size_t none = std::wstring::npos;

struct Case {
    const char* what;
    std::wstring text;
    std::wstring wanted;
    bool forwards;
    bool match_case;
    std::size_t caret;
    std::size_t last;  ///< where the last step left the caret; `none` for a first step
    std::size_t expected;
};

std::size_t found(const Case& c) {
    FindState state{.gFindString = c.wanted,
                    .gFindCase = static_cast<std::int16_t>(c.match_case),
                    .gFindDirection = c.forwards,
                    .gCurPos = c.last == none ? c.caret : c.last,
                    .gFirstTime = c.last == none};
    return find_in_text(state, c.text, c.caret, upper_case).value_or(none);
}

TEST(FindInText, OneStep) {
    const Case cases[] = {
        {"first step finds a match at the caret", L"abab", L"ab", true, true, 0, none, 0},
        {"next step leaves the match it made", L"abab", L"ab", true, true, 0, 0, 2},
        {"caret moved away: from the caret", L"abab", L"ab", true, true, 0, 2, 0},
        {"matches overlap", L"aaaa", L"aa", true, true, 0, 0, 1},
        {"forwards from the end", L"abab", L"ab", true, true, 4, none, none},
        {"forwards from the end, on the last match", L"ab", L"", true, true, 2, 2, none},
        {"longer than the text", L"ab", L"abc", true, true, 0, none, none},
        {"empty text", L"", L"a", true, true, 0, none, none},
        {"case ignored in the text", L"xAbY", L"aB", true, false, 0, none, 1},
        {"case ignored beyond ASCII", L"x\u00c9", L"\u00e9", true, false, 0, none, 1},
        {"case matched", L"ABab", L"ab", true, true, 0, none, 2},
        {"case matched and not there", L"ABAB", L"ab", true, true, 0, none, none},
        {"across a line break", L"one\r\ntwo", L"e\r\nt", true, false, 0, none, 2},

        {"backwards: the nearest before the caret", L"ab ab ab", L"ab", false, true, 8, none, 6},
        {"backwards over the match just made", L"ab ab ab", L"ab", false, true, 6, 6, 3},
        {"backwards over the match, overlapping", L"aaaa", L"aa", false, true, 2, 2, 1},
        {"backwards, a first step passes the place right before the caret", L"aa", L"a", false, true, 2, none, 0},
        {"backwards to the first character", L"a....", L"a", false, true, 5, none, 0},
        {"backwards from the beginning", L"abab", L"ab", false, true, 0, none, none},
        {"backwards from the beginning, on the last match", L"abab", L"ab", false, true, 0, 0, none},
        {"backwards from the first place", L"abab", L"a", false, true, 1, none, none},
        {"a match may reach over the caret", L"xxabcd", L"abcd", false, true, 4, none, 2},
        {"backwards, longer than the text", L"ab", L"abc", false, true, 2, none, none},
        {"backwards, case ignored", L"AB..", L"ab", false, false, 4, none, 0},
        {"backwards, case matched", L"AB..", L"ab", false, true, 4, none, none},
        {"caret behind the end: another program has shortened the text", L"ab", L"b", false, true, 9, none, 1},
        {"caret behind the end, forwards", L"ab", L"b", true, false, 9, none, none},
    };
    for (const Case& c : cases) EXPECT_EQ(found(c), c.expected) << c.what;
}

/// The rule in its plainest form, place by place, against the routine for every text of few letters.
TEST(FindInText, AgreesWithTheRuleEverywhere) {
    const auto rule = [](const Case& c) -> std::size_t {
        const auto length = static_cast<long>(c.text.size());
        const long start = static_cast<long>(c.caret) + (c.last == c.caret ? 1 : 0);
        const auto stands = [&](long place) {
            return c.text.substr(static_cast<std::size_t>(place), c.wanted.size()) == c.wanted;
        };
        if (c.forwards) {
            for (long place = start; place < length; ++place) {
                if (stands(place)) return static_cast<std::size_t>(place);
            }
        } else {
            for (long place = start - 2; place >= 0; --place) {
                if (place < length && stands(place)) return static_cast<std::size_t>(place);
            }
        }
        return none;
    };
    for (unsigned bits = 0; bits < 64; ++bits) {
        std::wstring text;
        for (int i = 0; i < 6; ++i) text += bits >> i & 1 ? L'A' : L'B';
        for (const wchar_t* wanted : {L"A", L"AB", L"AAB", L"BABA"}) {
            for (std::size_t caret = 0; caret <= text.size(); ++caret) {
                for (const std::size_t last : {none, caret}) {
                    for (const bool forwards : {false, true}) {
                        const Case c{"", text, wanted, forwards, true, caret, last, 0};
                        EXPECT_EQ(found(c), rule(c)) << bits << " " << caret << " " << forwards;
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace quillomat

#include "text/shortened_name.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(ShortenedName, LeavesOutTheMiddleOfANameThatHasNotEnoughRoom) {
    const std::tuple<const wchar_t*, std::size_t, const wchar_t*> cases[] = {
        {L"", 0, L""},
        {L"Doom", 4, L"Doom"},
        {L"Doom", 3, L"D\u2026m"},
        {L"Doom", 2, L"D\u2026"},
        {L"Doom", 0, L"\u2026"},
        {L"Old Republic II", 8, L"Old \u2026 II"},
    };
    for (const auto& [name, room, shown] : cases) {
        EXPECT_EQ(shortened_name(name, [room](const std::wstring& text) { return text.size() <= room; }), shown)
            << name;
    }
}

}  // namespace
}  // namespace quillomat

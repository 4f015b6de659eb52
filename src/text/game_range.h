#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Numbers of games, both included, as users count them: from 1.
struct GameRange {
    int first = 0;
    int last = 0;

    friend bool operator==(const GameRange&, const GameRange&) = default;
};

/// The decimal text of how many games the typed numbers stand for; below 1 when the last one comes before the first
/// one. A text counts as the number it begins with, an empty one as 0.
std::wstring typed_range_total(std::wstring_view first, std::wstring_view last);

/// The range the typed numbers stand for; nothing unless both are typed, in order, and numbers of `count` games.
std::optional<GameRange> typed_range(std::wstring_view first, std::wstring_view last, int count);

/// What the user is told when there is no such range.
std::wstring typed_range_hint(int count);

}  // namespace quillomat

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

/// Returns the number of games in the typed range as decimal text; below 1 if the last number is less than the first. A
/// text counts as the number it begins with, an empty one as 0.
std::wstring typed_range_total(std::wstring_view first, std::wstring_view last);

/// Returns the typed range; nothing unless both numbers are typed, in order, and from 1 to `count`.
std::optional<GameRange> typed_range(std::wstring_view first, std::wstring_view last, int count);

/// The message for a range that is not valid.
std::wstring typed_range_hint(int count);

}  // namespace quillomat

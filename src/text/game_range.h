#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// A range of games, both ends included, numbered from 1.
struct GameRange {
    int first = 0;
    int last = 0;

    friend bool operator==(const GameRange&, const GameRange&) = default;
};

/// Returns the number of games in the typed range as decimal text; it is below 1 if the last number is less than the
/// first. The value of a text is the number at its beginning, or 0.
std::wstring typed_range_total(std::wstring_view first, std::wstring_view last);

/// Returns the typed range, or nothing unless both numbers are from 1 to `count` and in order.
std::optional<GameRange> typed_range(std::wstring_view first, std::wstring_view last, int count);

/// Returns the message for an invalid range.
std::wstring typed_range_hint(int count);

}  // namespace quillomat

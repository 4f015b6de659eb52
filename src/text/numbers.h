#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Parses a decimal number with an optional sign, an optional fraction and blanks around it. A fraction is rounded, a
/// half to the even neighbour. Returns nothing for any other text and for a number out of range.
std::optional<std::int16_t> to_int16(std::wstring_view text);
std::optional<std::int32_t> to_int32(std::wstring_view text);

/// Parses True or False in any case, with blanks around it. Returns nothing for any other text.
std::optional<bool> to_boolean(std::wstring_view text);

/// Returns True or False, which `to_boolean` reads back.
std::wstring boolean_text(bool value);

/// Returns a number in decimal, with a blank in place of the sign unless the number is negative.
std::wstring sign_position_text(int number);

/// Parses the integer that a text begins with, after blanks and an optional sign; 0 if there is none. The result is
/// limited to plus or minus `leading_value_limit`, so that two results can be subtracted without overflow.
std::int64_t leading_value(std::wstring_view text);
/// The largest value that `leading_value` returns.
inline constexpr std::int64_t leading_value_limit = 4'000'000'000'000'000'000;

/// Adds to a 16-bit integer. Throws `Error` with Overflow if the sum does not fit.
std::int16_t checked_add_16(std::int16_t value, int increase);

}  // namespace quillomat

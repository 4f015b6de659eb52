#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// The integer that a whole text stands for: decimal digits, optionally with a sign, a fraction after a point, which is
/// rounded half to even, and blanks around it all. Nothing for any other text and for a number out of range.
std::optional<std::int16_t> to_int16(std::wstring_view text);
std::optional<std::int32_t> to_int32(std::wstring_view text);

/// What the words True and False stand for, in any case and with blanks around them; nothing for any other text.
std::optional<bool> to_boolean(std::wstring_view text);

/// The word that `to_boolean` reads back.
std::wstring boolean_text(bool value);

/// The decimal text of a number behind its sign position, which is a blank for a number without a minus sign.
std::wstring sign_position_text(int number);

/// The value of the integer a text begins with, after blanks and an optional sign; 0 when it begins with none. Values
/// beyond plus or minus `leading_value_limit` come out as that limit, so that two of them can be subtracted safely.
std::int64_t leading_value(std::wstring_view text);
/// The largest value that `leading_value` gives.
inline constexpr std::int64_t leading_value_limit = 4'000'000'000'000'000'000;

/// The sum as a 16-bit integer. Throws `Error` with Overflow when it does not fit.
std::int16_t checked_add_16(std::int16_t value, int increase);

}  // namespace quillomat

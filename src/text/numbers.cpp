#include "text/numbers.h"

#include <algorithm>
#include <limits>

#include "text/blanks.h"
#include "text/error.h"
#include "text/letter_case.h"

namespace quillomat {
namespace {

bool is_digit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

// Removes the digits at the beginning of a text and returns them.
std::wstring_view take_digits(std::wstring_view& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), is_digit);
    const std::wstring_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

// Removes a sign at the beginning of a text. Returns true if it was a minus.
bool take_minus(std::wstring_view& text) {
    const bool minus = text.starts_with(L'-');
    if (minus || text.starts_with(L'+')) text.remove_prefix(1);
    return minus;
}

// Returns the value of the digits, or `limit` if the value is larger.
std::int64_t saturated_value(std::wstring_view digits, std::int64_t limit) {
    std::int64_t value = 0;
    for (const wchar_t digit : digits) {
        const int units = digit - L'0';
        if (value > (limit - units) / 10) return limit;
        value = value * 10 + units;
    }
    return value;
}

bool rounds_up(std::int64_t whole, std::wstring_view fraction) {
    if (fraction.empty() || fraction[0] != L'5') return !fraction.empty() && fraction[0] > L'5';
    const bool exactly_half = fraction.find_first_not_of(L'0', 1) == std::wstring_view::npos;
    return !exactly_half || whole % 2 != 0;
}

template <typename Integer>
std::optional<Integer> to_integer(std::wstring_view text) {
    // Larger than every Integer, also after rounding.
    constexpr std::int64_t far_out = std::int64_t{1} << 40;
    text = without_surrounding_blanks(text);
    const bool minus = take_minus(text);
    const std::wstring_view digits = take_digits(text);
    if (digits.empty()) return std::nullopt;
    std::int64_t value = saturated_value(digits, far_out);
    if (text.starts_with(L'.')) {
        text.remove_prefix(1);
        if (rounds_up(value, take_digits(text))) ++value;
    }
    if (!text.empty()) return std::nullopt;
    if (minus) value = -value;
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) return std::nullopt;
    return static_cast<Integer>(value);
}

}  // namespace

std::optional<std::int16_t> to_int16(std::wstring_view text) {
    return to_integer<std::int16_t>(text);
}

std::optional<std::int32_t> to_int32(std::wstring_view text) {
    return to_integer<std::int32_t>(text);
}

std::optional<bool> to_boolean(std::wstring_view text) {
    text = without_surrounding_blanks(text);
    if (equal_ignoring_ascii_case(text, L"True")) return true;
    if (equal_ignoring_ascii_case(text, L"False")) return false;
    return std::nullopt;
}

std::wstring boolean_text(bool value) {
    return value ? L"True" : L"False";
}

std::wstring sign_position_text(int number) {
    return (number < 0 ? L"" : L" ") + std::to_wstring(number);
}

std::int64_t leading_value(std::wstring_view text) {
    text = without_leading_blanks(text);
    const bool minus = take_minus(text);
    const std::int64_t value = saturated_value(take_digits(text), leading_value_limit);
    return minus ? -value : value;
}

std::int16_t checked_add_16(std::int16_t value, int increase) {
    const std::int64_t sum = std::int64_t{value} + increase;
    if (sum < std::numeric_limits<std::int16_t>::min() || sum > std::numeric_limits<std::int16_t>::max()) {
        throw Error(ErrorCode::Overflow);
    }
    return static_cast<std::int16_t>(sum);
}

}  // namespace quillomat

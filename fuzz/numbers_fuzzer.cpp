#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <optional>
#include <string>

#include "text/numbers.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

// The conversions of a text must agree with each other and with the C library's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillomat;
    const std::wstring text(data, data + size);
    const std::optional<std::int32_t> number = to_int32(text);
    const std::optional<std::int16_t> short_number = to_int16(text);
    if (number) {
        require(to_int32(std::to_wstring(*number)) == number);
        const long double exact = std::wcstold(text.c_str(), nullptr);
        require(std::fabs(exact - *number) <= 0.5L);
        require(short_number.has_value() == (*number >= -32768 && *number <= 32767));
    }
    require(!short_number || *short_number == number);

    const std::int64_t leading = leading_value(text);
    require(leading >= -leading_value_limit && leading <= leading_value_limit);
    // The C library skips every kind of white space, not only blanks.
    if (text.find_first_of(L"\t\n\v\f\r") == std::wstring::npos) {
        const std::int64_t expected = std::wcstoll(text.c_str(), nullptr, 10);
        require(leading == std::clamp(expected, -leading_value_limit, leading_value_limit));
    }

    if (const std::optional<bool> boolean = to_boolean(text)) require(to_boolean(boolean_text(*boolean)) == boolean);
    return 0;
}

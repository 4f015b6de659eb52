#include "win/upper_case.h"

#include <algorithm>

#include "win/api.h"

namespace quillomat {

void upper_case(wchar_t* characters, std::size_t length) {
    // CharUpperBuff takes a length of 32 bits.
    constexpr std::size_t most_at_once = 1U << 30;
    for (std::size_t done = 0; done < length; done += most_at_once) {
        CharUpperBuffW(characters + done, static_cast<DWORD>(std::min(length - done, most_at_once)));
    }
}

std::wstring upper_cased(std::wstring text) {
    upper_case(text.data(), text.size());
    return text;
}

}  // namespace quillomat

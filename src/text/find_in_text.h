#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "text/letter_case.h"

namespace quillomat {

/// The state of a search in a text. It outlives the find dialog.
struct FindState {
    std::wstring gFindString;     ///< the text to find
    std::int16_t gFindCase = 0;   ///< 0: ignore case; 1: match case
    bool gFindDirection = false;  ///< true: towards the end; false: towards the beginning
    std::size_t gCurPos = 0;      ///< where the caret was after the last step
    bool gFirstTime = false;      ///< gFindString has changed since the last step
};

/// Makes one step of a search from the caret. Returns the position of the match in characters, or nothing.
///
/// Forwards, the first match at or after the caret is found; backwards, the last match that begins at least two
/// characters before the caret. While the caret is still where the last step left it, both limits are one character
/// further towards the end, so that a step forwards skips the match just found. Matches may overlap.
std::optional<std::size_t> find_in_text(const FindState& state, std::wstring text, std::size_t caret,
                                        UpperCase upper_case);

}  // namespace quillomat

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "text/letter_case.h"

namespace quillomat {

/// What is looked for and where the search stands. It outlives the dialog that asks for it.
struct FindState {
    std::wstring gFindString;     ///< what to look for
    std::int16_t gFindCase = 0;   ///< 0: upper and lower case are the same; 1: they are not
    bool gFindDirection = false;  ///< true: towards the end; false: towards the beginning
    std::size_t gCurPos = 0;      ///< where the caret was after the last step
    bool gFirstTime = false;      ///< what to look for has changed since the last step
};

/// One step of a search from the caret: the position of the next place that holds what is looked for, or nothing.
///
/// Forwards that is the first one at or behind the caret, backwards the last one that begins at least two characters
/// before it. While the caret still sits where the last step left it, each reaches one character further on, so that
/// a step leaves the place just found; places may overlap.
std::optional<std::size_t> find_in_text(const FindState& state, std::wstring text, std::size_t caret,
                                        UpperCase upper_case);

}  // namespace quillomat

#pragma once

#include <cstdint>

#include "forms/form.h"

namespace quillomat {

/// The window state that a stored number stands for; a number of no state stands for the normal one.
WindowState window_state_of(std::int32_t stored);

/// A width or height in twips as the settings can hold it: of a larger one, as very large screens allow, the largest
/// they can.
std::int16_t stored_size(double twips);

}  // namespace quillomat

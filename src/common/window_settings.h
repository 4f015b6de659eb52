#pragma once

#include <cstdint>

#include "forms/form.h"

namespace quillomat {

/// The window state that a stored number stands for; the normal one for a number that stands for none.
WindowState window_state_of(std::int32_t stored);

/// A size in twips as the settings hold it: in whole twips, and the largest one they can for a window on a very large
/// screen.
std::int16_t stored_size(double twips);

}  // namespace quillomat

#pragma once

#include "text/window_size.h"

namespace quillomat {

class Form;

/// Enlarges the height of a window that is below its minimum size, or else the width. Returns true if the window has
/// been resized, so that `on_resize` has run for the new size. On a screen too small for the minimum, the window stays
/// as it is.
bool restore_minimum_size(Form& form, const WindowSize& minimum);

}  // namespace quillomat

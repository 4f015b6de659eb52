#pragma once

#include "text/window_size.h"

namespace quillomat {

class Form;

/// Enlarges a window that is below its minimum: its height, or else its width. Returns true if that has resized the
/// window; `on_resize` has then run for the new size. On a screen too small for the minimum, the window stays as it is.
bool restore_minimum_size(Form& form, const WindowSize& minimum);

}  // namespace quillomat

#pragma once

#include "text/window_size.h"

namespace quillomat {

class Form;

/// Gives a window that is below its minimum the least height, or else the least width. True when that has resized it:
/// its layout has then come with the new size. On a screen without the room for that, the window stays as it is.
bool restore_minimum_size(Form& form, const WindowSize& minimum);

}  // namespace quillomat

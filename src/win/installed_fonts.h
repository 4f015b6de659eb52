#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// Fonts that can be shown on the screen, by position: the first one is at 0.
struct ScreenFonts {
    int count = 0;
    /// The name of the font at a position; empty where there is none.
    std::function<std::wstring(int position)> name;
};

/// The fonts that are installed now, each once, in the system's order.
ScreenFonts installed_fonts();

}  // namespace quillomat

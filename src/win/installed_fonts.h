#pragma once

#include <functional>
#include <string>

namespace quillomat {

/// The fonts of the screen, numbered from 0.
struct ScreenFonts {
    int count = 0;
    /// Returns the name of the font at a position; empty if there is none.
    std::function<std::wstring(int position)> name;
};

/// Returns the fonts that are installed now, each once, in the order in which Windows reports them.
ScreenFonts installed_fonts();

}  // namespace quillomat

#pragma once

#include <map>
#include <string>
#include <utility>

#include "win/gdi.h"

namespace quillomat {

/// A font as a window asks for it: its size is in points and follows the window's resolution.
struct FontSpec {
    /// Tahoma in 8 points is what the sizes of the windows are drawn for.
    std::wstring name = L"Tahoma";
    double points = 8.25;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    // NOLINTNEXTLINE(modernize-use-nullptr): it means the zero in the comparison that the compiler makes.
    friend auto operator<=>(const FontSpec&, const FontSpec&) = default;
};

/// Makes each font once for each resolution and keeps it, so that changing a control's underline at every movement of
/// the pointer costs nothing. Of those that nobody holds it keeps some dozens, however many fonts the user tries.
class FontCache {
  public:
    /// The font for `dpi` dots per inch, to be held for as long as it is used. A name that no font has gives the
    /// system's nearest one.
    Font get(const FontSpec& spec, int dpi);

  private:
    void drop_unused();

    std::map<std::pair<FontSpec, int>, Font> fonts_;
};

/// The size of a text in pixels, its line breaks obeyed.
SIZE text_extent(HFONT font, const std::wstring& text);

}  // namespace quillomat

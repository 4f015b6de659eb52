#pragma once

#include <map>
#include <string>
#include <utility>

#include "win/gdi.h"

namespace quillomat {

/// The description of a font, independent of the resolution.
struct FontSpec {
    /// The windows are laid out for Tahoma at 8.25 points.
    std::wstring name = L"Tahoma";
    double points = 8.25;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm about the zero in the generated comparisons.
    friend auto operator<=>(const FontSpec&, const FontSpec&) = default;
};

/// A font cache. Underlining a control at every mouse move creates no font, and however many fonts the user tries, only
/// some dozens of unused ones are kept.
class FontCache {
  public:
    /// Returns the font for a resolution of `dpi` dots per inch. The caller keeps the result for as long as it uses the
    /// font. If no font has the name, Windows chooses a similar one.
    Font get(const FontSpec& spec, int dpi);

  private:
    void drop_unused();

    std::map<std::pair<FontSpec, int>, Font> fonts_;
};

/// Returns the size of a text in pixels. A text with line breaks is measured as several lines.
SIZE text_extent(HFONT font, const std::wstring& text);

}  // namespace quillomat

#include "win/font.h"

#include <algorithm>
#include <cmath>

namespace quillomat {
namespace {

Font make_font(const FontSpec& spec, int dpi) {
    LOGFONTW description{};
    description.lfHeight = -static_cast<LONG>(std::lrint(spec.points * dpi / 72));
    description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = spec.italic;
    description.lfUnderline = spec.underline;
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfQuality = DEFAULT_QUALITY;
    const auto length = std::min(spec.name.size(), std::size(description.lfFaceName) - 1);
    std::copy_n(spec.name.begin(), length, description.lfFaceName);
    const HFONT made = CreateFontIndirectW(&description);
    // Wine: only ten fonts that are not selected anywhere stay loaded; the title of the about box goes through more.
    const HDC holder = CreateCompatibleDC(nullptr);
    SelectObject(holder, made);
    return {made, [holder](HFONT font) {
                DeleteDC(holder);
                if (font) DeleteObject(font);
            }};
}

}  // namespace

Font FontCache::get(const FontSpec& spec, int dpi) {
    Font& kept = fonts_[{spec, dpi}];
    if (kept) return kept;
    kept = make_font(spec, dpi);
    // As a second owner, the result keeps `drop_unused` from dropping the new font.
    Font made = kept;
    drop_unused();
    return made;
}

void FontCache::drop_unused() {
    // More than all windows and their animations use together.
    constexpr std::size_t plenty = 64;
    if (fonts_.size() <= plenty) return;
    std::erase_if(fonts_, [](const auto& entry) { return entry.second.use_count() == 1; });
}

SIZE text_extent(HFONT font, const std::wstring& text) {
    const WindowCanvas screen(nullptr);
    const Selection selected(screen.get(), font);
    RECT area{};
    DrawTextW(screen.get(), text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | DT_NOPREFIX);
    return {area.right, area.bottom};
}

}  // namespace quillomat

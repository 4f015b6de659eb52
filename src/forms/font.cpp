#include "forms/font.h"

#include <algorithm>
#include <cmath>

namespace quillomat {

HFONT FontCache::get(const FontSpec& spec, int dpi) {
    auto& font = fonts_[{spec, dpi}];
    if (!font) {
        LOGFONTW description{};
        description.lfHeight = -static_cast<LONG>(std::lrint(spec.points * dpi / 72));
        description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
        description.lfItalic = spec.italic;
        description.lfUnderline = spec.underline;
        description.lfCharSet = DEFAULT_CHARSET;
        description.lfQuality = CLEARTYPE_QUALITY;
        const auto length = std::min(spec.name.size(), std::size(description.lfFaceName) - 1);
        std::copy_n(spec.name.begin(), length, description.lfFaceName);
        font = GdiObject<HFONT>(CreateFontIndirectW(&description));
    }
    return font.get();
}

SIZE text_extent(HFONT font, const std::wstring& text) {
    const WindowCanvas screen(nullptr);
    const Selection selected(screen.get(), font);
    RECT area{};
    DrawTextW(screen.get(), text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | DT_NOPREFIX);
    return {area.right, area.bottom};
}

}  // namespace quillomat

#include "win/installed_fonts.h"

#include <exception>
#include <unordered_set>
#include <utility>
#include <vector>

#include "win/gdi.h"

namespace quillomat {
namespace {

struct FoundFonts {
    std::vector<std::wstring> names;
    std::unordered_set<std::wstring> known;
    std::exception_ptr failure;
};

// Windows reports a font once for each script it supports.
int CALLBACK add_font(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM parameter) {
    auto& found = *reinterpret_cast<FoundFonts*>(parameter);
    try {
        const std::wstring name = font->lfFaceName;
        // A font whose name begins with "@" is another font turned for vertical writing.
        if (!name.empty() && name.front() != L'@' && found.known.insert(name).second) found.names.push_back(name);
        return 1;
    } catch (...) {
        // An exception must not propagate into Windows, which calls this function.
        found.failure = std::current_exception();
        return 0;
    }
}

}  // namespace

ScreenFonts installed_fonts() {
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    FoundFonts found;
    const WindowCanvas screen(nullptr);
    EnumFontFamiliesExW(screen.get(), &any, add_font, reinterpret_cast<LPARAM>(&found), 0);
    if (found.failure) std::rethrow_exception(found.failure);
    const int count = static_cast<int>(found.names.size());
    return {count, [names = std::move(found.names)](int position) {
                const auto index = static_cast<std::size_t>(position);
                return index < names.size() ? names[index] : std::wstring();
            }};
}

}  // namespace quillomat

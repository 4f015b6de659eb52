#include "win/theme.h"

#include "win/system_function.h"

namespace quillomat {

Theme::Theme(HWND window, const wchar_t* parts, int dpi) {
    // Looked up by name, because the import library of mingw-w64 lacks the function.
    static const auto open = system_function<decltype(OpenThemeDataForDpi)>(L"uxtheme.dll", "OpenThemeDataForDpi");
    if (open) {
        handle_ = open(window, parts, static_cast<UINT>(dpi));
    } else {
        handle_ = OpenThemeData(window, parts);
    }
}

}  // namespace quillomat

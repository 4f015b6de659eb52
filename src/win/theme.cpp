#include "win/theme.h"

#include "win/system_function.h"

namespace quillomat {

Theme::Theme(HWND window, const wchar_t* class_name, int dpi) {
    // Looked up by name, because Windows 10 before version 1703 lacks the function, as does the import library of
    // mingw-w64 10.
    static const auto open = system_function<decltype(OpenThemeDataForDpi)>(L"uxtheme.dll", "OpenThemeDataForDpi");
    if (open) {
        handle_ = open(window, class_name, static_cast<UINT>(dpi));
    } else {
        handle_ = OpenThemeData(window, class_name);
    }
}

}  // namespace quillomat

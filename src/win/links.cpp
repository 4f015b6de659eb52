#include "win/links.h"

#include "win/com_apartment.h"
// Needs <windows.h> before it.
#include <shellapi.h>

namespace quillomat {

bool open_link(const std::wstring& address) {
    const ComApartment apartment;
    const auto result =
        reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, nullptr, address.c_str(), nullptr, L"C:\\", SW_SHOWNORMAL));
    constexpr INT_PTR last_error = 32;
    return result > last_error;
}

}  // namespace quillomat

#include "win/registry.h"

#include "win/errors.h"
#include "win/handle.h"

namespace quillomat {

std::optional<std::wstring> read_user_text(const std::wstring& key, const std::wstring& name) {
    RegistryKey opened;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_QUERY_VALUE, opened.receive()) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::wstring text(128, L'\0');
    for (;;) {
        DWORD type = REG_NONE;
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status =
            RegQueryValueExW(opened.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
        if (status == ERROR_MORE_DATA) {
            text.resize(size / sizeof(wchar_t) + 1);
            continue;
        }
        if (status != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
        // Another program may have stored a text without a NUL at its end, with several, or with half a character.
        text.resize(size / sizeof(wchar_t));
        return text.substr(0, text.find(L'\0'));
    }
}

void write_user_text(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    RegistryKey opened;
    LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                                     opened.receive(), nullptr);
    if (status == ERROR_SUCCESS) {
        status = RegSetValueExW(opened.get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                                static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
    if (status != ERROR_SUCCESS) throw error_from_code(static_cast<DWORD>(status));
}

}  // namespace quillomat

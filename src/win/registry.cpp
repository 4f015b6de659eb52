#include "win/registry.h"

#include "win/errors.h"
#include "win/handle.h"

namespace quillomat {

std::optional<std::wstring> read_user_text(const std::wstring& key, const std::wstring& name) {
    for (;;) {
        DWORD bytes = 0;
        if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &bytes) !=
            ERROR_SUCCESS) {
            return std::nullopt;
        }
        std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
        bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status =
            RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
        // Another program has stored a longer text in between.
        if (status == ERROR_MORE_DATA) continue;
        if (status != ERROR_SUCCESS) return std::nullopt;
        text.resize(bytes / sizeof(wchar_t));
        text.resize(text.find(L'\0') == std::wstring::npos ? text.size() : text.find(L'\0'));
        return text;
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

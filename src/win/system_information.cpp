#include "win/system_information.h"

#include <cstdint>
#include <cstring>

#include "win/com_apartment.h"
#include "win/handle.h"
#include "win/text_file.h"
// Needs <windows.h> before it.
#include <shellapi.h>

namespace quillomat {
namespace {

std::wstring hexadecimal(std::uint32_t number) {
    std::wstring digits;
    for (int shift = 28; shift >= 0; shift -= 4) digits += L"0123456789ABCDEF"[number >> shift & 0xF];
    return digits;
}

// Returns a text with its environment variables replaced by their values.
std::wstring expanded(const std::wstring& text) {
    std::wstring result(ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
    const DWORD length = ExpandEnvironmentStringsW(text.c_str(), result.data(), static_cast<DWORD>(result.size()));
    if (length == 0 || length > result.size()) return text;
    result.resize(length - 1);
    return result;
}

}  // namespace

std::optional<std::wstring> GetKeyValue(HKEY root, const std::wstring& key, const std::wstring& name) {
    RegistryKey opened;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_QUERY_VALUE, opened.receive()) != ERROR_SUCCESS) return std::nullopt;
    wchar_t buffer[1024];
    DWORD type = REG_NONE;
    DWORD bytes = sizeof buffer;
    const LSTATUS status =
        RegQueryValueExW(opened.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer), &bytes);
    if (status != ERROR_SUCCESS) return std::nullopt;
    if (type == REG_DWORD && bytes == sizeof(std::uint32_t)) {
        std::uint32_t number = 0;
        std::memcpy(&number, buffer, sizeof number);
        return L"&h" + hexadecimal(number);
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ) return std::nullopt;
    // The stored text need not end with a NUL.
    const std::wstring stored(buffer, bytes / sizeof(wchar_t));
    const std::wstring text = stored.substr(0, stored.find(L'\0'));
    return type == REG_EXPAND_SZ ? expanded(text) : text;
}

std::optional<std::wstring> system_information_tool() {
    if (auto path = GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", L"PATH")) return path;
    const auto folder = GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools Location", L"MSINFO");
    if (!folder) return std::nullopt;
    std::wstring path = *folder + L"\\MSINFO32.EXE";
    if (!file_exists(path)) return std::nullopt;
    return path;
}

bool start_program(const std::wstring& path) {
    const ComApartment apartment;
    SHELLEXECUTEINFOW request{};
    request.cbSize = sizeof request;
    // The caller reports a failure.
    request.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    request.lpFile = path.c_str();
    request.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&request) != FALSE;
}

}  // namespace quillomat

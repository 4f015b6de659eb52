#include "common/settings.h"

#include <optional>
#include <utility>

#include "text/numbers.h"
#include "win/registry.h"

namespace quillomat {
namespace {

std::wstring key_path(std::wstring_view application, std::wstring_view section) {
    return std::wstring(L"Software\\").append(application).append(L"\\").append(section);
}

}  // namespace

std::wstring GetSetting(std::wstring_view application, std::wstring_view section, const std::wstring& key,
                        std::wstring_view fallback) {
    std::optional<std::wstring> text = read_user_text(key_path(application, section), key);
    if (!text) return std::wstring(fallback);
    return *std::move(text);
}

void SaveSetting(std::wstring_view application, std::wstring_view section, const std::wstring& key,
                 const std::wstring& text) {
    write_user_text(key_path(application, section), key, text);
}

std::wstring Settings::stored_text(const wchar_t* key, std::wstring_view fallback) const {
    return GetSetting(application_, section_, key, fallback);
}

void Settings::store_text(const wchar_t* key, const std::wstring& text) const {
    SaveSetting(application_, section_, key, text);
}

// A missing value is read as an empty text, which is no number and no truth value.

std::int16_t Settings::read(const SettingKey<std::int16_t>& setting, std::int16_t fallback) const {
    return to_int16(stored_text(setting.key, {})).value_or(fallback);
}

std::int32_t Settings::read(const SettingKey<std::int32_t>& setting, std::int32_t fallback) const {
    return to_int32(stored_text(setting.key, {})).value_or(fallback);
}

bool Settings::read(const SettingKey<bool>& setting, bool fallback) const {
    return to_boolean(stored_text(setting.key, {})).value_or(fallback);
}

std::wstring Settings::read(const SettingKey<std::wstring_view>& setting, std::wstring_view fallback) const {
    return stored_text(setting.key, fallback);
}

void Settings::write(const SettingKey<std::int16_t>& setting, std::int16_t value) const {
    store_text(setting.key, std::to_wstring(value));
}

void Settings::write(const SettingKey<std::int32_t>& setting, std::int32_t value) const {
    store_text(setting.key, std::to_wstring(value));
}

void Settings::write(const SettingKey<bool>& setting, bool value) const {
    store_text(setting.key, boolean_text(value));
}

void Settings::write(const SettingKey<std::wstring_view>& setting, std::wstring_view value) const {
    store_text(setting.key, std::wstring(value));
}

}  // namespace quillomat

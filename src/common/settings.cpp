#include "common/settings.h"

#include "text/numbers.h"
#include "win/registry.h"

namespace quillomat {

Settings::Settings(std::wstring_view application, std::wstring_view section) : place_(L"Software\\") {
    place_.append(application).append(L"\\").append(section);
}

std::wstring Settings::GetSetting(const wchar_t* key, std::wstring_view fallback) const {
    return read_user_text(place_, key).value_or(std::wstring(fallback));
}

void Settings::SaveSetting(const wchar_t* key, std::wstring_view text) const {
    write_user_text(place_, key, std::wstring(text));
}

std::int16_t Settings::read(const Setting<std::int16_t>& setting) const {
    return to_int16(GetSetting(setting.key, {})).value_or(setting.fallback);
}

std::int32_t Settings::read(const Setting<std::int32_t>& setting) const {
    return to_int32(GetSetting(setting.key, {})).value_or(setting.fallback);
}

bool Settings::read(const Setting<bool>& setting) const {
    return to_boolean(GetSetting(setting.key, {})).value_or(setting.fallback);
}

std::wstring Settings::read(const Setting<std::wstring_view>& setting) const {
    return GetSetting(setting.key, setting.fallback);
}

void Settings::write(const Setting<std::int16_t>& setting, std::int16_t value) const {
    SaveSetting(setting.key, std::to_wstring(value));
}

void Settings::write(const Setting<std::int32_t>& setting, std::int32_t value) const {
    SaveSetting(setting.key, std::to_wstring(value));
}

void Settings::write(const Setting<bool>& setting, bool value) const {
    SaveSetting(setting.key, boolean_text(value));
}

void Settings::write(const Setting<std::wstring_view>& setting, std::wstring_view value) const {
    SaveSetting(setting.key, value);
}

}  // namespace quillomat

// What stands in the registry, put there by the program or by others.

#include "common/settings.h"

#include <gtest/gtest.h>

#include <string>

#include "registry_support.h"

namespace quillomat {
namespace {

struct SettingsStore : testing::Test {
    std::wstring raw(const wchar_t* key) const {
        return GetSetting(registry_.application(), L"Settings", key, L"none");
    }

    const TemporarySettings registry_;
    const Settings settings_ = registry_.settings();
};

TEST_F(SettingsStore, ValuesComeBackAsTheyWereUnderTheAgreedNames) {
    settings_.write(settings::MailFriendsName, L"Ann");
    settings_.write(settings::MailOption, true);
    settings_.write(settings::frmMailMeHeight, -9000);
    EXPECT_EQ(raw(L"Mail-Friend'sName") + raw(L"mail-option") + raw(L"frmMailMeHeight"), L"AnnTrue-9000");
    EXPECT_EQ(settings_.read(settings::frmMailMeHeght), 6045) << "never the one that was written";
    EXPECT_EQ(settings_.read(settings::UpperLimit, 42), 42);
    settings_.write(settings::MailMessage, L"");
    EXPECT_EQ(settings_.read(settings::MailMessage), L"") << "stored and empty is another thing than not stored";
    const std::wstring long_text = std::wstring(100'000, L'\u00E9') + L"\U0001F600\r\n";
    settings_.write(settings::Text1, long_text);
    EXPECT_TRUE(settings_.read(settings::Text1) == long_text);
}

TEST_F(SettingsStore, WhatAnotherProgramStoredIsSafe) {
    SaveSetting(registry_.application(), L"Settings", L"Value", L"32768");
    EXPECT_EQ(settings_.read(SettingKey<std::int16_t>{L"Value"}, 77), 77);
    EXPECT_TRUE(settings_.read(SettingKey<bool>{L"Value"}, true));
    const std::tuple<DWORD, const wchar_t*, DWORD, const wchar_t*> cases[] = {
        {REG_DWORD, L"Arial", 4, L"MS Sans Serif"},
        {REG_SZ, L"Arial", 10, L"Arial"},  // without a zero at its end
        {REG_SZ, L"Arial", 9, L"Aria"},    // half a character
        {REG_SZ, L"Arial\0Black", 24, L"Arial"}};
    const std::wstring key = L"Software\\" + registry_.application() + L"\\Settings";
    for (const auto& [type, text, size, read] : cases) {
        RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Font", type, text, size);
        EXPECT_EQ(settings_.read(settings::Font), read) << size;
    }
}

}  // namespace
}  // namespace quillomat

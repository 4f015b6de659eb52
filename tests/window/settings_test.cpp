#include "common/settings.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "text/error.h"
#include "win/handle.h"

namespace quillomat {
namespace {

constexpr wchar_t application[] = L"Quillomat settings test";
constexpr wchar_t key_path[] = L"Software\\Quillomat settings test";

/// Settings of an application of the test's own, gone afterwards.
class SettingsStore : public testing::Test {
  protected:
    SettingsStore() { RegDeleteTreeW(HKEY_CURRENT_USER, key_path); }
    ~SettingsStore() override { RegDeleteTreeW(HKEY_CURRENT_USER, key_path); }

    /// Stores bytes as any other program could.
    static void store(const wchar_t* key, DWORD type, const void* bytes, std::size_t size) {
        RegistryKey opened;
        ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, (std::wstring(key_path) + L"\\Settings").c_str(), opened.receive()),
                  ERROR_SUCCESS);
        ASSERT_EQ(RegSetValueExW(opened.get(), key, 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(size)),
                  ERROR_SUCCESS);
    }

    const Settings settings_{application};
};

TEST_F(SettingsStore, AnEmptyStoreAnswersWithTheFallbacks) {
    EXPECT_EQ(settings_.read(settings::Counter), 0);
    EXPECT_TRUE(settings_.read(settings::Colour));
    EXPECT_EQ(settings_.read(settings::FrmCtlViewCaption), L"Cheat Codes");
    EXPECT_EQ(settings_.read(settings::UpperLimit, 42), 42);
}

TEST_F(SettingsStore, ValuesComeBackAsTheyWere) {
    for (const std::int16_t value :
         {std::numeric_limits<std::int16_t>::min(), std::int16_t{-1}, std::numeric_limits<std::int16_t>::max()}) {
        settings_.write(settings::Counter, value);
        EXPECT_EQ(settings_.read(settings::Counter), value);
    }
    settings_.write(settings::FrmCtlViewWindowState, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(settings_.read(settings::FrmCtlViewWindowState), std::numeric_limits<std::int32_t>::min());
    settings_.write(settings::Colour, false);
    EXPECT_FALSE(settings_.read(settings::Colour));
    settings_.write(settings::UpperLimit, 7);
    EXPECT_EQ(settings_.read(settings::UpperLimit, 42), 7);

    // Stored and empty is another thing than not stored.
    settings_.write(settings::MailMessage, L"");
    EXPECT_EQ(settings_.read(settings::MailMessage), L"");
    std::wstring long_text = L"Pok\u00E9mon \U0001F600\r\n";
    while (long_text.size() < 1'000'000) long_text += long_text;
    settings_.write(settings::Text1, long_text);
    EXPECT_TRUE(settings_.read(settings::Text1) == long_text);
}

TEST_F(SettingsStore, OtherProgramsSeeTheAgreedNamesAndTexts) {
    settings_.write(settings::MailFriendsName, L"Ann");
    settings_.write(settings::MailOption, true);
    settings_.write(settings::frmMailMeHeight, 9000);
    EXPECT_EQ(GetSetting(application, L"Settings", L"Mail-Friend'sName", L"none"), L"Ann");
    EXPECT_EQ(GetSetting(application, L"Settings", L"mail-option", L"none"), L"True");
    EXPECT_EQ(GetSetting(application, L"Settings", L"frmMailMeHeight", L"none"), L"9000");
    EXPECT_EQ(GetSetting(application, L"Other", L"frmMailMeHeight", L"none"), L"none");
    // The height that is read is never the one that was written.
    EXPECT_EQ(settings_.read(settings::frmMailMeHeght), 6045);
}

TEST_F(SettingsStore, TextsThatStandForNoValueCountAsAbsent) {
    const struct {
        const wchar_t* text;
        std::int16_t as_16_bits;
        std::int32_t as_32_bits;
        bool as_word;
    } cases[] = {
        {L"32767", 32767, 32767, true},
        {L"32768", 77, 32768, true},
        {L"-32769", 77, -32769, true},
        {L"2147483648", 77, 88, true},
        {L"99999999999999999999", 77, 88, true},
        {L"", 77, 88, true},
        {L"12 px", 77, 88, true},
        {L"false", 77, 88, false},
        {L"True", 77, 88, true},
        {L"no", 77, 88, true},
    };
    for (const auto& [text, as_16_bits, as_32_bits, as_word] : cases) {
        SaveSetting(application, L"Settings", L"Value", text);
        EXPECT_EQ(settings_.read(SettingKey<std::int16_t>{L"Value"}, 77), as_16_bits) << testing::PrintToString(text);
        EXPECT_EQ(settings_.read(SettingKey<std::int32_t>{L"Value"}, 88), as_32_bits) << testing::PrintToString(text);
        EXPECT_EQ(settings_.read(SettingKey<bool>{L"Value"}, true), as_word) << testing::PrintToString(text);
    }
}

TEST_F(SettingsStore, BytesThatAreNoTextAreSafe) {
    const DWORD number = 5;
    store(L"Counter", REG_DWORD, &number, sizeof number);
    EXPECT_EQ(settings_.read(settings::Counter), 0);
    store(L"Font", REG_BINARY, L"Arial", 12);
    EXPECT_EQ(settings_.read(settings::Font), L"MS Sans Serif");
    store(L"Font", REG_EXPAND_SZ, L"%TEMP%", 14);
    EXPECT_EQ(settings_.read(settings::Font), L"MS Sans Serif");

    const struct {
        std::wstring text;
        std::size_t size;
        const wchar_t* read;
    } cases[] = {
        {L"Arial", 10, L"Arial"},  // without a zero at its end
        {L"Arial", 9, L"Aria"},    // half a character
        {L"Arial", 1, L""},
        {L"Arial", 0, L""},
        {std::wstring(L"Arial\0Black\0\0", 13), 26, L"Arial"},
        {std::wstring(5000, L'x'), 9999, nullptr},
    };
    for (const auto& [text, size, read] : cases) {
        store(L"Font", REG_SZ, text.data(), size);
        const std::wstring expected = read ? read : std::wstring(size / 2, L'x');
        EXPECT_EQ(settings_.read(settings::Font), expected) << size;
    }
}

TEST_F(SettingsStore, AStoreThatCannotBeWrittenSaysSoAndStillAnswers) {
    const Settings impossible(std::wstring(300, L'x'));
    EXPECT_THROW(impossible.write(settings::Counter, 1), Error);
    EXPECT_EQ(impossible.read(settings::Counter), 0);
}

}  // namespace
}  // namespace quillomat

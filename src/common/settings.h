#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/product.h"

namespace quillomat {

/// The key and the type of a setting.
template <class Value>
struct SettingKey {
    const wchar_t* key;
};

/// A setting with a default, used until the user's own value has been stored.
template <class Value>
struct Setting : SettingKey<Value> {
    Value fallback;
};

/// All settings of the program. The spellings are part of the stored format.
namespace settings {

inline constexpr Setting<std::int16_t> Counter{L"Counter", 0};
/// Stored for other programs; Quillomat never reads it.
inline constexpr SettingKey<std::wstring_view> Directory{L"Directory"};

inline constexpr Setting<std::wstring_view> Font{L"Font", L"MS Sans Serif"};
inline constexpr Setting<bool> Colour{L"Colour", true};
inline constexpr Setting<bool> AutoSelect{L"AutoSelect", false};
inline constexpr Setting<std::int32_t> FrmCtlViewWindowState{L"FrmCtlViewWindowState", 0};
inline constexpr Setting<std::wstring_view> Text1{
    L"Text1", L"(Click a game on the opposite side to see it's cheat codes in this box.)"};
inline constexpr Setting<std::wstring_view> SearchText{L"SearchText", L""};
inline constexpr Setting<std::wstring_view> DefaultGame{L"DefaultGame", L""};
inline constexpr Setting<std::wstring_view> FrmCtlViewCaption{L"FrmCtlViewCaption", L"Cheat Codes"};
inline constexpr Setting<std::int16_t> FrmCtlViewHeight{L"FrmCtlViewHeight", 6660};
inline constexpr Setting<std::int16_t> FrmCtlViewWidth{L"FrmCtlViewWidth", 8925};

/// Its default depends on the number of games, which only the print window knows.
inline constexpr SettingKey<std::int16_t> UpperLimit{L"UpperLimit"};
inline constexpr Setting<std::wstring_view> LowerLimit{L"LowerLimit", L"1"};

inline constexpr Setting<std::int32_t> frmAddNewWindowState{L"frmAddNewWindowState", 0};
inline constexpr Setting<std::int16_t> frmAddNewHeight{L"frmAddNewHeight", 4320};
inline constexpr Setting<std::int16_t> frmAddNewWidth{L"frmAddNewWidth", 5535};

/// The window for a message to the author reads its height from another key than it writes it to, and therefore always
/// opens at its designed height.
inline constexpr Setting<std::int32_t> frmMailMeWindowState{L"frmMailMeWindowState", 0};
inline constexpr Setting<std::int16_t> frmMailMeHeght{L"frmMailMeHeght", 6045};
inline constexpr SettingKey<std::int16_t> frmMailMeHeight{L"frmMailMeHeight"};
inline constexpr Setting<std::int16_t> frmMailMeWidth{L"frmMailMeWidth", 7125};

inline constexpr Setting<bool> MailOption{L"Mail-Option", true};
inline constexpr Setting<std::wstring_view> MailYourName{L"Mail-YourName", L""};
inline constexpr Setting<std::wstring_view> MailFriendsName{L"Mail-Friend'sName", L""};
inline constexpr Setting<std::wstring_view> MailMessage{
    L"Mail-Message",
    L"Hi [FRIEND'S NAME] !\r\n"
    L"\r\n"
    L"I found a great new program called Quillomat. It has thecheat codes for a whole lot of games (over 2000 to be "
    L"precise).I have included the cheat codes for some of them in this message. Enjoy!\r\n"
    L"\r\n"
    L"[YOUR NAME]"};
inline constexpr Setting<std::wstring_view> MailFriendsEmail{L"Mail-Friend'sEmail", L""};

}  // namespace settings

/// Returns the text that is stored for the user under an application's name, a section and a key, or `fallback` if
/// there is none.
std::wstring GetSetting(std::wstring_view application, std::wstring_view section, const std::wstring& key,
                        std::wstring_view fallback);
/// Stores a text for the user, replacing the previous one. Throws `Error` if Windows refuses.
void SaveSetting(std::wstring_view application, std::wstring_view section, const std::wstring& key,
                 const std::wstring& text);

/// The user's settings. Each is stored as a text in the registry.
class Settings {
  public:
    explicit Settings(std::wstring_view application = product::title, std::wstring_view section = L"Settings")
        : application_(application), section_(section) {}

    /// Returns the stored value, or the fallback if there is none or it is not of this type.
    std::int16_t read(const SettingKey<std::int16_t>& setting, std::int16_t fallback) const;
    std::int32_t read(const SettingKey<std::int32_t>& setting, std::int32_t fallback) const;
    bool read(const SettingKey<bool>& setting, bool fallback) const;
    std::wstring read(const SettingKey<std::wstring_view>& setting, std::wstring_view fallback) const;
    template <class Value>
    auto read(const Setting<Value>& setting) const {
        return read(setting, setting.fallback);
    }

    /// Stores a value, replacing the previous one. Throws `Error` if Windows refuses.
    void write(const SettingKey<std::int16_t>& setting, std::int16_t value) const;
    void write(const SettingKey<std::int32_t>& setting, std::int32_t value) const;
    void write(const SettingKey<bool>& setting, bool value) const;
    void write(const SettingKey<std::wstring_view>& setting, std::wstring_view value) const;

  private:
    std::wstring stored_text(const wchar_t* key, std::wstring_view fallback) const;
    void store_text(const wchar_t* key, const std::wstring& text) const;

    std::wstring application_;
    std::wstring section_;
};

}  // namespace quillomat

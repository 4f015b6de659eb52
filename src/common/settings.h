#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillomat {

/// A remembered value: its key, its type, and what stands for it until it was first stored.
template <class Value>
struct Setting {
    const wchar_t* key;
    Value fallback;
};

/// Every value the program remembers. Spellings are part of the stored format: the height of the message to the author
/// is read under another key than it is written to, and two keys carry an apostrophe.
namespace settings {

inline constexpr Setting<std::int16_t> Counter{L"Counter", 0};
inline constexpr Setting<std::wstring_view> Directory{L"Directory", L""};

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

/// Without a stored value, the print list takes one more than there are games.
inline constexpr Setting<std::int16_t> UpperLimit{L"UpperLimit", 0};
inline constexpr Setting<std::wstring_view> LowerLimit{L"LowerLimit", L"1"};

inline constexpr Setting<std::int32_t> frmAddNewWindowState{L"frmAddNewWindowState", 0};
inline constexpr Setting<std::int16_t> frmAddNewHeight{L"frmAddNewHeight", 4320};
inline constexpr Setting<std::int16_t> frmAddNewWidth{L"frmAddNewWidth", 5535};

inline constexpr Setting<std::int32_t> frmMailMeWindowState{L"frmMailMeWindowState", 0};
inline constexpr Setting<std::int16_t> frmMailMeHeght{L"frmMailMeHeght", 6045};
inline constexpr Setting<std::int16_t> frmMailMeHeight{L"frmMailMeHeight", 6045};
inline constexpr Setting<std::int16_t> frmMailMeWidth{L"frmMailMeWidth", 7125};

inline constexpr Setting<bool> MailOption{L"Mail-Option", true};
inline constexpr Setting<std::wstring_view> MailYourName{L"Mail-YourName", L""};
inline constexpr Setting<std::wstring_view> MailFriendsName{L"Mail-Friend'sName", L""};
inline constexpr Setting<std::wstring_view> MailMessage{
    L"Mail-Message",
    L"Hi [FRIEND'S NAME] !\r\n\r\nI found a great new program called Quillomat. It has thecheat codes for a whole lot "
    L"of "
    L"games (over 2000 to be precise).I have included the cheat codes for some of them in this message. Enjoy!\r\n\r\n"
    L"[YOUR NAME]"};
inline constexpr Setting<std::wstring_view> MailFriendsEmail{L"Mail-Friend'sEmail", L""};

}  // namespace settings

/// The user's remembered values, each stored as a text under the program's name.
class Settings {
  public:
    explicit Settings(std::wstring_view application = L"Quillomat", std::wstring_view section = L"Settings");

    /// The stored value; the fallback when there is none or its text does not stand for a value of this type.
    std::int16_t read(const Setting<std::int16_t>& setting) const;
    std::int32_t read(const Setting<std::int32_t>& setting) const;
    bool read(const Setting<bool>& setting) const;
    std::wstring read(const Setting<std::wstring_view>& setting) const;

    /// Stores a value over any older one. Throws `Error` when the system refuses.
    void write(const Setting<std::int16_t>& setting, std::int16_t value) const;
    void write(const Setting<std::int32_t>& setting, std::int32_t value) const;
    void write(const Setting<bool>& setting, bool value) const;
    void write(const Setting<std::wstring_view>& setting, std::wstring_view value) const;

  private:
    std::wstring GetSetting(const wchar_t* key, std::wstring_view fallback) const;
    void SaveSetting(const wchar_t* key, std::wstring_view text) const;

    std::wstring place_;
};

}  // namespace quillomat

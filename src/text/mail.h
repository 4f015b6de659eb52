#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The message that is shown when a window for sending mail opens.
inline constexpr wchar_t mail_requirements[] =
    L"To send messages from Quillomat, you need an e-mail client such as Outlook Express, MS Outlook, Netscape, "
    L"Eudora, etc. You also need to have a POP3 e-mail account on one of these clients. You cannot send e-mail from "
    L"Quillomat if you use Hotmail or any other web based e-mail.";

/// A game whose cheats go into a mail.
struct MailedGame {
    std::wstring_view name;
    std::wstring_view cheats;
};

/// Returns the cheats of several games, each below its name in a frame of asterisks.
std::wstring mailed_cheats(const std::vector<MailedGame>& games);

/// Returns the subject of a mail with cheats. `sender` and `recipient` are names.
std::wstring cheats_mail_subject(std::wstring_view sender, std::wstring_view recipient);
/// Returns the text of a mail whose cheats are attached: the message and the footer.
std::wstring cheats_mail_body(std::wstring_view message);
/// Returns the text of a mail that contains the cheats.
std::wstring cheats_mail_body(std::wstring_view message, std::wstring_view cheats);
/// Returns the caption of the window that mails cheats.
std::wstring cheats_mail_caption(std::wstring_view recipient);

/// Returns the length of the whole placeholder if `selected` is the part of it that a double-click selects, or nothing
/// for any other text.
std::optional<int> placeholder_length(std::wstring_view selected);

/// The subjects offered for a message to the author.
inline constexpr const wchar_t* canned_subjects[] = {
    L"Hi, How's life?",          L"Hi Tob, how're you doing?",
    L"Hey, Quillomat is great!", L"Quillomat is the greatest thing under the sun!",
    L"Quillomat sucks!",         L"Is this the best you got?",
};

/// Returns the subject of the mail for a message to the author.
std::wstring author_mail_subject(std::wstring_view subject);

}  // namespace quillomat

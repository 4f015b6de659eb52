#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The message with which the windows that send mails open.
inline constexpr wchar_t mail_requirements[] =
    L"To send messages from Quillomat, you need an e-mail client such as Outlook Express, MS Outlook, Netscape, "
    L"Eudora, etc. You also need to have a POP3 e-mail account on one of these clients. You cannot send e-mail from "
    L"Quillomat if you use Hotmail or any other web based e-mail.";

/// A game whose cheats go into a mail.
struct MailedGame {
    std::wstring_view name;
    std::wstring_view cheats;
};

/// The cheats of several games, each below its name in a frame of asterisks.
std::wstring mailed_cheats(const std::vector<MailedGame>& games);

/// The subject of a mail with cheats, from the names of sender and recipient.
std::wstring cheats_mail_subject(std::wstring_view sender, std::wstring_view recipient);
/// The text of a mail whose cheats are in an attachment: the message and the footer.
std::wstring cheats_mail_body(std::wstring_view message);
/// The text of a mail that holds the cheats itself.
std::wstring cheats_mail_body(std::wstring_view message, std::wstring_view cheats);
/// The caption of the window that mails cheats.
std::wstring cheats_mail_caption(std::wstring_view recipient);

/// Returns the length of the whole placeholder if `selected` is the part of one that a double-click selects; nothing
/// for any other text.
std::optional<int> placeholder_length(std::wstring_view selected);

/// The subjects offered for a message to the author.
inline constexpr const wchar_t* canned_subjects[] = {
    L"Hi, How's life?",          L"Hi Tob, how're you doing?",
    L"Hey, Quillomat is great!", L"Quillomat is the greatest thing under the sun!",
    L"Quillomat sucks!",         L"Is this the best you got?",
};

/// The subject under which the author gets a message.
std::wstring author_mail_subject(std::wstring_view subject);

}  // namespace quillomat

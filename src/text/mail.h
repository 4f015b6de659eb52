#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// What the windows that send mails tell their user first.
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

/// The subject of a mail with cheats, by the names of the two.
std::wstring cheats_mail_subject(std::wstring_view sender, std::wstring_view recipient);
/// The text of a mail whose cheats are in an attachment: the message and where it all comes from.
std::wstring cheats_mail_body(std::wstring_view message);
/// The text of a mail that holds the cheats itself.
std::wstring cheats_mail_body(std::wstring_view message, std::wstring_view cheats);
/// The caption of the window that mails cheats.
std::wstring cheats_mail_caption(std::wstring_view recipient);

/// How many characters a double-click that selected the first word of one of the message's placeholders is meant to
/// select; nothing for any other word.
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

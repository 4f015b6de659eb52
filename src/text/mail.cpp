#include "text/mail.h"

#include <initializer_list>
#include <utility>

#include "text/line_end.h"
#include "text/product.h"

namespace quillomat {
namespace {

constexpr std::wstring_view name_frame = L"********************";
constexpr std::wstring_view separator = L"-----------------------------------";

void append_lines(std::wstring& text, std::initializer_list<std::wstring_view> lines) {
    for (const std::wstring_view line : lines) text.append(line).append(line_end);
}

// Returns the message and, between empty lines, the separator below it.
std::wstring body_beginning(std::wstring_view message) {
    std::wstring body;
    append_lines(body, {message, {}, separator, {}});
    return body;
}

std::wstring with_footer(std::wstring body) {
    append_lines(body, {L"Cheat codes taken from Quillomat."});
    return body.append(product::web_site);
}

}  // namespace

std::wstring mailed_cheats(const std::vector<MailedGame>& games) {
    std::wstring text;
    for (const MailedGame& game : games) {
        if (&game != &games.front()) append_lines(text, {{}, {}});
        append_lines(text, {name_frame, game.name, name_frame, {}});
        text.append(game.cheats);
    }
    return text;
}

std::wstring cheats_mail_subject(std::wstring_view sender, std::wstring_view recipient) {
    return std::wstring(L"Cheat codes sent from ").append(sender).append(L" to ").append(recipient);
}

std::wstring cheats_mail_body(std::wstring_view message) {
    return with_footer(body_beginning(message));
}

std::wstring cheats_mail_body(std::wstring_view message, std::wstring_view cheats) {
    std::wstring body = body_beginning(message);
    append_lines(body, {cheats, {}, separator, {}});
    return with_footer(std::move(body));
}

std::wstring cheats_mail_caption(std::wstring_view recipient) {
    if (recipient.empty()) return L"Mail Cheat Codes to a friend.";
    return std::wstring(L"Mail Cheat Codes to ").append(recipient);
}

std::optional<int> placeholder_length(std::wstring_view selected) {
    // A double-click selects the blank after a word as well, but not in every version of Windows.
    if (selected == L"[FRIEND'S " || selected == L"[FRIEND'S") return 15;
    if (selected == L"[YOUR " || selected == L"[YOUR") return 11;
    return std::nullopt;
}

std::wstring author_mail_subject(std::wstring_view subject) {
    return std::wstring(subject).append(L" (sent from QLM)");
}

}  // namespace quillomat

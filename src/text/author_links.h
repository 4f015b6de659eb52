#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Return the links to the author's pages and for a mail to the author.
std::wstring web_site_link();
std::wstring guestbook_link();
std::wstring downloads_link();
std::wstring mail_link();

/// Returns the link for a selected text that is exactly the author's mail address or web site as shown; nothing for any
/// other text.
std::optional<std::wstring> link_of_address(std::wstring_view selected);

}  // namespace quillomat

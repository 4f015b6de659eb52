#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Return the addresses of the author's pages and the author's mail address, as links.
std::wstring web_site_link();
std::wstring guestbook_link();
std::wstring downloads_link();
std::wstring mail_link();

/// Returns the link for a selected text if that is exactly the author's mail address or web site as shown, or nothing
/// for any other text.
std::optional<std::wstring> link_of_address(std::wstring_view selected);

}  // namespace quillomat

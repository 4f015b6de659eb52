#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// The author's pages and mail address as the user's desktop opens them.
std::wstring web_site_link();
std::wstring guestbook_link();
std::wstring downloads_link();
std::wstring mail_link();

/// The link that a text selected by the user stands for: exactly the author's mail address or web site as they are
/// shown. Nothing for any other text.
std::optional<std::wstring> link_of_address(std::wstring_view selected);

}  // namespace quillomat

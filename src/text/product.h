#pragma once

#include "version.h"

namespace quillomat::product {

inline constexpr wchar_t title[] = L"Quillomat";
/// The version that windows show.
inline constexpr wchar_t version[] = L"" QUILLOMAT_VERSION;
inline constexpr wchar_t author[] = L"Tobin Ferrand";

/// The author's web site, as shown and printed; links put "http://" before it.
inline constexpr wchar_t web_site[] = L"www.tobferrand.example";
inline constexpr wchar_t guestbook_path[] = L"/cgi-bin/guestex.cgi";
inline constexpr wchar_t downloads_path[] = L"/downloads.htm";
inline constexpr wchar_t mail_address[] = L"tob@tobferrand.example";
/// The page to join the mailing list, on a third party's site.
inline constexpr wchar_t mailing_list_page[] = L"http://lists.allvb.example/subscribe/allvb";

}  // namespace quillomat::product

#include "text/author_links.h"

#include "text/product.h"

namespace quillomat {

std::wstring web_site_link() {
    return std::wstring(L"http://") + product::web_site;
}

std::wstring guestbook_link() {
    return web_site_link() + product::guestbook_path;
}

std::wstring downloads_link() {
    return web_site_link() + product::downloads_path;
}

std::wstring mail_link() {
    return std::wstring(L"mailto:") + product::mail_address;
}

std::optional<std::wstring> link_of_address(std::wstring_view selected) {
    if (selected == product::mail_address) return mail_link();
    if (selected == product::web_site) return web_site_link();
    return std::nullopt;
}

}  // namespace quillomat

#include "common/open_link.h"

#include "forms/application.h"
#include "forms/form.h"
#include "forms/message_box.h"
#include "win/links.h"

namespace quillomat {

void OpenLink(Form& form, const std::wstring& address) {
    if (open_link(address)) return;
    show_message(form, {.text = L"An error has occured.\r\nMake sure your internet connection is ON and that "
                                L"your web settings are configured properly.",
                        .title = form.application().title()});
}

}  // namespace quillomat

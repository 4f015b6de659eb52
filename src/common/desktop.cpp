#include "common/desktop.h"

#include <cstdint>
#include <limits>

#include "controls/text_box.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/message_box.h"
#include "text/error.h"
#include "win/links.h"

namespace quillomat {

void OpenLink(Form& form, const std::wstring& address) {
    if (open_link(address)) return;
    show_message(form.window(), {.text = L"An error has occured.\r\nMake sure your internet connection is ON and that "
                                         L"your web settings are configured properly.",
                                 .title = form.application().title()});
}

void SelectAllText(TextBox& box) {
    box.set_focus();
    box.select(0, box.text().size());
}

void StayOnTop(HWND window) {
    const auto handle = reinterpret_cast<std::intptr_t>(window);
    if (handle < std::numeric_limits<std::int16_t>::min() || handle > std::numeric_limits<std::int16_t>::max()) {
        throw Error(ErrorCode::Overflow);
    }
    SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

}  // namespace quillomat

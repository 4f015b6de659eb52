#include "forms/message_box.h"

#include "forms/application.h"
#include "forms/form.h"
#include "text/error.h"

namespace quillomat {

MessageAnswer show_message(const Form& form, const Message& message) {
    return show_message(form.application(), form.window(), message);
}

MessageAnswer show_message(Application& application, HWND owner, const Message& message) {
    // Without an enabled owner, Windows would activate another program's window when the message box closes.
    owner = application.modality().owner_for_message(owner);
    // MessageBox disables the owner only. The other windows are disabled here, because a handler is still running.
    const ModalScope modal(application, owner);
    return static_cast<MessageAnswer>(
        MessageBoxW(owner, message.text.c_str(), message.title.c_str(),
                    static_cast<UINT>(message.buttons) | static_cast<UINT>(message.icon)));
}

void show_error(const Form& form, const Error& error) {
    show_message(form, {.text = error.description(), .title = L"Error!", .icon = MessageIcon::Critical});
}

void beep() {
    MessageBeep(MB_OK);
}

}  // namespace quillomat

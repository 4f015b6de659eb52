#include "forms/message_box.h"

#include "forms/application.h"
#include "forms/form.h"
#include "text/error.h"

namespace quillomat {
namespace {

UINT style_of(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return MB_OK;
        case MessageButtons::OkCancel:
            return MB_OKCANCEL;
        case MessageButtons::YesNo:
            return MB_YESNO;
    }
    return MB_OK;
}

UINT style_of(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return 0;
        case MessageIcon::Critical:
            return MB_ICONERROR;
        case MessageIcon::Question:
            return MB_ICONQUESTION;
        case MessageIcon::Information:
            return MB_ICONINFORMATION;
    }
    return 0;
}

}  // namespace

MessageAnswer show_message(HWND form, const Message& message) {
    return show_message(Form::from(form)->application(), form, message);
}

MessageAnswer show_message(Application& application, HWND wanted, const Message& message) {
    // Without an owner that the user can use, Windows would activate another program's window after the message.
    const HWND owner = application.modality().owner_for_message(wanted);
    // Windows disables the owner alone; the other windows must wait too, as a handler is at work behind the question.
    const ModalScope modal(application, owner);
    const int answer = MessageBoxW(owner, message.text.c_str(), message.title.c_str(),
                                   style_of(message.buttons) | style_of(message.icon));
    switch (answer) {
        case IDYES:
            return MessageAnswer::Yes;
        case IDNO:
            return MessageAnswer::No;
        case IDCANCEL:
            return MessageAnswer::Cancel;
        default:
            return MessageAnswer::Ok;
    }
}

void show_error(HWND form, const Error& error) {
    show_message(form, {.text = error.description(), .title = L"Error!", .icon = MessageIcon::Critical});
}

void beep() {
    MessageBeep(MB_OK);
}

}  // namespace quillomat

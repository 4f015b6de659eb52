#pragma once

#include <string>

#include "win/api.h"

namespace quillomat {

class Application;
class Error;
class Form;

/// The buttons of a message box.
enum class MessageButtons : UINT { Ok = MB_OK, OkCancel = MB_OKCANCEL, YesNo = MB_YESNO };
/// The icon of a message box.
enum class MessageIcon : UINT {
    None = 0,
    Critical = MB_ICONERROR,
    Question = MB_ICONQUESTION,
    Information = MB_ICONINFORMATION,
};
/// The user's answer. Closing the box answers Cancel, or Ok if that is the only button.
enum class MessageAnswer { Ok = IDOK, Cancel = IDCANCEL, Yes = IDYES, No = IDNO };

/// The content of a message box.
struct Message {
    std::wstring text;
    std::wstring title;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

/// Shows a message box above a form and waits for the answer. All other windows are disabled meanwhile.
/// If the form waits for a dialog, the message box appears above that dialog.
MessageAnswer show_message(const Form& form, const Message& message);
/// Shows a message box in the same way above a window that may be null or destroyed.
MessageAnswer show_message(Application& application, HWND owner, const Message& message);

/// Shows the description of `error` in a critical message box titled "Error!" above a form.
void show_error(const Form& form, const Error& error);

/// Plays the default beep.
void beep();

}  // namespace quillomat

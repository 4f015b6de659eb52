#pragma once

#include <string>

#include "win/api.h"

namespace quillomat {

class Application;
class Error;

/// The answers a message box offers.
enum class MessageButtons : UINT { Ok = MB_OK, OkCancel = MB_OKCANCEL, YesNo = MB_YESNO };
/// The sign beside its text.
enum class MessageIcon : UINT {
    None = 0,
    Critical = MB_ICONERROR,
    Question = MB_ICONQUESTION,
    Information = MB_ICONINFORMATION,
};
/// The user's answer; closing the box is `Cancel`, or `Ok` where nothing else is offered.
enum class MessageAnswer { Ok = IDOK, Cancel = IDCANCEL, Yes = IDYES, No = IDNO };

/// A message box: its text, its title and what it offers.
struct Message {
    std::wstring text;
    std::wstring title;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

/// Shows a message above a form, given by its window, and waits for the answer; none of the program's windows can be
/// used meanwhile. Above a form that itself waits for a dialog, the message stands over that dialog.
MessageAnswer show_message(HWND form, const Message& message);
/// The same for a window that may have gone since, or for none (null).
MessageAnswer show_message(Application& application, HWND owner, const Message& message);

/// Shows a failure above a form, given by its window, in a critical message box with the title "Error!".
void show_error(HWND form, const Error& error);

/// Sounds the system's beep, for a key that does nothing.
void beep();

}  // namespace quillomat

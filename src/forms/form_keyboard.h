#pragma once

#include "win/api.h"

namespace quillomat {

class Control;
class Form;

/// How the keyboard reaches a form: key events first, then the keys that every dialog knows, then the control. Keeps
/// where the focus was while the form is not active.
class FormKeyboard {
  public:
    explicit FormKeyboard(Form& form) : form_(form) {}
    FormKeyboard(const FormKeyboard&) = delete;
    FormKeyboard& operator=(const FormKeyboard&) = delete;

    /// Gives the dialog keys and key events of a message to where they belong; true when it needs nothing further.
    bool translate(MSG& message);

    void set_default_button(Control* button);
    Control* default_button() const { return default_button_; }
    void set_cancel_button(Control* button) { cancel_button_ = button; }

    /// Gives the focus to a control, at once or when the window is first shown.
    void focus(HWND control);
    /// Moves the focus to the next control that takes it, in the order of reading.
    void move_focus(bool backwards);
    /// The form is being deactivated.
    void remember_focus();
    /// Gives the focus to the control that had it last, or to the first that takes it.
    void restore_focus();
    /// A control has got another window: a focus that is kept for the next activation goes to that one.
    void move_last_focus(HWND former, HWND present);

  private:
    bool raise_key_down(int key);
    bool handle_dialog_key(const MSG& message);
    void show_cues();

    Form& form_;
    Control* default_button_ = nullptr;
    Control* cancel_button_ = nullptr;
    HWND last_focus_ = nullptr;
};

}  // namespace quillomat

#pragma once

#include "win/api.h"

namespace quillomat {

class Control;
class Form;

/// Handles the keyboard of a form: first key events, then the dialog keys (Tab, Enter, Escape, access keys); all other
/// keys go to the control. Remembers the focused control while the form is inactive.
class FormKeyboard {
  public:
    explicit FormKeyboard(Form& form) : form_(form) {}
    FormKeyboard(const FormKeyboard&) = delete;
    FormKeyboard& operator=(const FormKeyboard&) = delete;

    /// Raises the key events of a message and handles dialog keys. Returns true if the message has been handled.
    bool translate(MSG& message);

    void set_default_button(Control* button);
    Control* default_button() const { return default_button_; }
    void set_cancel_button(Control* button) { cancel_button_ = button; }

    /// Gives a control the focus, at once or when the form is first shown.
    void focus(HWND control);
    /// Moves the focus to the next or previous tab stop.
    void move_focus(bool backwards);
    /// Remembers the focused control, because the form is being deactivated.
    void remember_focus();
    /// Focuses the control that had the focus last, or else the first tab stop.
    void restore_focus();
    /// Remembers `present` instead of `former`, because the window of a control has been replaced.
    void move_last_focus(HWND former, HWND present);

  private:
    bool raise_key_events(const MSG& message);
    bool handle_dialog_key(const MSG& message);
    void show_cues();

    Form& form_;
    Control* default_button_ = nullptr;
    Control* cancel_button_ = nullptr;
    HWND last_focus_ = nullptr;
};

}  // namespace quillomat

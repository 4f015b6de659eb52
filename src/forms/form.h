#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/events.h"
#include "forms/form_internals.h"
#include "forms/top_level_window.h"

namespace quillomat {

class Application;
class Control;

/// How a form is shown, by the numbers that the settings hold.
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// What frames a form and whether the user can change its size.
enum class FormBorder { Sizable, Fixed, Dialog, None };

/// The shape of the pointer over a form.
enum class PointerShape { Default, Hourglass };

/// How a form looks before its handlers have run. Sizes are in twips, and are those of the whole window. A form of
/// fixed size calls `set_inner_size` instead, because the thickness of the frame differs between versions of Windows.
struct FormDesign {
    /// Also the name of its window class, by which automation finds it.
    const wchar_t* name = nullptr;
    const wchar_t* caption = nullptr;
    double width = 0;
    double height = 0;
    FormBorder border = FormBorder::Sizable;
    /// What the user can make it no smaller than by its border.
    WindowSize minimum{};
};

/// A top-level window. The object is made when the window is opened and lives until it has closed.
class Form : public TopLevelWindow, public MouseEvents {
  public:
    Form(Application& application, const FormDesign& design);
    ~Form() override;

    /// Before the window is first shown; the place to read settings.
    std::function<void()> on_load;
    /// Before the window closes; the place to save settings.
    std::function<void()> on_unload;
    /// The window has a new size or state; also before it is first shown.
    std::function<void()> on_resize;
    /// The pointer has moved over the form or over anything on it.
    std::function<void()> on_pointer_moved;
    /// A key goes down while the form or anything on it has the focus, before the control hears of it.
    std::function<void()> on_key_pressed;
    /// A key while no control has the focus.
    std::function<void(KeyEvent&)> on_key_down;
    /// After the window has gone and no handler of the form is running any more: its owner may destroy the object.
    std::function<void()> on_closed;

    Application& application() const { return application_; }
    HWND window() const override { return window_; }
    Form& owner_form() override { return *this; }

    /// Shows the window without waiting for it to close.
    void show();
    /// Keeps the window in front of `owner` and out of the taskbar, and closes it with that one; the user can work in
    /// both. To be called before the window is shown.
    void set_owner(const Form& owner);
    /// Shows the window as a dialog of `owner` and returns when it has closed.
    void show_modal(Form* owner);
    /// Closes the windows it owns, runs `on_unload` unless `on_load` is still running, hides the window and has it
    /// destroyed as soon as no handler of it is running.
    void close();
    bool closed() const { return closed_; }
    /// Whether the window has been shown, so that it exists for the user.
    bool shown() const { return shown_; }

    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption);

    /// How the window is shown; before that, how it will be.
    WindowState window_state() const;
    void set_window_state(WindowState state);

    /// The shape of the pointer over the form and all that stands on it, from now on.
    void set_mouse_pointer(PointerShape shape);
    /// Lets the user drag the window by something on it, or by its own surface, as if by its title bar. Takes over the
    /// mouse presses there.
    void drag_by(MouseEvents& surface);
    /// Makes it the window the user works in.
    void bring_to_foreground();
    /// Paints what has changed in the window and on all that stands on it now instead of when the program is idle.
    void paint_changes();

    /// The buttons that Enter and Escape press; null for none.
    void set_default_button(Control* button) { internals_.keyboard.set_default_button(button); }
    Control* default_button() const { return internals_.keyboard.default_button(); }
    void set_cancel_button(Control* button) { internals_.keyboard.set_cancel_button(button); }

    /// The form of a window of this program, or null.
    static Form* from(HWND window);
    /// What the toolkit keeps for the form.
    FormInternals& internals() { return internals_; }
    /// Runs what may raise events, for a message of the system or for none: no exception gets out to the system, it is
    /// reported to the user later instead; and the form stays alive until the work is done.
    LRESULT guarded(const std::function<LRESULT()>& work, UINT message = WM_NULL);

  protected:
    MouseEvents& surface() override { return *this; }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam);
    static LRESULT window_destroyed(Form& form, HWND window, WPARAM wparam, LPARAM lparam);
    void timer_has_run(UINT_PTR id);
    void load();
    void resized();
    void drag();
    void resolution_changed(int system_dpi, const RECT& suggested);
    void destroy_when_idle();
    void forget_window();
    std::vector<Form*> owned_forms() const;

    Application& application_;
    std::wstring caption_;
    HWND window_ = nullptr;
    FormInternals internals_{*this};
    WindowState state_ = WindowState::Normal;
    PointerShape pointer_ = PointerShape::Default;
    bool modal_ = false;
    bool load_begun_ = false;
    bool loading_ = false;
    bool shown_ = false;
    bool resolution_changing_ = false;
    bool closed_ = false;
    int handlers_running_ = 0;
};

/// Shows the hourglass over a form for as long as it lives.
class Hourglass {
  public:
    explicit Hourglass(Form& form) : form_(form) { form_.set_mouse_pointer(PointerShape::Hourglass); }
    ~Hourglass() { form_.set_mouse_pointer(PointerShape::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    Form& form_;
};

}  // namespace quillomat

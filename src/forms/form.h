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

/// How a form is shown. The settings store these numbers.
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// The frame of a form; the user can resize only a Sizable one.
enum class FormBorder { Sizable, Fixed, Dialog, None };

/// The shape of the mouse pointer over a form.
enum class PointerShape { Default, Hourglass };

/// The initial look of a form. Sizes are outer sizes in twips. Forms of fixed size call `set_inner_size` instead,
/// because the thickness of the frame differs between versions of Windows.
struct FormDesign {
    /// The name of the form and of its window class, by which automation finds the window.
    const wchar_t* name = nullptr;
    const wchar_t* caption = nullptr;
    double width = 0;
    double height = 0;
    FormBorder border = FormBorder::Sizable;
    /// The smallest size that the window takes, in twips, except on a smaller screen.
    WindowSize minimum{};
};

/// A top-level window with its events, its keyboard and its modality. The object lives from the opening of the window
/// until it has closed.
class Form : public TopLevelWindow, public MouseEvents {
  public:
    Form(Application& application, const FormDesign& design);
    ~Form() override;

    /// Before the window is first shown. Read settings here.
    std::function<void()> on_load;
    /// Before the window closes. Save settings here.
    std::function<void()> on_unload;
    /// The size or state of the window has changed; also raised before the window is first shown.
    std::function<void()> on_resize;
    /// The pointer has moved over the form or any item.
    std::function<void()> on_pointer_moved;
    /// A key is pressed while the form or a control has the focus; raised before the control's own events.
    std::function<void()> on_key_pressed;
    /// A key is pressed while no control has the focus.
    std::function<void(KeyEvent&)> on_key_down;
    /// The window has been destroyed and no handler of the form is running. The handler may destroy the form.
    std::function<void()> on_closed;

    Application& application() const { return application_; }
    HWND window() const override { return window_; }
    Form& owner_form() override { return *this; }

    /// Shows the window without waiting for it to close.
    void show();
    /// Keeps the window in front of `owner` and out of the taskbar, and closes it with `owner`. The user can work in
    /// both. Call this before the window is shown.
    void set_owner(const Form& owner);
    /// Shows the window as a dialog of `owner`, which may be null, and returns when the dialog has closed.
    void show_modal(Form* owner);
    /// Closes the owned windows, raises `on_unload` unless `on_load` is still running, and hides the window. Destroys
    /// the window once none of its handlers is running.
    void close();
    bool closed() const { return closed_; }
    /// Whether the window has ever been shown.
    bool shown() const { return shown_; }

    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption);

    /// The state of the window, or before it is first shown, the state in which it will be shown.
    WindowState window_state() const;
    void set_window_state(WindowState state);

    /// Sets the shape of the pointer over the form and all its items.
    void set_mouse_pointer(PointerShape shape);
    /// Lets the user drag the window by an item or by the form's own surface, as if by the title bar. Replaces
    /// `on_mouse_down` of `surface`.
    void drag_by(MouseEvents& surface);
    /// Activates the window, or if it waits for a dialog, that dialog.
    void bring_to_foreground();
    /// Paints the invalid parts of the window and its controls at once, without waiting for an empty message queue.
    void paint_changes();

    /// The buttons pressed by Enter and Escape; null for none.
    void set_default_button(Control* button) { internals_.keyboard.set_default_button(button); }
    Control* default_button() const { return internals_.keyboard.default_button(); }
    void set_cancel_button(Control* button) { internals_.keyboard.set_cancel_button(button); }

    /// Returns the form of a window; null if the window has been destroyed or is no form of this thread.
    static Form* from(HWND window);
    /// For the toolkit.
    FormInternals& internals() { return internals_; }
    /// Runs `work`, which may raise events, and returns its result. The form stays alive meanwhile. An exception is
    /// recorded to be shown later, because no exception may leave a window procedure. `message` is the message being
    /// handled.
    LRESULT guarded(const std::function<LRESULT()>& work, UINT message = WM_NULL);

  protected:
    MouseEvents& surface() override { return *this; }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam);
    static LRESULT window_destroyed(Form& form, HWND window, WPARAM wparam, LPARAM lparam);
    /// Handles WM_SETCURSOR. Returns false to leave the shape of the pointer to Windows.
    bool handle_set_cursor(WORD hit_test, WORD mouse_message);
    void handle_timer(UINT_PTR id);
    void load();
    void resized();
    void drag();
    void resolution_changed(int window_dpi, const RECT& suggested);
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

/// Shows the hourglass over a form during the lifetime of this object.
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

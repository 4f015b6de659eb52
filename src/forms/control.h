#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/item.h"
#include "win/colour.h"
#include "win/font.h"

namespace quillomat {

/// An item with a window of its own, for keyboard input. The window is a standard control of Windows, so that screen
/// readers and automation can use it.
///
/// A change by the program raises the same event as a change by the user.
class Control : public Item {
  public:
    ~Control() override;

    /// The control has received the focus, by the user or by the program.
    std::function<void()> on_got_focus;
    /// A key is pressed while the control has the focus.
    std::function<void(KeyEvent&)> on_key_down;
    /// Raised before `on_key_down`, for shortcuts added to the control by another object than its form.
    std::function<void(KeyEvent&)> on_shortcut_key;
    /// A character is about to be typed into the control.
    std::function<void(CharacterEvent&)> on_key_press;

    /// The window handle. It changes when the window is recreated.
    HWND window() const { return window_; }

    /// Gives the control the focus, at once or when the form is first shown.
    void set_focus();
    bool has_focus() const { return from(GetFocus()) == this; }

    /// The colours of the background (by default the container's) and of the text. The text is drawn in another colour
    /// if the contrast between the two is too low.
    Colour back_colour() const;
    void set_back_colour(Colour colour);
    Colour fore_colour() const { return fore_colour_; }
    void set_fore_colour(Colour colour);

    const FontSpec& font() const { return font_; }
    void set_font(FontSpec font);
    void set_underlined(bool underlined);

    /// The text of the tool tip; empty for no tool tip.
    const std::wstring& tool_tip() const { return tool_tip_; }
    void set_tool_tip(std::wstring text);

    /// Sets the name by which screen readers announce a control that has no caption before it.
    void set_spoken_name(const std::wstring& name);

    void bring_to_front() override;
    void resolution_changed() override;

    /// Returns the control of a window or of a child window that Windows has created in it; null if there is none.
    static Control* from(HWND window);

    // The control's window sends these messages to its container, which forwards them to the control.
    /// Handles a notification, given by its code.
    virtual void notified(WORD /*code*/) {}
    /// Sets the text colours of `canvas` and returns the brush for the background.
    virtual HBRUSH prepare_colours(HDC canvas);
    /// Draws an owner-drawn control.
    virtual void draw(const DRAWITEMSTRUCT& /*request*/) {}

    /// Raises the key events. Called before dialog keys are handled. Returns true if a handler has handled the key.
    bool raise_key_down(int key);

    /// Returns true for a push button, which Enter clicks while the button has the focus.
    virtual bool is_button() const { return false; }
    /// Clicks the control, if it is a push button.
    virtual void click() {}

  protected:
    /// Creates the window. Throws `Error` if Windows cannot create it.
    Control(Container& container, Bounds bounds, const wchar_t* system_class, std::wstring_view text, DWORD style,
            DWORD extended_style = 0);

    /// Replaces the control's window with an empty one of another style, for styles that Windows reads only at
    /// creation.
    void recreate(DWORD style);

    /// The control's window procedure.
    virtual LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT default_message(UINT message, WPARAM wparam, LPARAM lparam) const;
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;

    /// Returns the text of the window.
    std::wstring window_text() const;
    /// Returns `text` with a blank for every NUL, because a control would cut the text off at the first NUL.
    static std::wstring displayable(std::wstring_view text);

    void set_default_back_colour(Colour colour) { back_colour_ = colour; }
    void apply_bounds() override;
    void apply_visible() override;
    void apply_enabled() override;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    void create_window(std::wstring_view text, DWORD style);
    void destroy_window();
    void apply_font();
    void place_name();

    const wchar_t* system_class_;
    DWORD extended_style_;
    HWND window_ = nullptr;
    WNDPROC system_procedure_ = nullptr;
    std::optional<Colour> back_colour_;
    Colour fore_colour_ = colours::window_text;
    FontSpec font_;
    Font system_font_;  // the window draws with it
    std::wstring tool_tip_;
    HWND name_window_ = nullptr;  // destroyed with the container's window
};

}  // namespace quillomat

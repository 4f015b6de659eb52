#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/item.h"
#include "win/colour.h"
#include "win/font.h"

namespace quillomat {

/// An item with a window of its own: what the user types into, chooses from or presses. The window is one of the
/// system's controls, so that screen readers and automation know it.
///
/// A change made by the program raises the same event as one made by the user.
class Control : public Item {
  public:
    ~Control() override;

    /// The control has got the focus, by the user or by the program.
    std::function<void()> on_got_focus;
    /// A key goes down while the control has the focus.
    std::function<void(KeyEvent&)> on_key_down;
    /// A key that goes down, before `on_key_down`: for the shortcuts that an object beside the form gives the control.
    std::function<void(KeyEvent&)> on_shortcut_key;
    /// A character is about to be typed into the control.
    std::function<void(CharacterEvent&)> on_key_press;

    /// The system's window. It can be another one later: see `recreate`.
    HWND window() const { return window_; }

    /// Gives it the focus, at once or when the form is first shown.
    void set_focus();
    bool has_focus() const { return from(GetFocus()) == this; }

    /// The colour behind the text (the container's own until one is set) and that of the text, which is made legible
    /// where the two are too much alike.
    Colour back_colour() const;
    void set_back_colour(Colour colour);
    Colour fore_colour() const { return fore_colour_; }
    void set_fore_colour(Colour colour);

    /// The font of the text.
    const FontSpec& font() const { return font_; }
    void set_font(FontSpec font);
    void set_underlined(bool underlined);

    /// The one-line text shown while the pointer rests on the control; an empty one shows none.
    const std::wstring& tool_tip() const { return tool_tip_; }
    void set_tool_tip(std::wstring text);

    /// What screen readers call it, for a control that has no caption standing before it.
    void set_spoken_name(const std::wstring& name);

    void bring_to_front() override;
    void resolution_changed() override;

    /// The control of a window or of one of the parts the system made for it, or null.
    static Control* from(HWND window);

    // What the container passes on from the control's window.
    /// The window reports something that happened to it, by its notification code.
    virtual void notified(WORD /*code*/) {}
    /// Sets the colours its text is drawn with; returns the brush for the rest.
    virtual HBRUSH prepare_colours(HDC canvas);
    /// Draws an owner-drawn control.
    virtual void draw(const DRAWITEMSTRUCT& /*request*/) {}

    /// Raises the key event, before the dialog keys are looked at; true if a handler kept the key.
    bool raise_key_down(int key);

    /// True for a push button: Enter presses it while it has the focus.
    virtual bool is_button() const { return false; }
    /// Does what a press of the button does.
    virtual void press() {}

  protected:
    /// Creates the window; to be called by the constructor of the kind of control.
    Control(Container& container, Bounds bounds, const wchar_t* system_class, std::wstring_view text, DWORD style,
            DWORD extended_style = 0);

    /// Puts a new, empty window of another style in the place of the control's window: some styles of the system's
    /// controls cannot be changed.
    void recreate(DWORD style);

    /// The control's window procedure.
    virtual LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT default_message(UINT message, WPARAM wparam, LPARAM lparam) const;
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;

    /// The text that the system's window holds.
    std::wstring window_text() const;
    /// The text as the system's controls can hold it: they would end it at its first NUL, so a NUL becomes a blank.
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
    Font system_font_;  ///< what the window draws with
    std::wstring tool_tip_;
    HWND name_window_ = nullptr;  // destroyed with the container's window
};

}  // namespace quillomat

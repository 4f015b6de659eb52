#pragma once

#include <string>

#include "forms/control.h"

namespace quillomat {

/// A push button. It draws itself, because the system's own has neither a background colour nor an underlined caption
/// that comes and goes.
class Button : public Control {
  public:
    Button(Container& container, std::wstring_view caption, Bounds bounds);

    /// The text on the button; "&" stands before the access key.
    std::wstring caption() const { return window_text(); }
    void set_caption(const std::wstring& caption);
    /// The colour of the caption while the button is disabled: the system's grey unless it is set.
    void set_disabled_fore_colour(Colour colour) { disabled_fore_colour_ = colour; }
    /// Does what a press of the button does.
    void click() { raise(on_click); }

    bool is_button() const override { return true; }
    void press() override { click(); }
    void notified(WORD code) override;
    void draw(const DRAWITEMSTRUCT& request) override;

  protected:
    /// Whether the pointer is over it.
    bool hot() const { return hot_; }
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    bool is_default() const;
    int theme_state(bool pressed) const;
    COLORREF caption_colour() const;
    void draw_face(HDC canvas, RECT& area, bool pressed) const;

    Colour disabled_fore_colour_ = colours::grey_text;
    bool hot_ = false;
};

}  // namespace quillomat

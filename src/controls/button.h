#pragma once

#include <string>

#include "forms/control.h"

namespace quillomat {

/// A push button. The button is owner-drawn, because Windows gives no way to change the background colour of a
/// standard one.
class Button : public Control {
  public:
    Button(Container& container, std::wstring_view caption, Bounds bounds);

    /// The caption; "&" marks the access key.
    std::wstring caption() const { return window_text(); }
    void set_caption(const std::wstring& caption);
    /// Sets the colour of the caption while the button is disabled; the default is the grey of Windows.
    void set_disabled_fore_colour(Colour colour) { disabled_fore_colour_ = colour; }

    bool is_button() const override { return true; }
    void click() override { raise(on_click); }
    void notified(WORD code) override;
    void draw(const DRAWITEMSTRUCT& request) override;

  protected:
    /// Whether the pointer is over the button.
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

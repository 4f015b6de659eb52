#pragma once

#include "forms/container.h"
#include "forms/control.h"

namespace quillomat {

/// The border of a frame.
enum class FrameBorder { None, Captioned };

/// A container within a form, with or without a border and caption. Its window is a standard group box, by which screen
/// readers announce the group.
class Frame : public Control, public Container {
  public:
    Frame(Container& container, std::wstring_view caption, Bounds bounds, FrameBorder border);

    HWND window() const override { return Control::window(); }
    Form& owner_form() override { return form(); }
    using Container::back_colour;
    using Container::set_back_colour;
    using Control::bring_to_front;
    void resolution_changed() override;

  protected:
    MouseEvents& surface() override { return *this; }
    void draw_background(HDC canvas, const RECT& client) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    FrameBorder border_;
};

}  // namespace quillomat

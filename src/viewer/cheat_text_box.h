#pragma once

#include "controls/text_box.h"

namespace quillomat {

/// The box for reading cheats.
class CheatTextBox final : public TextBox {
  public:
    CheatTextBox(Container& container, Bounds bounds) : TextBox(container, bounds, TextBoxKind::Reading) {}

    /// The user right-clicks the box. The handler shows a context menu; the system's own does not appear.
    std::function<void()> on_context_menu;
    /// The user turns the wheel with Ctrl held, by a number of notches; positive is away from the user.
    std::function<void(int notches)> on_control_wheel;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    int wheel_delta_ = 0;  // what is left of the turns below a whole notch
};

}  // namespace quillomat

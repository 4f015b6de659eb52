#pragma once

#include "forms/control.h"

namespace quillomat {

/// A check box.
class CheckBox : public Control {
  public:
    CheckBox(Container& container, std::wstring_view caption, Bounds bounds);

    /// Returns true if the box is checked.
    bool value() const { return value_; }
    /// Checks or clears the box. Raises `on_click` if that changes the value.
    void set_value(bool value);

    void notified(WORD code) override;

  private:
    bool value_ = false;
};

}  // namespace quillomat

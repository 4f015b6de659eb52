#pragma once

#include "forms/control.h"

namespace quillomat {

/// A choice that can be on or off by itself.
class CheckBox : public Control {
  public:
    CheckBox(Container& container, std::wstring_view caption, Bounds bounds);

    /// Whether it is on.
    bool value() const { return value_; }
    /// Raises the click when the value changes.
    void set_value(bool value);

    void notified(WORD code) override;

  private:
    bool value_ = false;
};

}  // namespace quillomat

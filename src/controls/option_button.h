#pragma once

#include "forms/control.h"

namespace quillomat {

/// One of the choices of its container, of which at most one is set.
class OptionButton : public Control {
  public:
    /// Whether an option is the first of its container.
    enum class Group { Starts, Continues };
    /// Whether an option is the choice that is set at first.
    enum class Choice { Unset, Set };

    /// The first option of a container starts the group that the arrow keys walk through.
    OptionButton(Container& container, std::wstring_view caption, Bounds bounds, Group group,
                 Choice choice = Choice::Unset);

    /// Whether it is the choice that is set.
    bool value() const { return value_; }
    /// Sets the choice and raises the click when it becomes set; the container's other choices are taken back.
    void set_value(bool value);

    void notified(WORD code) override;

  private:
    void take_back_others();

    bool value_;
};

}  // namespace quillomat

#pragma once

#include "forms/control.h"

namespace quillomat {

/// An option button. At most one option button of a container is set.
class OptionButton : public Control {
  public:
    /// Whether an option button is the first of its container.
    enum class Group { Starts, Continues };
    /// Whether an option button is initially set.
    enum class Choice { Unset, Set };

    /// The first option button of a container must start the group that arrow keys move in.
    OptionButton(Container& container, std::wstring_view caption, Bounds bounds, Group group,
                 Choice choice = Choice::Unset);

    /// Whether the option button is set.
    bool value() const { return value_; }
    /// Sets or clears the option button. Setting one that is clear clears all others of the container and raises
    /// on_click.
    void set_value(bool value);

    void notified(WORD code) override;

  private:
    void clear_others();

    bool value_;
};

}  // namespace quillomat

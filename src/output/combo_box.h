#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// An edit box with a drop-down list. Its height depends on its font.
class ComboBox : public Control {
  public:
    ComboBox(Container& container, Bounds bounds);

    /// The user has typed or selected a text, or the program has set one.
    std::function<void()> on_change;

    /// Adds a text at the end of the list. Throws `Error` with OutOfMemory if Windows refuses.
    void add(std::wstring_view text);

    /// The text in the box.
    std::wstring text() const { return window_text(); }
    /// Puts a text into the box and raises `on_change`.
    void set_text(std::wstring_view text);

    void notified(WORD code) override;

  protected:
    void apply_bounds() override;

  private:
    bool program_changes_ = false;
};

}  // namespace quillomat

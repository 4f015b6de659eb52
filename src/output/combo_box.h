#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// A line of text to be typed, or picked from a list that drops down. It is as high as its font asks for.
class ComboBox : public Control {
  public:
    ComboBox(Container& container, Bounds bounds);

    /// The text has changed: typed, picked, or set by the program.
    std::function<void()> on_change;

    /// Adds a text at the end of the list. Throws `Error` with OutOfMemory when it takes no more.
    void add(std::wstring_view text);

    /// What stands in the box.
    std::wstring text() const { return window_text(); }
    void set_text(std::wstring_view text);

    void notified(WORD code) override;

  protected:
    void apply_bounds() override;

  private:
    bool program_changes_ = false;
};

}  // namespace quillomat

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// A drop-down list of texts whose field shows the selected text.
class DropDownList : public Control {
  public:
    DropDownList(Container& container, Bounds bounds);

    /// The user or the program has selected another text. Not raised while the user moves through the open list.
    std::function<void()> on_change;

    /// Adds a text at the end. Throws `Error` with OutOfMemory if Windows refuses.
    void add(std::wstring_view text);
    /// Returns the position of the selected text, or nothing.
    std::optional<int> selected_index() const;
    /// Selects the text at a position. Raises `on_change` if that is another text. Throws `Error` with
    /// SubscriptOutOfRange if there is no such position.
    void select_index(int index);
    /// The selected text; empty if none is selected.
    std::wstring text() const { return window_text(); }

    void notified(WORD code) override;

  protected:
    void apply_bounds() override;

  private:
    void report_change();

    std::optional<int> reported_;
};

}  // namespace quillomat

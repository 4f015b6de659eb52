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

    /// Another text has been selected, by the user or by the program. Not raised while the user moves through the open
    /// list.
    std::function<void()> on_change;

    /// Adds a text at the end. Throws `Error` with OutOfMemory when the list takes no more.
    void add(std::wstring_view text);
    /// The position of the selected text, or nothing.
    std::optional<int> selected_index() const;
    /// Selects the text at a position, and raises the change when that is another one. Throws `Error` with
    /// SubscriptOutOfRange when there is none.
    void select_index(int index);
    /// The selected text; empty when none is selected.
    std::wstring text() const { return window_text(); }

    void notified(WORD code) override;

  protected:
    void apply_bounds() override;

  private:
    void report_change();

    std::optional<int> reported_;
};

}  // namespace quillomat

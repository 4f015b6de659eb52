#pragma once

#include <vector>

#include "controls/list_box.h"

namespace quillomat {

/// A list of texts of which several can be picked: a click or Space picks the text at the cursor or takes it back. What
/// it has selected, as a list, is the text at its cursor.
class PickingListBox final : public ListBox {
  public:
    PickingListBox(Container& container, Bounds bounds);

    std::optional<int> selected_index() const override;
    void select_index(int index) override;

    /// The positions of the picked texts, in the list's order.
    std::vector<int> picked_indexes() const;
    /// Picks the text at a position or takes it back, and raises the click. Throws `Error` with SubscriptOutOfRange
    /// when there is none.
    void set_picked(int index, bool picked);
    /// Lets the user scroll sideways as far as the longest text reaches.
    void fit_scroll_range();

    void notified(WORD code) override;
    void resolution_changed() override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    bool told_of_change_ = false;
};

}  // namespace quillomat

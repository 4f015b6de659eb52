#pragma once

#include <vector>

#include "controls/list_box.h"

namespace quillomat {

/// A list in which several texts can be picked. A click or Space picks the text at the caret, or takes the pick back.
/// The text at the caret is the selected one.
class PickingListBox final : public ListBox {
  public:
    PickingListBox(Container& container, Bounds bounds);

    std::optional<int> selected_index() const override;
    void select_index(int index) override;

    /// Returns the positions of the picked texts, in the list's order.
    std::vector<int> picked_indexes() const;
    /// Picks the text at a position, or takes the pick back, and raises `on_click`. Throws `Error` with
    /// SubscriptOutOfRange if there is no such position.
    void set_picked(int index, bool picked);
    /// Lets the user scroll sideways as far as the longest text reaches.
    void fit_scroll_range();

    void notified(WORD code) override;
    void resolution_changed() override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    bool change_notified_ = false;  // Wine: whether LBN_SELCHANGE has come since Space was pressed
};

}  // namespace quillomat

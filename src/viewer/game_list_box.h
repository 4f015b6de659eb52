#pragma once

#include "controls/list_box.h"

namespace quillomat {

/// A list of game names. A name wider than the list is shown without its middle, so that names with the same beginning
/// can be told apart; the text of the list item stays the whole name. Rows are shown whole or not at all.
class GameListBox final : public ListBox {
  public:
    GameListBox(Container& container, Bounds bounds);

    void draw(const DRAWITEMSTRUCT& request) override;
    void resolution_changed() override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    void fit_items();
    void draw_name(HDC canvas, int index, RECT area) const;
};

}  // namespace quillomat

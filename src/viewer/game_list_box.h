#pragma once

#include "controls/list_box.h"

namespace quillomat {

/// A list of game names. A name that is wider than the list is drawn without its middle, so that names with the same
/// beginning can be told apart; the item's text is still the whole name. Rows that do not fit are not drawn.
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

#pragma once

#include "controls/button.h"

namespace quillomat {

/// A button that looks like a link: blue, red while it is pressed, and underlined under the pointer or if the user's
/// colours leave no blue.
class Link : public Button {
  public:
    /// As wide as its caption; `left` and `top` are in twips.
    Link(Container& container, std::wstring_view caption, double left, double top);

    void resolution_changed() override;
    void draw(const DRAWITEMSTRUCT& request) override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    void fit_to_caption();
};

}  // namespace quillomat

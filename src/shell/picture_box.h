#pragma once

#include "forms/control.h"
#include "win/picture.h"

namespace quillomat {

/// A square box that shows a picture on its background colour and has a tool tip.
class PictureBox : public Control {
  public:
    /// The frame drawn around the box.
    enum class Edge { None, Thin };

    /// Screen readers announce the picture by its `description`.
    PictureBox(Container& container, Picture picture, std::wstring_view description, Bounds bounds,
               Edge edge = Edge::None);

    /// Scales the picture horizontally about the middle of the box, by a factor from -1 to 1. A negative factor mirrors
    /// the picture.
    void set_width_factor(double factor);

    void draw(const DRAWITEMSTRUCT& request) override;

  private:
    Picture picture_;
    Edge edge_;
    GdiObject<HBITMAP> bitmap_;  // the picture on its background, of the following size and colour
    int bitmap_size_ = 0;
    COLORREF bitmap_background_ = 0;
    double width_factor_ = 1;
};

}  // namespace quillomat

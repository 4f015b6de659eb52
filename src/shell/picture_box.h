#pragma once

#include "forms/control.h"
#include "forms/picture.h"
#include "text/squeeze.h"

namespace quillomat {

/// A square box that shows a picture on its background colour and has a tool tip.
class PictureBox : public Control {
  public:
    /// `description` is what screen readers say of the picture.
    PictureBox(Container& container, Picture picture, std::wstring_view description, Bounds bounds);

    /// Draws the picture this wide about the middle of the box, as a part of its full width from -1 to 1; a negative
    /// one mirrors it.
    void set_width_factor(double factor);

    void draw(const DRAWITEMSTRUCT& request) override;

  private:
    void take_pixels(int size);

    Picture picture_;
    PixelPicture pixels_;  // the picture in the size of the box, on its background
    Colour pixels_background_;
    double width_factor_ = 1;
};

}  // namespace quillomat

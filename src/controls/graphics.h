#pragma once

#include <optional>
#include <string>
#include <utility>

#include "forms/graphic.h"
#include "win/colour.h"
#include "win/font.h"
#include "win/picture.h"

namespace quillomat {

/// Where the lines of a label stand between its edges.
enum class Alignment { Left, Centre, Right };
/// Whether a label covers what lies behind it.
enum class BackStyle { Transparent, Opaque };

/// A painted text. Access keys and screen readers pass it by: the caption of an input is a `StaticLabel`.
class Label : public Graphic {
  public:
    Label(Container& container, std::wstring caption, Bounds bounds)
        : Graphic(container, bounds), caption_(std::move(caption)) {}

    /// The text; it breaks into lines at the width of the label.
    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption) { change(caption_, std::move(caption)); }
    void set_alignment(Alignment alignment) { change(alignment_, alignment); }
    void set_back_style(BackStyle style) { change(back_style_, style); }
    /// Shown by an opaque label only.
    Colour back_colour() const { return back_colour_; }
    void set_back_colour(Colour colour) { change(back_colour_, colour); }
    Colour fore_colour() const { return fore_colour_; }
    void set_fore_colour(Colour colour) { change(fore_colour_, colour); }
    const FontSpec& font() const { return font_; }
    void set_font(FontSpec font) { change(font_, std::move(font)); }
    /// Makes the label as large as its caption.
    void fit_to_caption();

    void draw(HDC canvas) const override;

  private:
    std::wstring caption_;
    FontSpec font_;
    Colour back_colour_ = colours::button_face;
    Colour fore_colour_ = colours::button_text;
    Alignment alignment_ = Alignment::Left;
    BackStyle back_style_ = BackStyle::Transparent;
};

/// What is drawn around an image.
enum class ImageBorder { None, Single };

/// A painted picture, by itself or pressed into a single-line border.
class Image : public Graphic {
  public:
    Image(Container& container, Picture picture, Bounds bounds) : Graphic(container, bounds), picture_(picture) {}

    /// Draws the picture this large, in twips, in the middle of the image instead of filling it.
    void set_picture_size(double twips) { change(picture_size_, twips); }
    ImageBorder border() const { return border_; }
    void set_border(ImageBorder border) { change(border_, border); }

    void draw(HDC canvas) const override;

  private:
    Picture picture_;
    double picture_size_ = 0;
    ImageBorder border_ = ImageBorder::None;
};

/// A painted rectangle, or only its border. The mouse meets what lies behind it.
class Shape : public Graphic {
  public:
    using Graphic::Graphic;

    void set_border_colour(Colour colour) { change(border_colour_, colour); }
    /// Paints the inside too, which is transparent before.
    void set_fill_colour(Colour colour) { change(fill_colour_, std::optional(colour)); }

    void draw(HDC canvas) const override;
    bool takes_mouse() const override { return false; }

  private:
    Colour border_colour_ = colours::black;
    std::optional<Colour> fill_colour_;
};

/// A painted straight line along the upper or left edge of its bounds. The mouse meets what lies behind it.
class Line : public Graphic {
  public:
    using Graphic::Graphic;

    void draw(HDC canvas) const override;
    bool takes_mouse() const override { return false; }
};

}  // namespace quillomat

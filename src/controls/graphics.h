#pragma once

#include <optional>
#include <string>
#include <utility>

#include "forms/graphic.h"
#include "win/colour.h"
#include "win/font.h"
#include "win/picture.h"

namespace quillomat {

/// The alignment of a label's lines.
enum class Alignment { Left, Centre, Right };
/// Whether a label fills its background.
enum class BackStyle { Transparent, Opaque };

/// A painted text. It has no access key, and screen readers do not see it; use `StaticLabel` for the caption of an
/// input.
class Label : public Graphic {
  public:
    Label(Container& container, std::wstring caption, Bounds bounds)
        : Graphic(container, bounds), caption_(std::move(caption)) {}

    /// The text, which breaks into lines at the width of the label.
    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption) { change(caption_, std::move(caption)); }
    void set_alignment(Alignment alignment) { change(alignment_, alignment); }
    void set_back_style(BackStyle style) { change(back_style_, style); }
    /// The background colour of an opaque label.
    Colour back_colour() const { return back_colour_; }
    void set_back_colour(Colour colour) { change(back_colour_, colour); }
    Colour fore_colour() const { return fore_colour_; }
    void set_fore_colour(Colour colour) { change(fore_colour_, colour); }
    const FontSpec& font() const { return font_; }
    void set_font(FontSpec font) { change(font_, std::move(font)); }
    /// Sizes the label to its caption, on one line.
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

/// The border of an image.
enum class ImageBorder { None, Single };

/// A painted picture, with or without a sunken border.
class Image : public Graphic {
  public:
    Image(Container& container, Picture picture, Bounds bounds) : Graphic(container, bounds), picture_(picture) {}

    /// Draws the picture in this size, in twips, centred in the image. By default the picture fills the image.
    void set_picture_size(double twips) { change(picture_size_, twips); }
    ImageBorder border() const { return border_; }
    void set_border(ImageBorder border) { change(border_, border); }

    void draw(HDC canvas) const override;

  private:
    Picture picture_;
    double picture_size_ = 0;
    ImageBorder border_ = ImageBorder::None;
};

/// A painted rectangle. Mouse events go to whatever lies behind it.
class Shape : public Graphic {
  public:
    using Graphic::Graphic;

    void set_border_colour(Colour colour) { change(border_colour_, colour); }
    /// Fills the inside, which is transparent by default.
    void set_fill_colour(Colour colour) { change(fill_colour_, std::optional(colour)); }

    void draw(HDC canvas) const override;
    bool takes_mouse() const override { return false; }

  private:
    Colour border_colour_ = colours::black;
    std::optional<Colour> fill_colour_;
};

/// A painted line along the top or left edge of its bounds. Mouse events go to whatever lies behind it.
class Line : public Graphic {
  public:
    using Graphic::Graphic;

    void draw(HDC canvas) const override;
    bool takes_mouse() const override { return false; }
};

}  // namespace quillomat

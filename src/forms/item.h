#pragma once

#include "forms/events.h"
#include "forms/geometry.h"
#include "win/api.h"

namespace quillomat {

class Container;
class Form;

/// Anything that stands on a form: a control with a window of its own, or a graphic that its container paints.
///
/// Sizes and positions are in twips from the container's inner left and top. They are kept as given; read back, they
/// are what the whole pixels of the screen made of them.
class Item : public MouseEvents {
  public:
    Item(Container& container, Bounds bounds);
    virtual ~Item() = default;
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;

    Container& container() const { return container_; }
    Form& form() const;

    /// Where it stands in its container, and its size, in twips.
    double left() const { return rounded(bounds_.left); }
    double top() const { return rounded(bounds_.top); }
    double width() const { return rounded(bounds_.width); }
    double height() const { return rounded(bounds_.height); }
    void set_left(double twips) { move({twips, bounds_.top, bounds_.width, bounds_.height}); }
    void set_top(double twips) { move({bounds_.left, twips, bounds_.width, bounds_.height}); }
    void set_width(double twips) { set_size(twips, bounds_.height); }
    void set_height(double twips) { set_size(bounds_.width, twips); }
    /// Both at once, where it stands.
    void set_size(double width, double height) { move({bounds_.left, bounds_.top, width, height}); }
    /// Puts it in another place and size: one step instead of four.
    void move(Bounds bounds);
    /// Moves the item by a distance in twips; there and back again is exactly where it was.
    void move_by(double right, double down) {
        move({bounds_.left + right, bounds_.top + down, bounds_.width, bounds_.height});
    }

    /// Whether it is shown, as far as its container is.
    bool visible() const { return visible_; }
    void set_visible(bool visible);
    /// Whether the user can use it.
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);

    /// Puts the item in front of all others of its container that it can stand in front of: controls are always in
    /// front of graphics.
    virtual void bring_to_front() = 0;

    /// Takes over a new resolution of the container; for the toolkit.
    virtual void resolution_changed() { apply_bounds(); }

  protected:
    int dpi() const;
    /// Where the item stands in its container, in pixels.
    RECT pixel_bounds() const;

    virtual void apply_bounds() = 0;
    virtual void apply_visible() = 0;
    virtual void apply_enabled() = 0;

  private:
    double rounded(double twips) const;

    Container& container_;
    Bounds bounds_;
    bool visible_ = true;
    bool enabled_ = true;
};

}  // namespace quillomat

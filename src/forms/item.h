#pragma once

#include "forms/events.h"
#include "forms/geometry.h"
#include "win/api.h"

namespace quillomat {

class Container;
class Form;

/// Anything placed on a form: a control with a window of its own, or a graphic painted by its container.
///
/// Positions are in twips from the left and top of the container's inside. An item keeps its exact bounds; the getters
/// return them rounded to whole pixels.
class Item : public MouseEvents {
  public:
    Item(Container& container, Bounds bounds);
    virtual ~Item() = default;
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;

    Container& container() const { return container_; }
    Form& form() const;

    /// Position and size in twips.
    double left() const { return rounded(bounds_.left); }
    double top() const { return rounded(bounds_.top); }
    double width() const { return rounded(bounds_.width); }
    double height() const { return rounded(bounds_.height); }
    void set_left(double twips) { move({twips, bounds_.top, bounds_.width, bounds_.height}); }
    void set_top(double twips) { move({bounds_.left, twips, bounds_.width, bounds_.height}); }
    void set_width(double twips) { set_size(twips, bounds_.height); }
    void set_height(double twips) { set_size(bounds_.width, twips); }
    /// Sets width and height in one step.
    void set_size(double width, double height) { move({bounds_.left, bounds_.top, width, height}); }
    /// Sets position and size in one step.
    void move(Bounds bounds);
    /// Moves the item by a distance in twips. The opposite move restores the position exactly.
    void move_by(double right, double down) {
        move({bounds_.left + right, bounds_.top + down, bounds_.width, bounds_.height});
    }

    /// Whether the item is visible while its container is.
    bool visible() const { return visible_; }
    void set_visible(bool visible);
    /// Whether the item takes input.
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);

    /// Puts a control in front of all other controls of its container, or a graphic in front of all other graphics.
    /// Controls are always in front of graphics.
    virtual void bring_to_front() = 0;

    /// Adapts the item to a new resolution of its form. For the toolkit.
    virtual void resolution_changed() { apply_bounds(); }

  protected:
    int dpi() const;
    /// The position in the container, in pixels.
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

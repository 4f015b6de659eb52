#include "forms/item.h"

#include "forms/container.h"
#include "forms/form.h"

namespace quillomat {

Item::Item(Container& container, Bounds bounds) : container_(container), bounds_(bounds) {}

Form& Item::form() const {
    return container_.owner_form();
}

int Item::dpi() const {
    return form().dpi();
}

double Item::rounded(double twips) const {
    return to_twips(to_pixels(twips, dpi()), dpi());
}

void Item::set_left(double twips) {
    move({twips, bounds_.top, bounds_.width, bounds_.height});
}

void Item::set_top(double twips) {
    move({bounds_.left, twips, bounds_.width, bounds_.height});
}

void Item::set_width(double twips) {
    move({bounds_.left, bounds_.top, twips, bounds_.height});
}

void Item::set_height(double twips) {
    move({bounds_.left, bounds_.top, bounds_.width, twips});
}

void Item::set_size(double width, double height) {
    move({bounds_.left, bounds_.top, width, height});
}

void Item::move(Bounds bounds) {
    if (bounds == bounds_) return;
    bounds_ = bounds;
    apply_bounds();
}

void Item::move_by(double right, double down) {
    move({bounds_.left + right, bounds_.top + down, bounds_.width, bounds_.height});
}

void Item::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    apply_visible();
}

void Item::set_enabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    apply_enabled();
}

}  // namespace quillomat

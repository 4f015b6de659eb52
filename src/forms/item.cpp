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

RECT Item::pixel_bounds() const {
    const int x = to_pixels(bounds_.left, dpi());
    const int y = to_pixels(bounds_.top, dpi());
    return {x, y, x + to_pixels(bounds_.width, dpi()), y + to_pixels(bounds_.height, dpi())};
}

double Item::rounded(double twips) const {
    return to_twips(to_pixels(twips, dpi()), dpi());
}

void Item::move(Bounds bounds) {
    if (bounds == bounds_) return;
    bounds_ = bounds;
    apply_bounds();
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
